#pragma once

#include "activity/HistoryEntry.h"

/// Entries for the tests of the activity log.
namespace samples {

inline const Date morning = Date(std::chrono::seconds(1'772'357'400)); ///< 2026-03-01T09:30:00Z

/// "/some/folder/file 1" and so on.
inline QStringList paths(int count)
{
    QStringList made;
    for (int i = 1; i <= count; ++i)
        made << QStringLiteral("/some/folder/file %1").arg(i);
    return made;
}

inline HistoryEntry entry(HistoryEntry::Kind kind, const QString &title, int pathCount = 0)
{
    HistoryEntry made;
    made.id = QUuid::createUuid();
    made.timestamp = morning;
    made.kind = kind;
    made.title = title;
    made.paths = paths(pathCount);
    return made;
}

inline HistoryEntry entry(const QString &title)
{
    return entry(HistoryEntry::Kind::cleanup, title);
}

} // namespace samples
