#include "controls/BarWidths.h"

#include <limits>
#include <numeric>

#include <gtest/gtest.h>

namespace {

using Widths = QList<int>;

int sum(const Widths &widths)
{
    return std::accumulate(widths.begin(), widths.end(), 0);
}

} // namespace

TEST(BarWidths, areTheSharesInWholePixels)
{
    EXPECT_EQ(BarWidths::of({0.5, 0.25}, 100, 4), (Widths{50, 25}));
    EXPECT_EQ(BarWidths::of({}, 100, 4), Widths());
}

TEST(BarWidths, tellATinyShareFromNone)
{
    EXPECT_EQ(BarWidths::of({0.0001, 0, 0.5}, 100, 4), (Widths{4, 0, 50}));
}

TEST(BarWidths, takeWhatTinySharesNeedFromTheWidest)
{
    EXPECT_EQ(BarWidths::of({0.9, 0.0999, 0.0001}, 100, 4), (Widths{86, 10, 4}));
    EXPECT_EQ(BarWidths::of({0.49, 0.49, 0.01, 0.01}, 100, 4), (Widths{46, 46, 4, 4}));
}

TEST(BarWidths, fillTheBarWhereTheSharesDo)
{
    const Widths widths = BarWidths::of({0.333, 0.333, 0.33, 0.002, 0.002}, 101, 4);
    EXPECT_EQ(sum(widths), 101);
    EXPECT_EQ(widths[3], 4);
    EXPECT_EQ(widths[4], 4);
}

TEST(BarWidths, neverExceedTheBar)
{
    EXPECT_EQ(sum(BarWidths::of({5, 1e300, 1}, 90, 4)), 90);
    EXPECT_EQ(sum(BarWidths::of({0.5, 0.5, 0.5, 0.5}, 100, 4)), 100);
    EXPECT_EQ(sum(BarWidths::of(QList<double>(10000, 0.0001), 100, 4)), 100);
    EXPECT_EQ(sum(BarWidths::of({0.5, 0.5}, 0, 4)), 0);
    EXPECT_EQ(sum(BarWidths::of({0.5, 0.5}, -7, 4)), 0);
}

TEST(BarWidths, giveNothingToNonsense)
{
    const double infinite = std::numeric_limits<double>::infinity();
    EXPECT_EQ(BarWidths::of({std::numeric_limits<double>::quiet_NaN(), -1, 0.5}, 100, 4), (Widths{0, 0, 50}));
    EXPECT_EQ(BarWidths::of({-infinite, infinite}, 100, 4), (Widths{0, 100}));
}
