#include "base/FileCalls.h"

#include "base/Error.h"
#include "base/Paths.h"

#include <cerrno>
#include <utility>

#include <unistd.h>

namespace files {

QByteArray native(const QString &path)
{
    return path.contains(QChar::Null) ? QByteArray() : paths::toBytes(path);
}

bool fails(Operation operation, const QString &path)
{
    const int code = faults() ? faults()(operation, path) : 0;
    if (code != 0)
        errno = code;
    return code != 0;
}

Descriptor::Descriptor(int number)
    : number_(number)
{
    if (number == -1)
        throw errors::fromErrno(errno);
}

Descriptor::Descriptor(Descriptor &&other) noexcept
    : number_(std::exchange(other.number_, -1))
{
}

Descriptor &Descriptor::operator=(Descriptor &&other) noexcept
{
    std::swap(number_, other.number_); // the other one closes it
    return *this;
}

Descriptor::~Descriptor()
{
    if (number_ != -1)
        close(number_);
}

} // namespace files
