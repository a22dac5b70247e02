#include "controls/RowSteps.h"

#include <QGuiApplication>
#include <QStyleHints>

#include <algorithm>
#include <cmath>
#include <optional>

namespace {

constexpr double notchAngle = 120;
constexpr double lineHeight = 24; // of those in which the desktop tells how far a notch goes

/// How far a key leads; the ends of the list are at `count` rows from everywhere.
std::optional<int> distance(int key, int count, int page)
{
    switch (key) {
    case Qt::Key_Up:
        return -1;
    case Qt::Key_Down:
        return 1;
    case Qt::Key_PageUp:
        return -page;
    case Qt::Key_PageDown:
        return page;
    case Qt::Key_Home:
        return -count;
    case Qt::Key_End:
        return count;
    default:
        return std::nullopt;
    }
}

} // namespace

int RowSteps::target(int key, int modifiers, int current, int count, double rowsInView)
{
    const auto others = static_cast<int>(~(Qt::ShiftModifier | Qt::KeypadModifier));
    if (count < 1 || (modifiers & others) != 0)
        return -1;
    // One row stays on view, for the eye to find its place.
    const int page =
        static_cast<int>(std::clamp(std::floor(rowsInView) - 1, 1.0, static_cast<double>(count)));
    const std::optional<int> rows = distance(key, count, page);
    return rows ? std::clamp(current + *rows, 0, count - 1) : -1;
}

double RowSteps::wheelDistance(double angle)
{
    return -angle / notchAngle * QGuiApplication::styleHints()->wheelScrollLines() * lineHeight;
}

bool RowSteps::asksForMenu(int key, int modifiers)
{
    return key == Qt::Key_Menu || (key == Qt::Key_F10 && modifiers == Qt::ShiftModifier);
}
