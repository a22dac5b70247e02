#pragma once

#include "base/Files.h"

/// What the calls of base/ on files and folders are made of; for these alone.
namespace files {

/// The bytes of a path for the system. A NUL would cut the path short and name something else, so such a path
/// becomes the empty one, which names nothing.
QByteArray native(const QString &path);

/// Holds what a test wants to fail; empty but for tests. Asked at every entry of a listing, so it costs no call.
inline std::function<int(Operation, const QString &)> &faults()
{
    static std::function<int(Operation, const QString &)> injected;
    return injected;
}

/// True when a test wants this call to fail; errno is set then.
bool fails(Operation operation, const QString &path);

/// An open file, closed with it.
class Descriptor
{
public:
    /// Takes what `open` gave; throws Error where that is -1.
    explicit Descriptor(int number);
    Descriptor(Descriptor &&other) noexcept;
    Descriptor &operator=(Descriptor &&other) noexcept;
    ~Descriptor();
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;

    int number() const { return number_; }

private:
    int number_;
};

} // namespace files
