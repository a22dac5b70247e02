#pragma once

#include "base/Date.h"

#include <QString>

#include <optional>

/// A colour in the sRGB space, components from 0 to 1.
struct Color
{
    double red = 0;
    double green = 0;
    double blue = 0;
    double alpha = 1;

    bool operator==(const Color &) const = default;
};

/// The text of a byte count, as "1.5 KB": binary steps under the decimal names. `bytes` is from 0 to below
/// 1024 TB; any other count is a programming error and ends the process. Counts that come from disk or from a
/// file are for `sizeText`.
QString formatBytes(qint64 bytes);

/// The nearest count that `formatBytes` has a text for.
qint64 clampedBytes(qint64 bytes);

/// The text of a byte count that comes from disk or from a file: that of the nearest count that has one.
QString sizeText(qint64 bytes);

/// The colour of six (RGB) or eight (ARGB) hexadecimal digits; what is not alphanumeric around them is passed
/// over. Opaque black for any other text.
Color colorFromHex(const QString &text);

/// The same colour as the look's language writes it: "#AARRGGBB".
QString colorText(const QString &hex);

/// How long ago a day was: "Today", "3 days ago", "1 weeks ago" (there is no singular form); "Unknown" without a
/// date. A date to come counts like "-2 days ago".
QString relativeDayText(std::optional<Date> date, Date now);

/// The same of whole days that have elapsed by the calendar (dates::wholeDaysBetween).
QString elapsedDaysText(int days);
