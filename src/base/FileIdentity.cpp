#include "base/FileIdentity.h"

#include "base/Paths.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>

namespace {

files::Identity identityOf(const struct stat &status)
{
    return {static_cast<quint64>(status.st_dev), static_cast<quint64>(status.st_ino)};
}

std::optional<files::Identity> identityAt(const QString &path, int flags)
{
    if (path.contains(QChar::Null)) { // it would cut the path short and name something else
        errno = ENOENT;
        return std::nullopt;
    }
    struct stat status = {};
    if (fstatat(AT_FDCWD, paths::toBytes(path).constData(), &status, flags) != 0)
        return std::nullopt;
    return identityOf(status);
}

} // namespace

std::optional<files::Identity> files::identity(const QString &path)
{
    return identityAt(path, AT_SYMLINK_NOFOLLOW);
}

std::optional<files::Identity> files::followedIdentity(const QString &path)
{
    return identityAt(path, 0);
}

std::optional<files::Identity> files::openIdentity(int descriptor)
{
    struct stat status = {};
    return fstat(descriptor, &status) == 0 ? std::optional(identityOf(status)) : std::nullopt;
}
