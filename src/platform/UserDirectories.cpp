#include "platform/UserDirectories.h"

#include "base/Paths.h"

#include <QByteArrayList>
#include <QByteArrayView>

#include <algorithm>
#include <array>
#include <optional>

namespace {

/// Bytes of the longest path that the system opens, without the NUL behind it.
constexpr qsizetype longestPath = 4095;

struct Key
{
    QByteArrayView name;
    const char16_t *englishName = nullptr;
    QString UserDirectories::*folder = nullptr;
};

constexpr std::array keys = {
    Key{"XDG_DESKTOP_DIR", u"Desktop", &UserDirectories::desktop},
    Key{"XDG_DOCUMENTS_DIR", u"Documents", &UserDirectories::documents},
    Key{"XDG_DOWNLOAD_DIR", u"Downloads", &UserDirectories::downloads},
    Key{"XDG_MUSIC_DIR", u"Music", &UserDirectories::music},
    Key{"XDG_PICTURES_DIR", u"Pictures", &UserDirectories::pictures},
    Key{"XDG_VIDEOS_DIR", u"Videos", &UserDirectories::videos},
};

/// The text up to the closing quote, its escapes resolved. None when the quote is never closed, or when
/// anything but a comment stands behind it: the shell would take that as part of the word.
std::optional<QByteArray> upToQuote(const QByteArray &quoted)
{
    QByteArray text;
    for (qsizetype i = 0; i < quoted.size(); ++i) {
        if (quoted[i] == '"') {
            const QByteArray rest = quoted.sliced(i + 1).trimmed();
            return rest.isEmpty() || rest.startsWith('#') ? std::optional(text) : std::nullopt;
        }
        if (quoted[i] == '\\' && ++i == quoted.size())
            return std::nullopt;
        text += quoted[i];
    }
    return std::nullopt;
}

/// The components of a path with one slash between them and none at the ends, without ".". None for what
/// no folder can be told by: ".." (where it leads is known to the disk alone) and NUL.
std::optional<QByteArray> tidied(const QByteArray &path)
{
    if (path.contains('\0'))
        return std::nullopt;
    QByteArrayList kept;
    for (const QByteArray &component : path.split('/')) {
        if (component == "..")
            return std::nullopt;
        if (!component.isEmpty() && component != ".")
            kept.append(component);
    }
    return kept.join('/');
}

/// The folder of a line's value: a path, an empty text when it is switched off, none when the value is
/// unusable. "$HOME" counts only where it begins the value, unescaped, as a whole component.
std::optional<QString> folderOf(const QByteArray &value, const QString &home)
{
    static constexpr QByteArrayView quotedHome = "\"$HOME";
    const bool isBelowHome = value.startsWith(quotedHome);
    const std::optional<QByteArray> text =
        value.startsWith('"') ? upToQuote(value.sliced(isBelowHome ? quotedHome.size() : 1)) : std::nullopt;
    if (!text || !(text->startsWith('/') || (isBelowHome && text->isEmpty())))
        return std::nullopt;
    const std::optional<QByteArray> components = tidied(*text);
    if (!components)
        return std::nullopt;
    if (isBelowHome && components->isEmpty())
        return QString();
    const QString folder =
        paths::join(isBelowHome ? home : QStringLiteral("/"), paths::fromBytes(*components));
    if (paths::toBytes(folder).size() > longestPath)
        return std::nullopt;
    return paths::isAtOrBelow(home, folder) ? QString() : folder;
}

} // namespace

UserDirectories parseUserDirectories(const QByteArray &userDirsFile, const QString &home)
{
    UserDirectories directories;
    for (const Key &key : keys)
        directories.*key.folder = paths::join(home, QString::fromUtf16(key.englishName));
    for (const QByteArray &line : userDirsFile.split('\n')) {
        const qsizetype equals = line.indexOf('=');
        if (equals < 0)
            continue;
        const QByteArray name = line.first(equals).trimmed();
        const auto key = std::find_if(keys.begin(), keys.end(),
                                      [&name](const Key &candidate) { return candidate.name == name; });
        if (key == keys.end())
            continue;
        if (const std::optional<QString> folder = folderOf(line.sliced(equals + 1).trimmed(), home))
            directories.*key->folder = *folder;
    }
    return directories;
}
