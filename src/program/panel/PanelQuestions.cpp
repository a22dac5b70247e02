#include "program/panel/PanelQuestions.h"

#include "base/Error.h"
#include "base/Files.h"
#include "base/Paths.h"

namespace panelquestions {

Found lookAt(const QString &path)
{
    if (files::isDirectory(path))
        return Found::folder;
    // The entry itself: a link that leads nowhere would be replaced as well.
    if (files::attributes(path))
        return Found::file;
    return files::isDirectory(paths::parent(path)) ? Found::nothing : Found::noFolder;
}

bool canNameFolder(const QString &name)
{
    // The system would take what is ahead of a zero for the name.
    return !name.isEmpty() && !name.contains(u'/') && !name.contains(QChar(0)) && name != QStringLiteral(".")
           && name != QStringLiteral("..");
}

QString make(const QString &path)
{
    try {
        files::makeDirectory(path);
        return {};
    } catch (const Error &error) {
        return error.description;
    }
}

} // namespace panelquestions
