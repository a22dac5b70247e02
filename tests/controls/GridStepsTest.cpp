#include "controls/GridSteps.h"

#include <limits>

#include <gtest/gtest.h>

namespace {

/// In a grid of 10 cells, 4 in a row, of which two rows are in view: 0-3, 4-7, 8 and 9.
int step(Qt::Key key, int current, int modifiers = 0)
{
    return GridSteps::target(key, modifiers, current, 10, 4, 2.5);
}

} // namespace

TEST(GridSteps, goesToTheNeighbourAndOverTheEndOfARow)
{
    EXPECT_EQ(step(Qt::Key_Right, 0), 1);
    EXPECT_EQ(step(Qt::Key_Right, 3), 4);
    EXPECT_EQ(step(Qt::Key_Left, 4), 3);
    EXPECT_EQ(step(Qt::Key_Left, 0), 0);
    EXPECT_EQ(step(Qt::Key_Right, 9), 9);
}

TEST(GridSteps, keepsToItsColumn)
{
    EXPECT_EQ(step(Qt::Key_Down, 1), 5);
    EXPECT_EQ(step(Qt::Key_Up, 5), 1);
    EXPECT_EQ(step(Qt::Key_Up, 2), 2);
    EXPECT_EQ(step(Qt::Key_Down, 8), 8);
    EXPECT_EQ(step(Qt::Key_Down, 7), 9) << "to the last one, where the row below is short";
}

TEST(GridSteps, findsTheFirstCellThatIsWholeInView)
{
    EXPECT_EQ(GridSteps::firstWhole(0, 80, 10, 4), 0);
    EXPECT_EQ(GridSteps::firstWhole(1, 80, 10, 4), 4) << "the row above is cut";
    EXPECT_EQ(GridSteps::firstWhole(80, 80, 10, 4), 4);
    EXPECT_EQ(GridSteps::firstWhole(200, 80, 10, 4), 8) << "the last row, though it is cut";
    EXPECT_EQ(GridSteps::firstWhole(-5, 80, 10, 4), 0);
}

TEST(GridSteps, findsNoCellWhereThereIsNoneAndTheFirstWhereNothingHasRoom)
{
    EXPECT_EQ(GridSteps::firstWhole(0, 80, 0, 4), -1);
    EXPECT_EQ(GridSteps::firstWhole(50, 0, 10, 0), 0);
}

TEST(GridSteps, goesByPagesAndToTheEnds)
{
    EXPECT_EQ(step(Qt::Key_PageDown, 1), 5);
    EXPECT_EQ(step(Qt::Key_PageUp, 9), 5);
    EXPECT_EQ(step(Qt::Key_End, 1), 9);
    EXPECT_EQ(step(Qt::Key_Home, 9), 0);
}

TEST(GridSteps, beginsAtAnEndWhereThereIsNoCurrentCell)
{
    EXPECT_EQ(step(Qt::Key_Down, -1), 0);
    EXPECT_EQ(step(Qt::Key_Up, -1), 0);
    EXPECT_EQ(step(Qt::Key_End, -1), 9);
}

TEST(GridSteps, knowsShiftAndTheKeypadAndNoOtherModifier)
{
    EXPECT_EQ(step(Qt::Key_Right, 0, Qt::ShiftModifier), 1);
    EXPECT_EQ(step(Qt::Key_Right, 0, Qt::KeypadModifier), 1);
    EXPECT_EQ(step(Qt::Key_Right, 0, Qt::ControlModifier), -1);
    EXPECT_EQ(step(Qt::Key_A, 0), -1);
}

TEST(GridSteps, holdsOutAgainstNonsense)
{
    const double infinite = std::numeric_limits<double>::infinity();
    EXPECT_EQ(GridSteps::target(Qt::Key_Down, 0, 0, 0, 4, 2), -1);
    EXPECT_EQ(GridSteps::target(Qt::Key_Down, 0, 0, 10, 0, 2), 1);
    EXPECT_EQ(GridSteps::target(Qt::Key_PageDown, 0, 0, 10, -3, infinite), 9);
    EXPECT_EQ(GridSteps::target(Qt::Key_PageDown, 0, 0, 10, 4, -infinite), 4);
    EXPECT_EQ(GridSteps::target(Qt::Key_Down, 0, 99, 10, 4, 2), 9);
}

TEST(GridSteps, turnsLeftAndRightAroundAndNothingElse)
{
    EXPECT_EQ(GridSteps::mirrored(Qt::Key_Left), Qt::Key_Right);
    EXPECT_EQ(GridSteps::mirrored(Qt::Key_Right), Qt::Key_Left);
    EXPECT_EQ(GridSteps::mirrored(Qt::Key_Up), Qt::Key_Up);
}
