#pragma once

#include <QString>

namespace files {

/// Removes an entry for good: a file, a link and never what it leads to, or a folder with all that is in it. Links above the
/// entry are followed, none at it or below it is, also when a folder is replaced by one meanwhile. What another volume holds
/// stays. Goes on after what can't be removed, and then throws Error with the first failure (the system's): EINVAL for a path
/// that names no entry of a folder ("/", "a/.."), ENOENT when nothing is there. Blocks for as long as the disk does; any
/// thread.
void removeTree(const QString &path);

} // namespace files
