#pragma once

#include "base/Files.h"

#include <QString>

#include <functional>

/// A walk over the files of a tree: depth first, in the file system's order, hidden ones included. It looks into no package
/// (packages::isPackage) and through no link, also none at the root itself. What can't be listed is passed over.
namespace filewalk {

/// Told of a regular file in `folder`, which `entry` stands on. False ends the walk.
using Visit = std::function<bool(const QString &folder, const files::DirectoryReader &entry)>;

/// Blocks for as long as the disk does; any thread. A folder is read no further than the walk comes.
void overFiles(const QString &root, const Visit &visit);

} // namespace filewalk
