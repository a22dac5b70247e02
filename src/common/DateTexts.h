#pragma once

#include "base/Date.h"

#include <QString>

/// Dates as a person reads them, in the current locale and time zone.
namespace datetexts {

/// The date and the time of day in the short styles, as "3/1/26, 9:30 AM".
QString shortDateTime(Date date);

/// The day as "MMM d, yyyy", which gives "Mar 1, 2026"; a dash for the distant past, which stands for no date.
QString mediumDay(Date date);

} // namespace datetexts
