#include "controls/BarWidths.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <vector>

namespace {

double clean(double share)
{
    return std::isnan(share) ? 0 : std::clamp(share, 0.0, 1.0);
}

/// Takes so much from the widest parts, of which none gets narrower than the others that gave.
void takeFromWidest(QList<int> &widths, int excess)
{
    std::vector<qsizetype> order(static_cast<std::size_t>(widths.size()));
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(),
                     [&widths](qsizetype a, qsizetype b) { return widths[a] > widths[b]; });
    // The level to which the first `givers` go down.
    int sum = 0;
    std::size_t givers = 0;
    int next = 0;
    do {
        sum += widths[order[givers]];
        ++givers;
        next = givers < order.size() ? widths[order[givers]] : 0;
    } while (givers < order.size() && sum - static_cast<int>(givers) * next < excess);
    const int left = std::max(0, sum - excess);
    const int count = static_cast<int>(givers);
    for (int i = 0; i < count; ++i)
        widths[order[static_cast<std::size_t>(i)]] = left / count + (i < left % count ? 1 : 0);
}

} // namespace

QList<int> BarWidths::of(const QList<double> &shares, int width, int least)
{
    double sum = 0;
    for (const double share : shares)
        sum += clean(share);
    const double scale = std::max(0, width) / std::max(1.0, sum);
    QList<int> widths;
    int total = 0;
    for (const double share : shares) {
        const int own =
            clean(share) > 0 ? std::max(least, static_cast<int>(std::lround(clean(share) * scale))) : 0;
        widths.append(own);
        total += own;
    }
    if (total > width && total > 0)
        takeFromWidest(widths, total - std::max(0, width));
    return widths;
}
