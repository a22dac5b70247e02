#pragma once

#include <QString>
#include <QStringList>

/// What the system knows of applications. Both blocks for as long as the disk does, which is short enough for the main
/// thread where it is asked once. Any thread.
class Applications
{
public:
    Applications() = default;
    Applications(const Applications &) = delete;
    Applications &operator=(const Applications &) = delete;
    virtual ~Applications() = default;

    /// Where the running applications lie, as far as this user may know: the bundles, or the programs themselves where the
    /// system has no bundles. Absolute, links resolved.
    virtual QStringList runningPaths() const = 0;

    /// Where the applications lie that the system knows under exactly this identifier. It may name some that are gone.
    virtual QStringList knownPaths(const QString &identifier) const = 0;
};
