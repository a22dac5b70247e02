#pragma once

#include "activity/HistoryEntry.h"

#include <QByteArray>

#include <vector>

/// The form in which the activity log lies on disk, and its reading: one JSON array of objects, newest entry first, with
/// sorted keys. It is written by HistoryFileEncoding.h. Pure functions; the file itself is the service's.
namespace historyfile {

/// Bytes beyond which a file is not taken for a log, and beyond which none is made. A full log (500 entries of 200 paths)
/// has some 15 million where paths are of the usual length.
inline constexpr qint64 mostBytes = qint64(64) << 20;

/// The domain of the errors of `decode`.
inline constexpr QLatin1StringView errorDomain{"Quillmere.HistoryFile"};

/// The log that a file holds. Strict: every key but `detail` must be there with its type (a null `detail` is an absent one;
/// keys that nobody knows are passed over), an id in its canonical form of either case, a number that is whole and of 64
/// bits as the JSON reader rounds it, a date of the one form "2026-03-01T09:30:00Z", without fractions and without an
/// offset. One entry that is not so fails all: throws Error with a description of the first fault.
std::vector<HistoryEntry> decode(const QByteArray &json);

/// The moment that a date in the file's form tells. None for a text that is not of that form or names no day or time that
/// exists.
std::optional<Date> dateOfText(QStringView text);

} // namespace historyfile
