#pragma once

#include "platform/Recycler.h"

/// The two ways of an entry into the Trash. The disk decides whether they worked, not what the recycle service says.
namespace trash {

/// Of a link the link itself. Returns when it is done, on any thread. On the main one the event loop runs meanwhile, so
/// that the caller may be entered again. Throws Error: the recycle service's, or "Quillmere.Trash" when the entry is
/// still there without one.
void move(Recycler &recycler, const QString &path);

/// With an administrator's rights, for which the system asks; blocks for as long, so never on the main thread. Nothing
/// there is a success. Throws Error in the domain "Quillmere.AdminTrash".
void moveAsAdministrator(Recycler &recycler, const QString &path);

} // namespace trash
