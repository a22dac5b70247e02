#include "platform/linux/JsonSettingsFile.h"

#include "base/Error.h"
#include "base/Files.h"

#include <QIODevice>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLockFile>

#include <cerrno>
#include <optional>

namespace {

constexpr qint64 mostContent = 16 << 20; // bytes; ours is some hundred
constexpr int lockIsStale = 1000;        // milliseconds; a write takes some
constexpr int mostNames = 1000;          // of files moved aside, before we give up

std::optional<QJsonObject> parsed(const QByteArray &content)
{
    if (content.size() > mostContent)
        return std::nullopt;
    const QJsonDocument document = QJsonDocument::fromJson(content);
    return document.isObject() ? std::optional(document.object()) : std::nullopt;
}

bool readSettings(QIODevice &device, QSettings::SettingsMap &settings)
{
    if (!device.isOpen()) // there is no file yet
        return true;
    const auto object = parsed(device.read(mostContent + 1));
    if (object)
        settings = object->toVariantMap();
    return object.has_value();
}

bool writeSettings(QIODevice &device, const QSettings::SettingsMap &settings)
{
    const QByteArray content = QJsonDocument(QJsonObject::fromVariantMap(settings)).toJson();
    return device.write(content) == content.size();
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

} // namespace

namespace jsonsettings {

QSettings::Format format()
{
    static const QSettings::Format registered =
        QSettings::registerFormat(QStringLiteral("json"), readSettings, writeSettings);
    return registered;
}

bool moveAsideIfDamaged(const QString &path)
{
    if (!files::attributes(path))
        return true;
    if (!files::exists(path)) // a link to a file that is yet to be made
        return true;
    const auto content = files::readPrefix(path, mostContent + 1);
    return (content && parsed(*content)) || moveAside(path);
}

void clearStaleLock(const QString &path)
{
    QLockFile lock(path + QStringLiteral(".lock")); // the one that QSettings takes
    lock.setStaleLockTime(lockIsStale);
    if (lock.tryLock(2 * lockIsStale))
        lock.unlock();
}

} // namespace jsonsettings
