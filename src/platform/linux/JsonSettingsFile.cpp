#include "platform/linux/JsonSettingsFile.h"

#include "base/AtomicWrite.h"
#include "base/Error.h"
#include "base/Files.h"
#include "base/Paths.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <cerrno>

namespace {

constexpr qint64 mostContent = 16 << 20; // bytes; ours is some hundred
constexpr int mostNames = 1000;          // of files moved aside, before we give up
constexpr int mostLinks = 40;            // as many as the system follows

std::optional<QVariantMap> parsed(const QByteArray &content)
{
    if (content.size() > mostContent)
        return std::nullopt;
    const QJsonDocument document = QJsonDocument::fromJson(content);
    return document.isObject() ? std::optional(document.object().toVariantMap()) : std::nullopt;
}

/// False when the file is still at `path`.
bool moveAside(const QString &path)
{
    const QString aside = path + QStringLiteral(".damaged");
    for (int i = 1; i <= mostNames; ++i) {
        try {
            files::move(path, i == 1 ? aside : aside + QStringLiteral("-%1").arg(i));
            return true;
        } catch (const Error &error) {
            if (error.code != EEXIST)
                return error.code == ENOENT; // another process has just moved it
        }
    }
    return false;
}

/// Where the links at `path` lead, whether something is there or not.
QString followed(QString path)
{
    for (int i = 0; i < mostLinks; ++i) {
        const auto target = files::linkTarget(path);
        if (!target)
            break;
        path = target->startsWith(u'/') ? *target : paths::join(paths::parent(path), *target);
    }
    return path;
}

} // namespace

namespace jsonsettings {

std::optional<QVariantMap> read(const QString &path)
{
    // Nothing, or a link to a file that is yet to be made.
    if (!files::attributes(path) || !files::exists(path))
        return QVariantMap();
    const auto content = files::readPrefix(path, mostContent + 1);
    if (auto values = content ? parsed(*content) : std::nullopt)
        return values;
    return moveAside(path) ? std::optional(QVariantMap()) : std::nullopt;
}

bool write(const QString &path, const QVariantMap &values)
{
    const QByteArray content = QJsonDocument(QJsonObject::fromVariantMap(values)).toJson();
    if (content.size() > mostContent) // it could not be read again
        return false;
    try {
        const QString file = followed(path);
        files::makeDirectories(paths::parent(file));
        files::writeAtomically(file, content);
        return true;
    } catch (const Error &) {
        return false;
    }
}

} // namespace jsonsettings
