#include "base/FileIdentity.h"

#include "base/Paths.h"

#include <fcntl.h>
#include <sys/stat.h>

namespace {

std::optional<files::Identity> identityOf(const QString &path, int flags)
{
    struct stat status = {};
    // A NUL would cut the path short and name something else.
    if (path.contains(QChar::Null)
        || fstatat(AT_FDCWD, paths::toBytes(path).constData(), &status, flags) != 0)
        return std::nullopt;
    return files::Identity{static_cast<quint64>(status.st_dev), static_cast<quint64>(status.st_ino)};
}

} // namespace

std::optional<files::Identity> files::identity(const QString &path)
{
    return identityOf(path, AT_SYMLINK_NOFOLLOW);
}

std::optional<files::Identity> files::followedIdentity(const QString &path)
{
    return identityOf(path, 0);
}
