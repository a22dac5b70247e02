#include "base/FileRemoval.h"

#include "base/Error.h"
#include "base/FileCalls.h"
#include "base/OpenFolder.h"
#include "base/Paths.h"
#include "base/SystemCalls.h"

#include <QStringList>

#include <cerrno>
#include <cstring>
#include <optional>
#include <utility>
#include <vector>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace files {
namespace {

/// A folder itself: opening a link fails.
constexpr int folderFlags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;

struct Place
{
    dev_t device = 0;
    ino_t number = 0;

    bool operator==(const Place &) const = default;
};

/// Of an open folder. Throws Error.
Place placeOf(int folder)
{
    struct stat status = {};
    if (fstat(folder, &status) == -1)
        throw errors::fromErrno(errno);
    return {status.st_dev, status.st_ino};
}

/// Throws Error for an open folder of another volume than `device`, or at which a part of that one is mounted: what it holds
/// lies elsewhere as well.
void requireNothingMounted(int folder, dev_t device)
{
    if (placeOf(folder).device != device || systemcalls::isMountPoint(folder, ""))
        throw errors::fromErrno(EXDEV);
}

bool isFolder(int folder, const char *name)
{
    struct stat status = {};
    return fstatat(folder, name, &status, AT_SYMLINK_NOFOLLOW) == 0 && S_ISDIR(status.st_mode);
}

/// True where a folder could not be removed for nothing but what it holds. One that could not go anyway is left whole; it may
/// be the place where another volume, or another part of this one, is mounted.
bool holdsEntries(int removalFailure)
{
    return removalFailure == ENOTEMPTY || removalFailure == EEXIST;
}

bool isOwn(const struct stat &status)
{
    return status.st_uid == geteuid();
}

/// Opens a folder in another one, and one of the user's own that forbids it too, if it is on `device` and nothing is mounted
/// there. Throws Error.
Descriptor openFolder(int parent, const char *name, dev_t device)
{
    const int number = openat(parent, name, folderFlags);
    const int code = errno;
    if (number != -1 || code != EACCES)
        return Descriptor(number);
    struct stat status = {};
    const bool isOpened =
        fstatat(parent, name, &status, AT_SYMLINK_NOFOLLOW) == 0 && isOwn(status) && status.st_dev == device
        && !systemcalls::isMountPoint(parent, name)
        && fchmodat(parent, name, (status.st_mode & ALLPERMS) | S_IRWXU, AT_SYMLINK_NOFOLLOW) == 0;
    if (!isOpened)
        throw errors::fromErrno(code);
    return Descriptor(openat(parent, name, folderFlags));
}

/// A folder that the user has made read-only is no obstacle to removing it: its owner may allow it at any time. Those of
/// others stay as they are.
void allowRemovals(const Descriptor &folder)
{
    struct stat status = {};
    if (fstat(folder.number(), &status) == 0 && isOwn(status) && (status.st_mode & S_IRWXU) != S_IRWXU)
        fchmod(folder.number(), (status.st_mode & ALLPERMS) | S_IRWXU);
}

struct Entry
{
    QByteArray name;
    bool isFolder = false; ///< as far as the listing tells
};

/// All of them at once: a listing from which entries go while it is read may pass some over. Throws Error.
std::vector<Entry> entriesOf(const Descriptor &folder)
{
    const int again = openat(folder.number(), ".", folderFlags); // closing a listing closes its folder
    DIR *listing = again == -1 ? nullptr : fdopendir(again);
    if (!listing) {
        const int code = errno;
        if (again != -1)
            close(again);
        throw errors::fromErrno(code);
    }
    std::vector<Entry> entries;
    while (const dirent *entry = readdir(listing)) { // NOLINT(concurrency-mt-unsafe): on a stream of its own
        if (strcmp(entry->d_name, ".") != 0 && strcmp(entry->d_name, "..") != 0)
            entries.push_back({entry->d_name, entry->d_type == DT_DIR});
    }
    closedir(listing);
    return entries;
}

/// Empties a folder, the deepest first. Only one folder is open at a time, however deep the tree is: the way back up is
/// "..", which is looked at, since somebody may have moved the folder meanwhile.
class Emptying
{
public:
    /// `path` is what a test knows the folder by; `device` is that of the folder around it, which is not left. Throws Error
    /// when the folder can't be listed.
    Emptying(Descriptor folder, QByteArray path, dev_t device)
        : folder_(std::move(folder))
        , path_(std::move(path))
        , device_(device)
    {
        requireNothingMounted(folder_.number(), device_);
        enter({}, {});
    }

    /// Gives the number of the first failure, 0 when there was none. Throws Error when it had to give up.
    int run()
    {
        while (true) {
            if (!levels_.back().folders.empty())
                descend();
            else if (levels_.size() > 1)
                ascend();
            else
                return failure_;
        }
    }

private:
    /// A folder on the way from the tree's root to the one at hand.
    struct Level
    {
        QByteArray name;
        Place place;
        std::vector<QByteArray> folders; ///< that are still in it
    };

