#pragma once

#include "activity/HistoryEntry.h"

#include <QByteArray>

#include <vector>

/// The writing half of the file's form (HistoryFile.h). Each record rewrites the whole log on the main thread, with up to
/// 100,000 paths in it, so that the text is made straight from the entries instead of from a tree of JSON values.
namespace historyfile {

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

/// A moment in the file's form.
QByteArray dateText(Date date);

} // namespace historyfile
