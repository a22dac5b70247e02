#pragma once

#include <QHashFunctions>
#include <QString>

#include <optional>

namespace files {

/// Which file of the machine an entry is, whatever it is called. Two entries of one identity are hard links to one file,
/// or one entry reached by two ways.
struct Identity
{
    quint64 device = 0;
    quint64 number = 0; ///< on that device

    friend bool operator==(const Identity &, const Identity &) = default;
    friend size_t qHash(const Identity &identity, size_t seed = 0)
    {
        return qHashMulti(seed, identity.device, identity.number);
    }
};

/// The entry's own identity, a link's too. None when nothing is there, or it can't be asked; errno tells why. Blocks for as long as the disk
/// does, like the next. Any thread.
std::optional<Identity> identity(const QString &path);

/// The same of what a link leads to. None for one that leads nowhere.
std::optional<Identity> followedIdentity(const QString &path);

/// The same of an open file, which may have no entry any more.
std::optional<Identity> openIdentity(int descriptor);

} // namespace files
