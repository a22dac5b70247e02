#include "base/Date.h"

#include <memory>

#include <unicode/calendar.h>

namespace dates {

Date fromUnix(qint64 seconds, qint64 nanoseconds)
{
    constexpr auto most = std::chrono::duration_cast<std::chrono::seconds>(Date::max().time_since_epoch());
    if (seconds >= most.count())
        return Date::max();
    if (seconds <= -most.count())
        return distantPast;
    return Date(std::chrono::seconds(seconds) + std::chrono::nanoseconds(nanoseconds));
}

double secondsBetween(Date from, Date to)
{
    // As doubles, since the difference of far dates does not fit a count of nanoseconds.
    const auto seconds = [](Date date) {
        return std::chrono::duration<double>(date.time_since_epoch()).count();
    };
    return seconds(to) - seconds(from);
}

int wholeDaysBetween(Date from, Date to)
{
    const auto milliseconds = [](Date date) {
        return static_cast<UDate>(
            std::chrono::floor<std::chrono::milliseconds>(date.time_since_epoch()).count());
    };
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::Calendar> calendar(icu::Calendar::createInstance(status));
    if (U_FAILURE(status))
        return 0;
    calendar->setTime(milliseconds(from), status);
    const int days = calendar->fieldDifference(milliseconds(to), UCAL_DATE, status);
    return U_FAILURE(status) ? 0 : days;
}

} // namespace dates
