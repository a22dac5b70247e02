#pragma once

#include <QString>

/// The contexts of access that the tests ask in, by their told names.
namespace fdacontexts {

inline const QString duplicates = QStringLiteral("Duplicate Finder");
inline const QString cleanup = QStringLiteral("Smart Cleanup");
inline const QString analyzer = QStringLiteral("Disk Analyzer");

} // namespace fdacontexts
