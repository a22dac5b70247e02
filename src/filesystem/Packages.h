#pragma once

#include <QByteArrayView>

/// Folders that a person takes for one thing, such as applications and photo libraries: walks over files do not look into
/// them.
namespace packages {

/// True for the name of a folder with one of the endings of packages, in any case of letters.
bool isPackage(QByteArrayView folderName);

} // namespace packages
