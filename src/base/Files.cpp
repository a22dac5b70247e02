#include "base/Files.h"

#include "base/Error.h"
#include "base/FileCalls.h"
#include "base/Paths.h"
#include "base/SystemCalls.h"

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace files {
namespace {

/// Without waiting, since a pipe would wait for a writer; without becoming the terminal of the process.
constexpr int readingFlags = O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY;

/// A regular file. A pipe or device is refused, since opening or reading it could wait for ever.
Descriptor openToRead(const QString &path)
{
    Descriptor file(fails(Operation::open, path) ? -1 : open(native(path).constData(), readingFlags));
    struct stat status = {};
    if (fstat(file.number(), &status) == -1)
        throw errors::fromErrno(errno);
    if (!S_ISREG(status.st_mode))
        throw errors::fromErrno(EINVAL);
    return file;
}

/// At most `most` bytes from where the file stands. Throws Error.
QByteArray readUpTo(const Descriptor &file, qint64 most)
{
    QByteArray content;
    char chunk[16384];
    while (content.size() < most) {
        const auto wanted = static_cast<size_t>(std::min<qint64>(most - content.size(), sizeof chunk));
        const ssize_t count = read(file.number(), chunk, wanted);
        if (count == -1 && errno == EINTR)
            continue;
        if (count == -1)
            throw errors::fromErrno(errno);
        if (count == 0)
            break;
        content.append(chunk, count);
    }
    return content;
}

/// For file systems that know no exclusive rename (some FUSE and network mounts). A hard link is exclusive too; where
/// that is refused as well (folders, no links) a look right before the rename is all there is, which leaves a moment in
/// which another program's new file would be replaced. 0, or the error number.
int renameAfterLook(const char *from, const char *to)
{
    if (link(from, to) == 0) {
        if (unlink(from) == 0)
            return 0;
        const int code = errno;
        unlink(to); // else the entry would be there twice
        return code;
    }
    if (errno == EEXIST)
        return EEXIST;
    struct stat status = {};
    if (lstat(to, &status) == 0)
        return EEXIST;
    return rename(from, to) == 0 ? 0 : errno;
}

std::optional<struct stat> followed(const QString &path)
{
    struct stat status = {};
    if (fails(Operation::attributes, path) || stat(native(path).constData(), &status) == -1)
        return std::nullopt;
    return status;
}

} // namespace

std::optional<Attributes> attributes(const QString &path)
{
    if (fails(Operation::attributes, path))
        return std::nullopt;
    return systemcalls::entryAttributes(AT_FDCWD, native(path).constData());
}

bool exists(const QString &path)
{
    return followed(path).has_value();
}

std::optional<QString> realPath(const QString &path)
{
    const std::unique_ptr<char, decltype(&std::free)> real(
        ::realpath(paths::toBytes(path).constData(), nullptr), std::free);
    return real ? std::optional(paths::fromBytes(real.get())) : std::nullopt;
}

bool isDirectory(const QString &path)
{
    const auto status = followed(path);
    return status && S_ISDIR(status->st_mode);
}

std::optional<QString> linkTarget(const QString &path)
{
    char target[PATH_MAX];
    const ssize_t length = readlink(native(path).constData(), target, sizeof target);
    return length == -1 ? std::nullopt : std::optional(paths::fromBytes({target, length}));
}

std::optional<std::vector<QString>> list(const QString &folder)
{
    DirectoryReader reader(folder);
    if (!reader.isOpen())
        return std::nullopt;
    std::vector<QString> names;
    while (reader.next())
        names.push_back(paths::fromBytes(reader.name()));
    if (reader.hasFailed())
        return std::nullopt;
    return names;
}

std::optional<QByteArray> readPrefix(const QString &path, qint64 most)
{
    try {
        const Descriptor file = openToRead(path);
        return readUpTo(file, most);
    } catch (const Error &) {
        return std::nullopt;
    }
}

QByteArray readAll(const QString &path, qint64 most)
{
    const Descriptor file = openToRead(path);
    struct stat status = {};
    if (fstat(file.number(), &status) == -1)
        throw errors::fromErrno(errno);
    if (status.st_size > most)
        throw errors::fromErrno(EFBIG);
    QByteArray content = readUpTo(file, most + 1); // one more, since it may be growing
    if (content.size() > most)
        throw errors::fromErrno(EFBIG);
    return content;
}

void makeDirectory(const QString &path)
{
    if (mkdir(native(path).constData(), 0777) == -1)
        throw errors::fromErrno(errno);
}

void makeDirectories(const QString &path)
{
    if (isDirectory(path))
        return;
    const QString above = paths::parent(path);
    if (!above.isEmpty() && above != path)
        makeDirectories(above);
    if (mkdir(native(path).constData(), 0777) == 0)
        return;
    const int code = errno;
    if (code != EEXIST || !isDirectory(path)) // another thread or program may have made it meanwhile
        throw errors::fromErrno(code);
}

void move(const QString &from, const QString &to)
{
    const QByteArray oldName = native(from);
    const QByteArray newName = native(to);
    int code = fails(Operation::move, from)
                   ? errno
                   : systemcalls::renameWithoutReplacing(oldName.constData(), newName.constData());
    if (code == EINVAL)
        code = renameAfterLook(oldName.constData(), newName.constData());
    if (code != 0)
        throw errors::fromErrno(code);
}

DirectoryReader::DirectoryReader(const QString &folder)
    : folder_(folder)
    , directory_(fails(Operation::list, folder) ? nullptr : opendir(native(folder).constData()))
{
}

DirectoryReader::~DirectoryReader()
{
    if (directory_)
        closedir(directory_);
}

bool DirectoryReader::next()
{
    if (!directory_)
        return false;
    do {
        errno = 0;
        if (faults() && fails(Operation::next, folder_))
            entry_ = nullptr;
        else
            entry_ = readdir(directory_); // NOLINT(concurrency-mt-unsafe): safe on a stream of one's own
    } while (entry_ && (strcmp(entry_->d_name, ".") == 0 || strcmp(entry_->d_name, "..") == 0));
    hasFailed_ = !entry_ && errno != 0;
    return entry_ != nullptr;
}

QByteArrayView DirectoryReader::name() const
{
    return {entry_->d_name, static_cast<qsizetype>(strlen(entry_->d_name))};
}

std::optional<Attributes> DirectoryReader::attributes() const
{
    if (faults() && fails(Operation::attributes, paths::join(folder_, paths::fromBytes(name()))))
        return std::nullopt;
    return systemcalls::entryAttributes(dirfd(directory_), entry_->d_name);
}

std::optional<Extent> DirectoryReader::extent() const
{
    if (faults() && fails(Operation::attributes, paths::join(folder_, paths::fromBytes(name()))))
        return std::nullopt;
    return systemcalls::entryExtent(dirfd(directory_), entry_->d_name);
}

std::optional<Extent> DirectoryReader::followedExtent() const
{
    if (faults() && fails(Operation::attributes, paths::join(folder_, paths::fromBytes(name()))))
        return std::nullopt;
    return systemcalls::followedExtent(dirfd(directory_), entry_->d_name);
}

std::optional<Kind> DirectoryReader::listedKind() const
{
    if (faults() && fails(Operation::kind, paths::join(folder_, paths::fromBytes(name()))))
        return std::nullopt;
    switch (entry_->d_type) {
    case DT_UNKNOWN:
        return std::nullopt;
    case DT_REG:
        return Kind::file;
    case DT_DIR:
        return Kind::directory;
    case DT_LNK:
        return Kind::link;
    default:
        return Kind::other;
    }
}

FileReader::FileReader(const QByteArray &path)
    : path_(path)
{
    if (faults() && fails(Operation::open, paths::fromBytes(path)))
        return;
    const int descriptor = open(path.constData(), readingFlags);
    if (descriptor == -1)
        return;
    struct stat status = {};
    if (fstat(descriptor, &status) == -1 || !S_ISREG(status.st_mode)) {
        close(descriptor);
        return;
    }
    descriptor_ = descriptor;
    modified_ = systemcalls::modificationDate(status);
}

FileReader::FileReader(FileReader &&other) noexcept
    : path_(std::move(other.path_))
    , descriptor_(std::exchange(other.descriptor_, -1))
    , modified_(other.modified_)
{
}

FileReader::~FileReader()
{
    if (isOpen())
        close(descriptor_);
}

void FileReader::expect(qint64 offset, qint64 count) const
{
    systemcalls::expectReading(descriptor_, offset, count);
}

bool FileReader::read(qint64 offset, qint64 count, QByteArray &content) const
{
    const qsizetype start = content.size();
    content.resize(start + count);
    qint64 done = 0;
    ssize_t got = 0;
    do {
        got = faults() && fails(Operation::read, paths::fromBytes(path_))
                  ? -1
                  : pread(descriptor_, content.data() + start + done, static_cast<size_t>(count - done),
                          offset + done);
        if (got > 0)
            done += got;
    } while ((got > 0 && done < count) || (got == -1 && errno == EINTR));
    content.resize(start + done);
    return got != -1;
}

void injectFaults(std::function<int(Operation, const QString &)> injected)
{
    faults() = std::move(injected);
}

} // namespace files
