#include "controls/RowTexts.h"

#include <gtest/gtest.h>

TEST(RowTexts, tellTheirPlaceAfterWhatTheyShow)
{
    const QString place = RowTexts::place(2, 120);
    EXPECT_EQ(RowTexts::told(QStringLiteral("KEEP, ~/a"), place), QStringLiteral("KEEP, ~/a, 3 of 120"));
    EXPECT_EQ(RowTexts::told(QString(), place), QStringLiteral("3 of 120"));
}

TEST(RowTexts, leaveEmptyLinesOutOfATooltip)
{
    EXPECT_EQ(RowTexts::lines({QStringLiteral("name"), QString(), QStringLiteral("what a click does")}),
              QStringLiteral("name\nwhat a click does"));
    EXPECT_EQ(RowTexts::lines({QString(), QString()}), QString());
}

TEST(RowTexts, leaveEmptyTextsOutOfALine)
{
    EXPECT_EQ(RowTexts::inARow({QStringLiteral("/proc"), QStringLiteral("(overridden)")}),
              QStringLiteral("/proc (overridden)"));
    EXPECT_EQ(RowTexts::inARow({QStringLiteral("/proc"), QString()}), QStringLiteral("/proc"));
}

TEST(RowTexts, tellAFigureWithItsLabel)
{
    EXPECT_EQ(RowTexts::figure(QStringLiteral("Total %2"), QStringLiteral("4 GB")),
              QStringLiteral("Total %2: 4 GB"));
}
