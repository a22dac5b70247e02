#include "base/AtomicWrite.h"

#include "base/Error.h"
#include "base/FileCalls.h"
#include "base/FileIdentity.h"
#include "base/Paths.h"
#include "base/Sha256.h"

#include <QScopeGuard>

#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace files {
namespace {

constexpr int mostNames = 10; // of temporary files, before we give up

/// A file that is being written beside the one that it will replace.
struct TemporaryFile
{
    QString path;
    Descriptor file;
};

/// The name of `path`'s temporary file. It is the same each time, so that killed writers leave one at most; `number` is
/// above 0 only where the first is not to be had. Not the file's own name, which may be as long as a name can be.
QString temporaryPath(const QString &path, int number)
{
    const QString digest = Sha256().hex(paths::toBytes(paths::lastComponent(path))).left(16);
    const QString name = QStringLiteral(".quillmere-%1-%2").arg(digest).arg(number);
    return paths::join(paths::parent(path), name);
}

/// True when the lock is ours, and where the file system has none. The system takes it from whoever dies.
bool isLocked(const Descriptor &file)
{
    return flock(file.number(), LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

/// True when the open file still lies at `path`.
bool isAt(const Descriptor &file, const QString &path)
{
    const auto opened = openIdentity(file.number());
    return opened && opened == identity(path);
}

/// Takes away what a killed writer has left at `path`. False when it stays: a living one writes it, or it is no file to
/// be removed. A writer's own file can always be opened, so that what can't be (a link, a file without permissions) is
/// nobody's.
bool removeLeftOver(const QString &path)
{
    const QByteArray name = native(path);
    const int number = open(name.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY | O_NOFOLLOW);
    if (number == -1)
        return unlink(name.constData()) == 0;
    const Descriptor leftOver(number);
    // With the lock held, nobody else takes it for a left-over, and no writer renames it.
    return isLocked(leftOver) && isAt(leftOver, path) && unlink(name.constData()) == 0;
}

/// None where the name is taken by what stays.
std::optional<TemporaryFile> makeTemporary(const QString &path)
{
    const auto make = [name = native(path)] {
        return open(name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR);
    };
    int number = make();
    if (number == -1 && errno == EEXIST) {
        if (!removeLeftOver(path))
            return std::nullopt;
        number = make();
        if (number == -1 && errno == EEXIST)
            return std::nullopt;
    }
    Descriptor file(number);
    // Another writer may have taken it for a left-over before it was locked.
    if (!isLocked(file) || !isAt(file, path))
        return std::nullopt;
    return TemporaryFile{path, std::move(file)};
}

TemporaryFile makeTemporaryOf(const QString &path)
{
    if (fails(Operation::open, path))
        throw errors::fromErrno(errno);
    for (int i = 0; i < mostNames; ++i) {
        if (auto made = makeTemporary(temporaryPath(path, i)))
            return std::move(*made);
    }
    throw errors::fromErrno(EBUSY);
}

/// The permissions for what is to replace `path`.
mode_t permissionsFor(const QString &path)
{
    struct stat old = {};
    const bool replaces = lstat(native(path).constData(), &old) == 0 && S_ISREG(old.st_mode);
    return (replaces ? old.st_mode & 0777U : 0U) | S_IRUSR | S_IWUSR;
}

/// Writes all of `content`; `path` is only what a test knows the file by. Throws Error.
void writeWhole(const Descriptor &file, const QString &path, QByteArrayView content)
{
    constexpr qsizetype mostAtOnce = 65536;
    while (!content.isEmpty()) {
        if (fails(Operation::write, path))
            throw errors::fromErrno(errno);
        const auto wanted = static_cast<size_t>(std::min(content.size(), mostAtOnce));
        const ssize_t count = write(file.number(), content.data(), wanted);
        if (count == -1 && errno == EINTR)
            continue;
        if (count == -1)
            throw errors::fromErrno(errno);
        content = content.sliced(count);
    }
}

/// Makes a rename in `folder` last through a loss of power. The file is in its place by then, so that a file system
/// which can't do this is no failure.
void syncFolder(const QString &folder)
{
    const int descriptor = open(native(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor == -1)
        return;
    fsync(descriptor);
    close(descriptor);
}

} // namespace

void writeAtomically(const QString &path, const QByteArray &content)
{
    const TemporaryFile temporary = makeTemporaryOf(path);
    const QByteArray name = native(temporary.path);
    auto removing = qScopeGuard([&temporary, &name] {
        if (isAt(temporary.file, temporary.path))
            unlink(name.constData());
    });
    fchmod(temporary.file.number(), permissionsFor(path)); // a file system that keeps no such bits may refuse
    writeWhole(temporary.file, path, content);
    if (fails(Operation::sync, path) || fsync(temporary.file.number()) == -1)
        throw errors::fromErrno(errno);
    if (fails(Operation::rename, path))
        throw errors::fromErrno(errno);
    // Without its lock another writer may have taken it for a left-over and begun its own under the name.
    if (!isAt(temporary.file, temporary.path))
        throw errors::fromErrno(EBUSY);
    if (rename(name.constData(), native(path).constData()) == -1)
        throw errors::fromErrno(errno);
    removing.dismiss();
    syncFolder(paths::parent(path));
}

} // namespace files
