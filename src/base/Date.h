#pragma once

#include <QtGlobal>

#include <chrono>

/// A moment, with the nanoseconds that file systems keep. UTC; covers the years 1677 to 2262.
using Date = std::chrono::sys_time<std::chrono::nanoseconds>;

namespace dates {

/// Stands for a date that the file system does not report: earlier than any real one.
inline constexpr Date distantPast = Date::min();

/// The moment `seconds` and `nanoseconds` after the epoch, held within the range of Date.
Date fromUnix(qint64 seconds, qint64 nanoseconds);

/// Seconds from `from` to `to`, negative when `to` is the earlier one.
double secondsBetween(Date from, Date to);

/// Whole days elapsed from `from` to `to` by the calendar in the current time zone: 23 hours are no day, and a
/// day with a change of clocks is one. Truncated toward zero, negative when `to` is the earlier one.
int wholeDaysBetween(Date from, Date to);

} // namespace dates
