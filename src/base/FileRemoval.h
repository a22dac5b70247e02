#pragma once

#include <QString>

namespace files {

class OpenFolder;

/// Removes an entry for good: a file, a link and never what it leads to, or a folder with all that is in it. Links above the
/// entry are followed, none at it or below it is, also when a folder is replaced by one meanwhile. What another volume holds
/// stays, and a folder that could not go even if it were empty stays whole. Folders of the user's own that forbid it are opened
/// up, at the entry and below it. Goes on after what can't be removed, and then throws Error with the first failure (the
/// system's): EINVAL for a path that names no entry of a folder ("/", "a/.."), ENOENT when nothing is there, EXDEV for another
/// volume's. Blocks for as long as the disk does; any thread.
void removeTree(const QString &path);

/// The same of an entry at a relative path below an open folder, with no link followed on the way there either, and no other
/// volume entered. Throws Error, ENOTDIR for a link on the way.
void removeTree(const OpenFolder &folder, const QString &relative);

} // namespace files
