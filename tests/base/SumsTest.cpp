#include "base/Sums.h"

#include <limits>

#include <gtest/gtest.h>

namespace {
constexpr qint64 most = std::numeric_limits<qint64>::max();
}

TEST(Sums, addWhatFits)
{
    EXPECT_EQ(sums::saturated(0, 0), 0);
    EXPECT_EQ(sums::saturated(2, 3), 5);
    EXPECT_EQ(sums::saturated(most, 0), most);
    EXPECT_EQ(sums::saturated(most - 1, 1), most);
    EXPECT_EQ(sums::saturated(most / 2, most / 2), most - 1);
}

TEST(Sums, stayAtTheLargestCountWhereTheSumDoesNotFit)
{
    EXPECT_EQ(sums::saturated(most, 1), most);
    EXPECT_EQ(sums::saturated(1, most), most);
    EXPECT_EQ(sums::saturated(most, most), most);
}

TEST(Sums, multiplyWhatFits)
{
    EXPECT_EQ(sums::saturatedProduct(0, most), 0);
    EXPECT_EQ(sums::saturatedProduct(3, qint64(1) << 40), qint64(3) << 40);
    EXPECT_EQ(sums::saturatedProduct(1, most), most);
}

TEST(Sums, stayAtTheLargestCountWhereTheProductDoesNotFit)
{
    EXPECT_EQ(sums::saturatedProduct(2, most), most);
    EXPECT_EQ(sums::saturatedProduct(qint64(1) << 32, qint64(1) << 31), most);
}
