#pragma once

#include "platform/Locations.h"

#include <QStringList>

/// The places of a category on the disk.
namespace cleanupplaces {

/// The places of a row as they are now: its patterns resolved, without those that are not there where the row keeps only
/// these. Each once, and none inside another one, whose bytes would count twice.
QStringList ofRow(const Locations::CleanupRow &row);

/// False for a place without any entry, which counts as nothing: an empty folder takes room on some file systems, and
/// an emptied Trash must not be offered again. So does what can't be listed, and a link, which is left alone.
bool holdsEntries(const QString &place);

/// True for a link itself.
bool isLink(const QString &place);

} // namespace cleanupplaces
