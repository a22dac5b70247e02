#pragma once

#include "platform/Locations.h"

struct UserDirectories;

/// The parts of `Locations` that are alike on all systems once the user's folders are known.
namespace tables {

/// Sets all tables that name nothing but the user's folders and what "Applications" and "Library" stand for:
/// storage rows, roots of the largest directories and of empty folders, downloads, the organizer's source and
/// the favourites. The favourite "Applications" is the first of `applications`.
void setUserFolders(Locations &locations, const UserDirectories &folders, const QStringList &applications,
                    const QStringList &library);

/// The built-in locks of the duplicate scan that every system has: the home folders that they name are not there on
/// Linux, and cost nothing.
QStringList duplicateIgnoreRules(const QString &home);

} // namespace tables
