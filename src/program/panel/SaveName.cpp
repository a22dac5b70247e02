#include "program/panel/SaveName.h"

#include "base/Paths.h"

void SaveName::offer(const QString &name)
{
    offered_ = name;
    text_ = paths::inOneLine(name);
}

int SaveName::stemLength() const
{
    const QString extension = paths::extension(text_);
    return static_cast<int>(extension.isEmpty() ? text_.size() : text_.size() - extension.size() - 1);
}

QString SaveName::pathFrom(const QString &folder, const QString &home) const
{
    const QString name = isTyped() ? paths::expandTilde(text_, home) : offered_;
    if (name.isEmpty() || name.contains(QChar(0))) // the system would take what is ahead of it for the name
        return {};
    return paths::standardized(name.startsWith(u'/') ? name : paths::join(folder, name));
}

bool SaveName::meansFolder() const
{
    return isTyped() && (text_.endsWith(u'/') || text_.endsWith(QStringLiteral("/.")));
}

bool SaveName::isTyped() const
{
    return text_ != paths::inOneLine(offered_);
}