    /// Removes all but folders from the folder at hand.
    void enter(const QByteArray &name, std::vector<QByteArray> folders)
    {
        const Place place = placeOf(folder_.number());
        allowRemovals(folder_);
        for (Entry &entry : entriesOf(folder_)) {
            if (entry.isFolder || !removeEntry(entry.name))
                folders.push_back(std::move(entry.name));
        }
        levels_.push_back({name, place, std::move(folders)});
    }

    /// False, with errno set, when it stays.
    bool remove(const QByteArray &name, int flags)
    {
        if (faults() && fails(Operation::remove, paths::fromBytes(path_ + '/' + name)))
            return false;
        return unlinkat(folder_.number(), name.constData(), flags) == 0;
    }

    /// False for a folder that was not to be one.
    bool removeEntry(const QByteArray &name)
    {
        if (remove(name, 0))
            return true;
        const int code = errno;
        if ((code == EISDIR || code == EPERM) && isFolder(folder_.number(), name.constData()))
            return false;
        note(code);
        return true;
    }

    void descend()
    {
        const QByteArray name = std::move(levels_.back().folders.back());
        levels_.back().folders.pop_back();
        if (remove(name, AT_REMOVEDIR))
            return;
        if (!holdsEntries(errno)) {
            note(errno);
            return;
        }
        try {
            enterFolder(name);
        } catch (const Error &error) {
            note(error.code);
        }
    }

    /// Throws Error, and stays in the folder at hand.
    void enterFolder(const QByteArray &name)
    {
        if (faults() && fails(Operation::open, paths::fromBytes(path_ + '/' + name)))
            throw errors::fromErrno(errno);
        Descriptor child = openFolder(folder_.number(), name.constData(), device_);
        requireNothingMounted(child.number(), device_);
        std::swap(folder_, child);
        path_ += '/' + name;
        try {
            enter(name, {});
        } catch (const Error &) {
            std::swap(folder_, child);
            path_.chop(name.size() + 1);
            throw;
        }
    }

    void ascend()
    {
        const QByteArray name = levels_.back().name;
        levels_.pop_back();
        folder_ = Descriptor(openat(folder_.number(), "..", folderFlags));
        if (placeOf(folder_.number()) != levels_.back().place)
            throw errors::fromErrno(EBUSY);
        path_.chop(name.size() + 1);
        if (!remove(name, AT_REMOVEDIR))
            note(errno);
    }

    void note(int code)
    {
        if (failure_ == 0 && code != ENOENT) // what has gone by itself is no failure
            failure_ = code;
    }

    Descriptor folder_; // the one at hand
    QByteArray path_;
    const dev_t device_;
    std::vector<Level> levels_;
    int failure_ = 0;
};

/// Without slashes at the end, which would lead through a link. Throws Error for what names no entry of a folder.
QByteArray entryName(const QString &path)
{
    QByteArray name = native(path);
    while (name.endsWith('/'))
        name.chop(1);
    const QByteArray last = name.mid(name.lastIndexOf('/') + 1);
    if (last.isEmpty() || last == "." || last == "..")
        throw errors::fromErrno(path.isEmpty() ? ENOENT : EINVAL);
    return name;
}

/// The folder that holds the entry.
QByteArray folderOf(const QByteArray &path)
{
    const qsizetype slash = path.lastIndexOf('/');
    return slash == -1 ? QByteArray(".") : path.first(slash + 1);
}

/// The device of the folder around an entry. Throws Error.
dev_t deviceAround(int folder, const QByteArray &name)
{
    struct stat status = {};
    if (fstatat(folder, folderOf(name).constData(), &status, 0) == -1)
        throw errors::fromErrno(errno);
    return status.st_dev;
}

/// Removes the entry `name`, which may be a path below `folder`. A test knows it by `path`. Throws Error.
void removeAt(int folder, const QByteArray &name, const QByteArray &path)
{
    if (faults() && fails(Operation::remove, paths::fromBytes(path)))
        throw errors::fromErrno(errno);
    if (!isFolder(folder, name.constData())) {
        if (unlinkat(folder, name.constData(), 0) == -1)
            throw errors::fromErrno(errno);
        return;
    }
    if (unlinkat(folder, name.constData(), AT_REMOVEDIR) == 0)
        return;
    if (!holdsEntries(errno))
        throw errors::fromErrno(errno);
    const dev_t device = deviceAround(folder, name);
    const int failure = Emptying(openFolder(folder, name.constData(), device), path, device).run();
    if (failure != 0)
        throw errors::fromErrno(failure);
    if (unlinkat(folder, name.constData(), AT_REMOVEDIR) == -1)
        throw errors::fromErrno(errno);
}

} // namespace

void removeTree(const QString &path)
{
    const QByteArray name = entryName(path);
    removeAt(AT_FDCWD, name, name);
}

void removeTree(const OpenFolder &folder, const QString &relative)
{
    QStringList names = relative.split(u'/');
    const QByteArray last = entryName(names.takeLast());
    const dev_t device = placeOf(folder.number()).device;
    std::optional<OpenFolder> inner;
    for (const QString &name : std::as_const(names)) {
        inner = (inner ? *inner : folder).inner(name);
        requireNothingMounted(inner->number(), device);
    }
    removeAt((inner ? *inner : folder).number(), last, paths::toBytes(paths::join(folder.path(), relative)));
}

} // namespace files
