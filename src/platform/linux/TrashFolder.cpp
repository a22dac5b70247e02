#include "platform/linux/TrashFolder.h"

#include "base/Files.h"
#include "base/Paths.h"
#include "platform/linux/TrashInfo.h"
#include "platform/linux/TrashNames.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <ctime>
#include <iterator>
#include <memory>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr qsizetype longestName = 255; // bytes; file systems that take less report it
constexpr qsizetype temporaryEnd = 7;  // bytes that the library puts behind a note's name while it writes it

bool isThere(const QString &path)
{
    return files::attributes(path).has_value();
}

/// The name that the library gives to the item of that name that comes `number`th, counted from 1.
QString numberedName(const QString &name, int number)
{
    if (number == 1)
        return name;
    const qsizetype dot = name.indexOf(u'.');
    const qsizetype stem = dot < 0 ? name.size() : dot;
    return name.first(stem) + u'.' + QString::number(number) + name.sliced(stem);
}

/// The same, cut so that the note's name fits as well.
QString fittingName(const QString &name, int number)
{
    const qsizetype room = longestName - trashnames::noteSuffix.size();
    QString numbered = numberedName(name, number);
    if (paths::toBytes(numbered).size() <= room)
        return numbered;
    const QString end = u'.' + QString::number(number);
    QByteArray cut = paths::toBytes(name).first(std::min(paths::toBytes(name).size(), room) - end.size());
    // Not within a character: at most three bytes follow its first.
    for (int i = 0; i < 3 && (static_cast<uchar>(paths::toBytes(name)[cut.size()]) & 0xC0) == 0x80; ++i)
        cut.chop(1);
    return paths::fromBytes(cut) + end;
}

/// The path with all links resolved. Empty when nothing is there.
QString resolved(const QString &path)
{
    const std::unique_ptr<char, decltype(&std::free)> real(
        realpath(paths::toBytes(path).constData(), nullptr), std::free);
    return real ? paths::fromBytes(real.get()) : QString();
}

/// The root of the volume `device`, on which a folder is whose path contains no links.
QString volumeRoot(const QString &folder, quint64 device)
{
    QString root = folder;
    while (root != u"/") {
        const auto above = files::identity(paths::parent(root));
        if (!above || above->device != device)
            break;
        root = paths::parent(root);
    }
    return root;
}

bool isOwnFolder(const QString &path)
{
    struct stat status = {};
    return lstat(paths::toBytes(path).constData(), &status) == 0 && S_ISDIR(status.st_mode)
           && status.st_uid == geteuid();
}

/// The folder in which all users have theirs. It must be sticky, else one could take away another's.
bool isCommonFolder(const QString &path)
{
    struct stat status = {};
    return lstat(paths::toBytes(path).constData(), &status) == 0 && S_ISDIR(status.st_mode)
           && (status.st_mode & S_ISVTX) != 0;
}

/// Makes a folder of the user's alone, and those above it that are missing.
void makePrivateFolders(const QString &path)
{
    if (mkdir(paths::toBytes(path).constData(), 0700) == 0 || (errno == EEXIST && files::isDirectory(path)))
        return;
    if (errno != ENOENT || path == u"/")
        throw errors::fromErrno(errno);
    makePrivateFolders(paths::parent(path));
    if (mkdir(paths::toBytes(path).constData(), 0700) == -1 && errno != EEXIST)
        throw errors::fromErrno(errno);
}

/// Writes a file of the user's alone. `flags` are those of `open`. Throws Error (the system's), and leaves none behind then
/// that was to be made.
void writeFile(const QString &path, int flags, const QByteArray &content)
{
    const int file = open(paths::toBytes(path).constData(), O_WRONLY | O_CLOEXEC | O_NOFOLLOW | flags, 0600);
    if (file == -1)
        throw errors::fromErrno(errno);
    errno = ENOSPC; // a short write reports nothing; what it lacks is room
    int failure =
        write(file, content.constData(), static_cast<size_t>(content.size())) == content.size() ? 0 : errno;
    // A network's or a quota's refusal may come as late as here.
    if (close(file) == -1 && failure == 0)
        failure = errno;
    if (failure == 0)
        return;
    if ((flags & O_EXCL) != 0) // what was made here; another's file is never opened
        unlink(paths::toBytes(path).constData());
    throw errors::fromErrno(failure);
}

} // namespace

