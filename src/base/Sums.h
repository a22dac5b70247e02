#pragma once

#include <QtNumeric>

#include <limits>

/// Sums of counts that come from disk and are 0 or more.
namespace sums {

/// `a` + `b`, or the largest count there is where the sum does not fit.
inline qint64 saturated(qint64 a, qint64 b)
{
    qint64 sum = 0;
    return qAddOverflow(a, b, &sum) ? std::numeric_limits<qint64>::max() : sum;
}

} // namespace sums
