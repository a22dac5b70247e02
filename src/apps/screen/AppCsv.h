#pragma once

#include "apps/catalogue/RealInstalledApp.h"
#include "apps/ghosts/GhostApp.h"
#include "base/Date.h"

#include <QByteArray>

#include <vector>

/// The App Manager's lists as files for a spreadsheet: comma-separated, in UTF-8 without a byte order mark, one header line,
/// each line ended by a line feed. Sizes are plain counts of bytes. Bytes that are not UTF-8 are U+FFFD.
namespace appcsv {

/// A line an application, in the order of the list.
QByteArray ofInstalled(const std::vector<RealInstalledApp> &apps, Date now);

/// A line a file, whether or not it is ticked, in the order of the groups and of their files.
QByteArray ofGhosts(const std::vector<GhostApp> &ghosts);

} // namespace appcsv
