#include "controls/RowSteps.h"

#include "controls/GridSteps.h"

#include <QGuiApplication>
#include <QStyleHints>

namespace {

constexpr double notchAngle = 120;
constexpr double lineHeight = 24; // of those in which the desktop tells how far a notch goes

} // namespace

int RowSteps::target(int key, int modifiers, int current, int count, double rowsInView)
{
    // A list is a grid of one column, where nothing stands beside a row.
    const bool isAside = key == Qt::Key_Left || key == Qt::Key_Right;
    return isAside ? -1 : GridSteps::target(key, modifiers, current, count, 1, rowsInView);
}

double RowSteps::wheelDistance(double angle)
{
    return -angle / notchAngle * QGuiApplication::styleHints()->wheelScrollLines() * lineHeight;
}

bool RowSteps::asksForMenu(int key, int modifiers)
{
    return key == Qt::Key_Menu || (key == Qt::Key_F10 && modifiers == Qt::ShiftModifier);
}

bool RowSteps::asksForRemoval(int key, int modifiers)
{
    const bool isAlone = (modifiers & static_cast<int>(~Qt::KeypadModifier)) == 0;
    return isAlone && (key == Qt::Key_Delete || key == Qt::Key_Backspace);
}
