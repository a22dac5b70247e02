#include "controls/RowTexts.h"

#include <gtest/gtest.h>

TEST(RowTexts, tellTheirPlaceAfterWhatTheyShow)
{
    EXPECT_EQ(RowTexts::told(QStringLiteral("KEEP, ~/a"), 2, 120), QStringLiteral("KEEP, ~/a, 3 of 120"));
    EXPECT_EQ(RowTexts::told(QString(), 0, 1), QStringLiteral("1 of 1"));
}

TEST(RowTexts, leaveEmptyLinesOutOfATooltip)
{
    EXPECT_EQ(RowTexts::lines({QStringLiteral("name"), QString(), QStringLiteral("what a click does")}),
              QStringLiteral("name\nwhat a click does"));
    EXPECT_EQ(RowTexts::lines({QString(), QString()}), QString());
}
