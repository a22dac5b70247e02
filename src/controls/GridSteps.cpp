#include "controls/GridSteps.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace {

/// How many cells a key leads on; the ends of the grid are at `count` cells from everywhere.
std::optional<int> distance(int key, int count, int columns, int page)
{
    switch (key) {
    case Qt::Key_Left:
        return -1;
    case Qt::Key_Right:
        return 1;
    case Qt::Key_Up:
        return -columns;
    case Qt::Key_Down:
        return columns;
    case Qt::Key_PageUp:
        return -page * columns;
    case Qt::Key_PageDown:
        return page * columns;
    case Qt::Key_Home:
        return -count;
    case Qt::Key_End:
        return count;
    default:
        return std::nullopt;
    }
}

} // namespace

int GridSteps::target(int key, int modifiers, int current, int count, int columns, double rowsInView)
{
    const auto others = static_cast<int>(~(Qt::ShiftModifier | Qt::KeypadModifier));
    if (count < 1 || (modifiers & others) != 0)
        return -1;
    const int across = std::clamp(columns, 1, count);
    // One row stays on view, for the eye to find its place. No page is longer than the grid.
    const double longest = static_cast<double>(count) / across;
    const int page = static_cast<int>(std::clamp(std::floor(rowsInView) - 1, 1.0, std::max(1.0, longest)));
    const std::optional<int> cells = distance(key, count, across, page);
    if (!cells)
        return -1;
    if (current < 0)
        return *cells > 0 && key == Qt::Key_End ? count - 1 : 0;
    const int next = current + *cells;
    // A row up or down keeps to its column; there is none above the first row, and below the last but one there may be no
    // cell, but a row.
    if (key == Qt::Key_Up && next < 0)
        return current;
    if (key == Qt::Key_Down && next >= count)
        return current / across == (count - 1) / across ? current : count - 1;
    return std::clamp(next, 0, count - 1);
}

int GridSteps::firstWhole(double top, double cellHeight, int count, int columns)
{
    if (count < 1)
        return -1;
    const int across = std::max(1, columns);
    const int lastRow = (count - 1) / across;
    const double row = cellHeight > 0 ? std::ceil(top / cellHeight) : 0;
    return static_cast<int>(std::clamp(row, 0.0, static_cast<double>(lastRow))) * across;
}

int GridSteps::mirrored(int key)
{
    return key == Qt::Key_Left ? Qt::Key_Right : key == Qt::Key_Right ? Qt::Key_Left : key;
}
