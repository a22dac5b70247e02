#include "controls/WholeNumbers.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr double most = 1e15; // beyond 2^53 a double leaves whole numbers out

bool isWhole(double value)
{
    return std::isfinite(value) && std::abs(value) <= most && std::trunc(value) == value;
}

} // namespace

double WholeNumbers::read(const QString &text, double from, double to)
{
    bool isNumber = false;
    const auto number = static_cast<double>(text.trimmed().toLongLong(&isNumber));
    const bool isInside = isNumber && isWhole(number) && number >= from && number <= to;
    return isInside ? number : std::numeric_limits<double>::quiet_NaN();
}

QString WholeNumbers::text(double value)
{
    return isWhole(value) ? QString::number(static_cast<qlonglong>(value)) : QString();
}

double WholeNumbers::stepped(double value, double by, double from, double to)
{
    const double lowest = std::max(from, -most);
    const double highest = std::max(lowest, std::min(to, most));
    return std::clamp(isWhole(value) ? value + by : lowest, lowest, highest);
}
