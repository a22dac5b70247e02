#pragma once

#include <QString>

/// A look at a message bus ahead of a library that would wait for it without end.
namespace buscheck {

/// Whom to ask on the bus.
struct Peer
{
    const char *name;
    const char *path;
};

enum class Outcome {
    answered, ///< also that nobody has the peer's name
    none,     ///< no bus takes connections there
    silent,   ///< one does, and says nothing
};

/// Connects anew at that address and asks `peer` for a sign of life. Waits for this many milliseconds at most. Any thread.
Outcome ask(const QString &address, const Peer &peer, int milliseconds);

} // namespace buscheck
