#include "base/Files.h"

#include "base/Error.h"
#include "base/Paths.h"
#include "base/SystemCalls.h"

#include <QScopeGuard>

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace files {
namespace {

std::function<int(Operation, const QString &)> &faults()
{
    static std::function<int(Operation, const QString &)> injected;
    return injected;
}

/// True when a test wants this call to fail; errno is set then.
bool fails(Operation operation, const QString &path)
{
    const int code = faults() ? faults()(operation, path) : 0;
    if (code != 0)
        errno = code;
    return code != 0;
}

/// The bytes of a path for the system. A NUL would cut the path short and name something else, so such a path
/// becomes the empty one, which names nothing.
QByteArray native(const QString &path)
{
    return path.contains(QChar::Null) ? QByteArray() : paths::toBytes(path);
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

bool isDirectory(const QString &path)
{
    const auto status = followed(path);
    return status && S_ISDIR(status->st_mode);
}

std::optional<std::vector<QString>> list(const QString &folder)
{
    DirectoryReader reader(folder);
    if (!reader.isOpen())
        return std::nullopt;
    std::vector<QString> names;
    while (reader.next())
        names.push_back(paths::fromBytes(reader.name()));
    return names;
}

std::optional<QByteArray> readPrefix(const QString &path, qint64 most)
{
    if (fails(Operation::open, path))
        return std::nullopt;
    const int descriptor = open(native(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (descriptor == -1)
        return std::nullopt;
    const auto closing = qScopeGuard([descriptor] { close(descriptor); });
    struct stat status = {};
    if (fstat(descriptor, &status) == -1 || !S_ISREG(status.st_mode))
        return std::nullopt;

    QByteArray content;
    char chunk[16384];
    while (content.size() < most) {
        const auto wanted = static_cast<size_t>(std::min<qint64>(most - content.size(), sizeof chunk));
        const ssize_t count = read(descriptor, chunk, wanted);
        if (count == -1 && errno == EINTR)
            continue;
        if (count == -1)
            return std::nullopt;
        if (count == 0)
            break;
        content.append(chunk, count);
    }
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
    if (mkdir(native(path).constData(), 0777) == -1 && errno != EEXIST)
        throw errors::fromErrno(errno);
}

void move(const QString &from, const QString &to)
{
    const int code = systemcalls::renameWithoutReplacing(native(from).constData(), native(to).constData());
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
    do {
        entry_ = readdir(directory_); // NOLINT(concurrency-mt-unsafe): safe on a stream of one's own
    } while (entry_ && (strcmp(entry_->d_name, ".") == 0 || strcmp(entry_->d_name, "..") == 0));
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

void injectFaults(std::function<int(Operation, const QString &)> injected)
{
    faults() = std::move(injected);
}

} // namespace files
