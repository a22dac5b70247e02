#include "base/FileRemoval.h"

#include "base/Error.h"
#include "base/FileCalls.h"
#include "base/Paths.h"

#include <cerrno>
#include <cstring>
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
Place placeOf(const Descriptor &folder)
{
    struct stat status = {};
    if (fstat(folder.number(), &status) == -1)
        throw errors::fromErrno(errno);
    return {status.st_dev, status.st_ino};
}

bool isFolder(int folder, const char *name)
{
    struct stat status = {};
    return fstatat(folder, name, &status, AT_SYMLINK_NOFOLLOW) == 0 && S_ISDIR(status.st_mode);
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
    /// `path` is what a test knows the folder by. Throws Error when the folder can't be listed.
    Emptying(Descriptor folder, QByteArray path)
        : folder_(std::move(folder))
        , path_(std::move(path))
        , device_(placeOf(folder_).device)
    {
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
        const Place place = placeOf(folder_);
        for (Entry &entry : entriesOf(folder_)) {
            if (entry.isFolder || !removeEntry(entry.name, 0))
                folders.push_back(std::move(entry.name));
        }
        levels_.push_back({name, place, std::move(folders)});
    }

    /// False for a folder that was not to be one.
    bool removeEntry(const QByteArray &name, int flags)
    {
        const bool isMeantToFail = faults() && fails(Operation::remove, paths::fromBytes(path_ + '/' + name));
        if (!isMeantToFail && unlinkat(folder_.number(), name.constData(), flags) == 0)
            return true;
        const int code = errno;
        if (flags == 0 && (code == EISDIR || code == EPERM) && isFolder(folder_.number(), name.constData()))
            return false;
        note(code);
        return true;
    }

    void descend()
    {
        const QByteArray name = std::move(levels_.back().folders.back());
        levels_.back().folders.pop_back();
        try {
            Descriptor child(openat(folder_.number(), name.constData(), folderFlags));
            if (placeOf(child).device != device_)
                throw errors::fromErrno(EXDEV);
            std::swap(folder_, child);
            path_ += '/' + name;
            try {
                enter(name, {});
            } catch (const Error &) {
                std::swap(folder_, child);
                path_.chop(name.size() + 1);
                throw;
            }
        } catch (const Error &error) {
            // One that can't be read may be empty all the same.
            if (error.code == EXDEV || unlinkat(folder_.number(), name.constData(), AT_REMOVEDIR) == -1)
                note(error.code);
        }
    }

    void ascend()
    {
        const QByteArray name = levels_.back().name;
        levels_.pop_back();
        folder_ = Descriptor(openat(folder_.number(), "..", folderFlags));
        if (placeOf(folder_) != levels_.back().place)
            throw errors::fromErrno(EBUSY);
        path_.chop(name.size() + 1);
        removeEntry(name, AT_REMOVEDIR);
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

} // namespace

void removeTree(const QString &path)
{
    const QByteArray name = entryName(path);
    if (fails(Operation::remove, path))
        throw errors::fromErrno(errno);
    if (!isFolder(AT_FDCWD, name.constData())) {
        if (unlink(name.constData()) == -1)
            throw errors::fromErrno(errno);
        return;
    }
    if (rmdir(name.constData()) == 0)
        return;
    const int failure = Emptying(Descriptor(open(name.constData(), folderFlags)), name).run();
    if (failure != 0)
        throw errors::fromErrno(failure);
    if (rmdir(name.constData()) == -1)
        throw errors::fromErrno(errno);
}

} // namespace files