TrashFolder::TrashFolder(QString path, QString top)
    : path_(std::move(path))
    , top_(std::move(top))
{
}

TrashFolder TrashFolder::ofHome(const QString &dataFolder)
{
    return {paths::join(dataFolder, QStringLiteral("Trash")), {}};
}

std::optional<TrashFolder> TrashFolder::ofVolume(const QString &item, quint64 device)
{
    const QString folder = resolved(paths::parent(item));
    if (folder.isEmpty())
        return std::nullopt;
    const QString root = volumeRoot(folder, device);
    const QString user = QString::number(geteuid());
    const QString common = paths::join(root, QStringLiteral(".Trash"));
    if (isCommonFolder(common) && isOwnFolder(paths::join(common, user)))
        return TrashFolder(paths::join(common, user), root);
    const QString own = paths::join(root, QStringLiteral(".Trash-") + user);
    if (isOwnFolder(own))
        return TrashFolder(own, root);
    return std::nullopt;
}

bool TrashFolder::isLink() const
{
    const QString parts[] = {path_, paths::join(path_, trashnames::items),
                             paths::join(path_, trashnames::notes)};
    return std::any_of(std::begin(parts), std::end(parts), [](const QString &part) {
        const auto attributes = files::attributes(part);
        return attributes && attributes->kind == files::Kind::link;
    });
}

std::optional<TrashFolder::Entry> TrashFolder::find(const QString &name,
                                                    const files::Identity &identity) const
{
    for (int number = 1;; ++number) {
        Entry place = entry(numberedName(name, number));
        if (files::identity(place.file) == identity)
            return place;
        if (!isThere(place.info)) // the library takes the first name without a note, unless it shortens it
            return findAmongAll(identity);
    }
}

bool TrashFolder::mightReplace(const QString &name) const
{
    for (int number = 1;; ++number) {
        const QString numbered = numberedName(name, number);
        if (paths::toBytes(numbered).size() > longestName - trashnames::noteSuffix.size() - temporaryEnd)
            return true;
        const Entry place = entry(numbered);
        if (!isThere(place.info))
            return isThere(place.file);
    }
}

TrashFolder::Entry TrashFolder::reserve(const QString &item) const
{
    makePrivateFolders(paths::join(path_, trashnames::items));
    makePrivateFolders(paths::join(path_, trashnames::notes));
    const QByteArray content = note(item);
    for (int number = 1;; ++number) {
        Entry place = entry(fittingName(paths::lastComponent(item), number));
        if (isThere(place.file))
            continue;
        try {
            writeFile(place.info, O_CREAT | O_EXCL, content);
            return place;
        } catch (const Error &error) {
            if (error.code != EEXIST)
                throw;
        }
    }
}

void TrashFolder::mend(const Entry &entry, const QString &item) const
{
    const auto attributes = files::attributes(entry.info);
    if (!attributes || attributes->size == 0)
        writeFile(entry.info, O_CREAT | O_TRUNC, note(item));
}

void TrashFolder::release(const Entry &entry)
{
    unlink(paths::toBytes(entry.info).constData());
}

TrashFolder::Entry TrashFolder::entry(const QString &name) const
{
    return {paths::join(paths::join(path_, trashnames::items), name),
            paths::join(paths::join(path_, trashnames::notes), name + trashnames::noteSuffix)};
}

std::optional<TrashFolder::Entry> TrashFolder::findAmongAll(const files::Identity &identity) const
{
    const auto names = files::list(paths::join(path_, trashnames::items));
    for (const QString &name : names.value_or(std::vector<QString>())) {
        Entry place = entry(name);
        if (files::identity(place.file) == identity)
            return place;
    }
    return std::nullopt;
}

QByteArray TrashFolder::note(const QString &item) const
{
    if (top_.isEmpty())
        return trashinfo::text(paths::toBytes(item), std::time(nullptr));
    const QString real = paths::join(resolved(paths::parent(item)), paths::lastComponent(item));
    const auto relative = paths::below(real, top_);
    if (!relative) // its folder has gone or leads to another place by now
        throw errors::fromErrno(ENOENT);
    return trashinfo::text(paths::toBytes(*relative), std::time(nullptr));
}
