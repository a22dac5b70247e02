#include "makers/MadeFiles.h"

#include "base/Paths.h"

#include <algorithm>
#include <cerrno>
#include <ctime>
#include <filesystem>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr time_t day = time_t(24) * 60 * 60;

void require(bool done, const QString &path)
{
    if (!done)
        throw std::system_error(errno, std::generic_category(), paths::toBytes(path).toStdString());
}

} // namespace

namespace madefiles {

void makeFolder(const QString &path)
{
    std::filesystem::create_directories(paths::toBytes(path).toStdString());
}

void make(const QString &path, const QByteArray &content, qint64 size, int days)
{
    makeFolder(paths::parent(path));
    const int descriptor =
        open(paths::toBytes(path).constData(), O_CREAT | O_WRONLY | O_TRUNC | O_CLOEXEC, 0644);
    require(descriptor != -1, path);
    const qint64 whole = std::max<qint64>(size, content.size());
    const bool isWritten = write(descriptor, content.constData(), static_cast<size_t>(content.size()))
                           == static_cast<ssize_t>(content.size());
    const bool isSized =
        whole == 0 || posix_fallocate(descriptor, 0, whole) == 0 || ftruncate(descriptor, whole) == 0;
    close(descriptor);
    require(isWritten && isSized, path);
    setAge(path, days);
}

void setAge(const QString &path, int days)
{
    const time_t changed = time(nullptr) - days * day;
    const timespec times[2] = {{changed, 0}, {changed, 0}};
    require(utimensat(AT_FDCWD, paths::toBytes(path).constData(), times, 0) == 0, path);
}

} // namespace madefiles
