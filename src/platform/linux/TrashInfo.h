#pragma once

#include <QByteArray>

#include <ctime>

/// The note that stands beside each item in the Trash and says where it came from, in the format of
/// freedesktop.org's rules for a trash can.
namespace trashinfo {

/// The note's content. `path` is where the item was: absolute, or relative to the root of the volume that the
/// Trash is on; any bytes. `deleted` is written in local time, as the format wants it.
QByteArray text(const QByteArray &path, std::time_t deleted);

} // namespace trashinfo
