#include "base/OpenFolder.h"

#include "base/Error.h"
#include "base/Paths.h"
#include "base/SystemCalls.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace files {
namespace {

constexpr int openFlags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;

/// Empty, which names nothing, for what is no name of an entry.
QByteArray nameInside(const QString &name)
{
    if (name == u"." || name == u".." || name.contains(u'/'))
        return {};
    return native(name);
}

/// Without slashes at the end, which would lead through a link.
QByteArray withoutSlashes(const QString &path)
{
    QByteArray bytes = native(path);
    while (bytes.size() > 1 && bytes.endsWith('/'))
        bytes.chop(1);
    return bytes;
}

} // namespace

OpenFolder::OpenFolder(const QString &path)
    : path_(path)
    , folder_(open(withoutSlashes(path).constData(), openFlags))
{
}

OpenFolder::OpenFolder(const Descriptor &parent, const QString &name, const QString &path)
    : path_(path)
    , folder_(openat(parent.number(), nameInside(name).constData(), openFlags))
{
}

OpenFolder OpenFolder::inner(const QString &name) const
{
    return {folder_, name, paths::join(path_, name)};
}

std::optional<OpenFolder::Entry> OpenFolder::find(const QString &name) const
{
    struct stat status = {};
    if (fstatat(number(), nameInside(name).constData(), &status, AT_SYMLINK_NOFOLLOW) == -1)
        return std::nullopt;
    return Entry{{static_cast<quint64>(status.st_dev), static_cast<quint64>(status.st_ino)},
                 systemcalls::modificationDate(status)};
}

bool OpenFolder::isGone(const QString &name) const
{
    const QByteArray bytes = nameInside(name);
    struct stat status = {};
    return !bytes.isEmpty() && fstatat(number(), bytes.constData(), &status, AT_SYMLINK_NOFOLLOW) == -1
           && errno == ENOENT;
}

void OpenFolder::remove(const QString &name) const
{
    if (unlinkat(number(), nameInside(name).constData(), 0) == -1)
        throw errors::fromErrno(errno);
}

} // namespace files
