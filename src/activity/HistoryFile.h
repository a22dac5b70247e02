#pragma once

#include "activity/HistoryEntry.h"

#include <QByteArray>

#include <vector>

/// The form in which the activity log lies on disk: one JSON array of objects, newest entry first, with sorted keys.
/// Pure functions; the file itself is the service's.
namespace historyfile {

/// Bytes beyond which a file is not taken for a log, and beyond which none is made. A full log (500 entries of 200 paths)
/// has some 15 million where paths are of the usual length.
inline constexpr qint64 mostBytes = qint64(64) << 20;

/// The domain of the errors of `decode`.
inline constexpr QLatin1StringView errorDomain{"Quillmere.HistoryFile"};

/// The log as UTF-8, pretty printed. `detail` is left out where there is none; fractions of a second are dropped; what
/// is no Unicode text, as bytes of a path can be, is U+FFFD. An id is in lower case.
QByteArray encode(const std::vector<HistoryEntry> &entries);

/// A log in the file's form, as much of it as the file holds.
struct Encoded
{
    QByteArray json;
    size_t entryCount = 0; ///< how many of the entries it holds, the newest
};

/// The same in at most `room` bytes, at the price of the oldest entries. It ends before the first entry that has no room,
/// so that no newer run is missing where an older one stands.
Encoded encodeWithin(qint64 room, const std::vector<HistoryEntry> &entries);

/// The reverse, strict: every key but `detail` must be there with its type (a null `detail` is an absent one; keys that
/// nobody knows are passed over), an id in its canonical form of either case, a number that is whole and of 64 bits as
/// the JSON reader rounds it, a date of the one form "2026-03-01T09:30:00Z", without fractions and without an offset.
/// One entry that is not so fails all: throws Error with a description of the first fault.
std::vector<HistoryEntry> decode(const QByteArray &json);

/// A moment in the file's form.
QByteArray dateText(Date date);

/// None for a text that is not of that form or names no day or time that exists.
std::optional<Date> dateOfText(QStringView text);

} // namespace historyfile
