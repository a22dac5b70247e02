#pragma once

#include <QStringList>

/// The search for folders with nothing in them, or nothing but what a desktop leaves behind in any folder.
namespace emptyfolders {

/// Folders this deep below a root are the last to be looked at.
inline constexpr int depthLimit = 6;

/// The empty folders below the roots, in the order in which a walk through them finds them, each once. Hidden folders and
/// those of tools are not looked into; a root is never one of them, nor is a folder that only holds empty folders. Links
/// are looked through as far as WalkBounds lets them, and not below one another: the same folders by ever other ways
/// would multiply what there is to walk. What can't be listed is passed over. Blocks; any thread.
QStringList find(const QStringList &roots);

/// True for a folder that holds no more than an empty one may. False for one that can't be listed. Blocks; any thread.
bool isEmpty(const QString &folder);

} // namespace emptyfolders
