#pragma once

#include <QtNumeric>

#include <limits>

/// Sums and products of counts that come from disk and are 0 or more.
namespace sums {

/// `a` + `b`, or the largest count there is where the sum does not fit.
inline qint64 saturated(qint64 a, qint64 b)
{
    qint64 sum = 0;
    return qAddOverflow(a, b, &sum) ? std::numeric_limits<qint64>::max() : sum;
}

/// `count` times `size`, likewise.
inline qint64 saturatedProduct(qint64 count, qint64 size)
{
    qint64 product = 0;
    return qMulOverflow(count, size, &product) ? std::numeric_limits<qint64>::max() : product;
}

} // namespace sums
