#pragma once

#include "platform/Locations.h"

#include <QString>

/// Where the App Manager may remove something. What it lists lies there by itself; this is asked once more ahead of each
/// removal, so that no name or identifier that an application tells of itself can lead one elsewhere. By the text alone, but
/// for what says otherwise.
namespace removalplaces {

/// A bundle directly in a folder for applications, or in a folder directly inside one.
bool isForBundles(const QString &path, const Locations &locations);

/// True where a link above a bundle leads out of the folders for applications, or may: a folder can have become one since
/// the scan. Asks the disk, and is false where the bundle's folder is gone.
bool leadsOutOfThoseForBundles(const QString &path, const Locations &locations);

/// Exactly one entry, directly inside one of the folders where the files of applications are looked for.
bool isForAssociatedFiles(const QString &path, const Locations &locations);

/// The same of the folders where those of gone applications are.
bool isForGhosts(const QString &path, const Locations &locations);

} // namespace removalplaces
