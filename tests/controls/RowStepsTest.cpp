#include "controls/RowSteps.h"

#include <QGuiApplication>
#include <QStyleHints>

#include <gtest/gtest.h>

namespace {

int target(Qt::Key key, int current, int count = 100, double rowsInView = 10.7)
{
    return RowSteps::target(key, Qt::NoModifier, current, count, rowsInView);
}

} // namespace

TEST(RowSteps, leadUpAndDownAndStopAtTheEnds)
{
    EXPECT_EQ(target(Qt::Key_Down, 5), 6);
    EXPECT_EQ(target(Qt::Key_Up, 5), 4);
    EXPECT_EQ(target(Qt::Key_Up, 0), 0);
    EXPECT_EQ(target(Qt::Key_Down, 99), 99);
}

TEST(RowSteps, leadAPageFarWithOneRowInCommon)
{
    EXPECT_EQ(target(Qt::Key_PageDown, 5), 14);
    EXPECT_EQ(target(Qt::Key_PageUp, 50), 41);
    EXPECT_EQ(target(Qt::Key_PageUp, 5), 0);
    EXPECT_EQ(target(Qt::Key_PageDown, 95), 99);
}

TEST(RowSteps, leadOnWhereTheViewHasRoomForNoRow)
{
    EXPECT_EQ(target(Qt::Key_PageDown, 5, 100, 0), 6);
    EXPECT_EQ(target(Qt::Key_PageDown, 5, 100, 1e300), 99);
}

TEST(RowSteps, leadToTheEnds)
{
    EXPECT_EQ(target(Qt::Key_Home, 57), 0);
    EXPECT_EQ(target(Qt::Key_End, 57), 99);
    EXPECT_EQ(target(Qt::Key_End, -1), 99);
}

TEST(RowSteps, beginAtTheFirstRowWhereNoneIsCurrent)
{
    EXPECT_EQ(target(Qt::Key_Down, -1), 0);
    EXPECT_EQ(target(Qt::Key_Up, -1), 0);
    EXPECT_EQ(target(Qt::Key_Home, -1), 0);
}

TEST(RowSteps, leadNowhereInAnEmptyList)
{
    EXPECT_EQ(target(Qt::Key_Down, -1, 0), -1);
    EXPECT_EQ(target(Qt::Key_End, -1, 0), -1);
}

TEST(RowSteps, leaveOtherKeysAlone)
{
    EXPECT_EQ(target(Qt::Key_A, 5), -1);
    EXPECT_EQ(target(Qt::Key_Left, 5), -1);
    EXPECT_EQ(RowSteps::target(Qt::Key_Down, Qt::ControlModifier, 5, 100, 10), -1);
    EXPECT_EQ(RowSteps::target(Qt::Key_Up, Qt::AltModifier | Qt::ShiftModifier, 5, 100, 10), -1);
}

TEST(RowSteps, leadWithShiftAndFromTheKeypadAsWell)
{
    EXPECT_EQ(RowSteps::target(Qt::Key_Down, Qt::ShiftModifier, 5, 100, 10), 6);
    EXPECT_EQ(RowSteps::target(Qt::Key_Down, Qt::KeypadModifier, 5, 100, 10), 6);
}

TEST(RowSteps, askForTheMenuByItsKeyAndByShiftF10)
{
    EXPECT_TRUE(RowSteps::asksForMenu(Qt::Key_Menu, Qt::NoModifier));
    EXPECT_TRUE(RowSteps::asksForMenu(Qt::Key_F10, Qt::ShiftModifier));
    EXPECT_FALSE(RowSteps::asksForMenu(Qt::Key_F10, Qt::NoModifier));
    EXPECT_FALSE(RowSteps::asksForMenu(Qt::Key_F10, Qt::ShiftModifier | Qt::ControlModifier));
    EXPECT_FALSE(RowSteps::asksForMenu(Qt::Key_Space, Qt::ShiftModifier));
}

TEST(RowSteps, askToTakeARowOutByDeleteAndBackspaceAlone)
{
    EXPECT_TRUE(RowSteps::asksForRemoval(Qt::Key_Delete, Qt::NoModifier));
    EXPECT_TRUE(RowSteps::asksForRemoval(Qt::Key_Delete, Qt::KeypadModifier));
    EXPECT_TRUE(RowSteps::asksForRemoval(Qt::Key_Backspace, Qt::NoModifier));
    EXPECT_FALSE(RowSteps::asksForRemoval(Qt::Key_Backspace, Qt::ControlModifier));
    EXPECT_FALSE(RowSteps::asksForRemoval(Qt::Key_Delete, Qt::ShiftModifier));
    EXPECT_FALSE(RowSteps::asksForRemoval(Qt::Key_X, Qt::NoModifier));
}

TEST(RowSteps, goOnWithTheWheelByTheLinesThatTheDesktopTells)
{
    const int lines = QGuiApplication::styleHints()->wheelScrollLines();
    EXPECT_GT(lines, 0);
    EXPECT_EQ(RowSteps::wheelDistance(-120), lines * 24);
    EXPECT_EQ(RowSteps::wheelDistance(60), -lines * 12);
    EXPECT_EQ(RowSteps::wheelDistance(0), 0);
}
