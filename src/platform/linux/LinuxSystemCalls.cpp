#include "base/SystemCalls.h"

#include <cerrno>
#include <cstdio>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

files::Kind kindOf(unsigned mode)
{
    if (S_ISREG(mode))
        return files::Kind::file;
    if (S_ISDIR(mode))
        return files::Kind::directory;
    return S_ISLNK(mode) ? files::Kind::link : files::Kind::other;
}

/// The hidden attribute of this system is a leading dot.
bool hasHiddenName(const char *path)
{
    const char *slash = strrchr(path, '/');
    return (slash ? slash[1] : path[0]) == '.';
}

std::optional<files::Extent> extent(int directory, const char *path, int flags)
{
    struct stat status = {};
    if (fstatat(directory, path, &status, flags | AT_NO_AUTOMOUNT) == -1)
        return std::nullopt;
    return files::Extent{kindOf(status.st_mode), status.st_size, hasHiddenName(path)};
}

} // namespace

namespace systemcalls {

std::optional<files::Attributes> entryAttributes(int directory, const char *path)
{
    struct statx status = {};
    // No AT_STATX_SYNC flags: what a network mount has cached is good enough, as with stat.
    if (statx(directory, path, AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT, STATX_BASIC_STATS | STATX_BTIME,
              &status)
        == -1)
        return std::nullopt;
    files::Attributes attributes;
    attributes.kind = kindOf(status.stx_mode);
    attributes.size = static_cast<qint64>(status.stx_size);
    attributes.modified = dates::fromUnix(status.stx_mtime.tv_sec, status.stx_mtime.tv_nsec);
    if (status.stx_mask & STATX_BTIME)
        attributes.created = dates::fromUnix(status.stx_btime.tv_sec, status.stx_btime.tv_nsec);
    attributes.isHidden = hasHiddenName(path);
    return attributes;
}

std::optional<files::Extent> entryExtent(int directory, const char *path)
{
    return extent(directory, path, AT_SYMLINK_NOFOLLOW);
}

std::optional<files::Extent> followedExtent(int directory, const char *path)
{
    return extent(directory, path, 0);
}

bool isMountPoint(int directory, const char *path)
{
    struct statx status = {};
    const int flags = AT_EMPTY_PATH | AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT;
    return statx(directory, path, flags, STATX_TYPE, &status) == 0
           && (status.stx_attributes & STATX_ATTR_MOUNT_ROOT) != 0; // never set by kernels before 5.8
}

Date modificationDate(const struct stat &status)
{
    return dates::fromUnix(status.st_mtim.tv_sec, status.st_mtim.tv_nsec);
}

void expectReading(int descriptor, qint64 offset, qint64 count)
{
    posix_fadvise(descriptor, offset, count,
                  POSIX_FADV_WILLNEED); // advice: whether it is taken does not matter
}

int renameWithoutReplacing(const char *from, const char *to)
{
    return renameat2(AT_FDCWD, from, AT_FDCWD, to, RENAME_NOREPLACE) == 0 ? 0 : errno;
}

int openPipe(int (&ends)[2])
{
    return pipe2(ends, O_CLOEXEC);
}

} // namespace systemcalls
