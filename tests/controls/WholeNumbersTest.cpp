#include "controls/WholeNumbers.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

namespace {

constexpr double most = 1e15;
constexpr double none = std::numeric_limits<double>::quiet_NaN();

double read(const char *text, double from = -most, double to = most)
{
    return WholeNumbers::read(QString::fromUtf8(text), from, to);
}

} // namespace

TEST(WholeNumbers, readsDigitsWithASignAndSpacesAround)
{
    EXPECT_EQ(read("0"), 0);
    EXPECT_EQ(read("007"), 7);
    EXPECT_EQ(read(" -12 "), -12);
    EXPECT_EQ(read("+3"), 3);
    EXPECT_EQ(read("1000000000000000"), most);
}

TEST(WholeNumbers, readsNothingElse)
{
    for (const char *text :
         {"", "-", "1.5", "1e3", "1,000", "0x10", "ten", "1 2", "٣", "99999999999999999999999"})
        EXPECT_TRUE(std::isnan(read(text))) << text;
}

TEST(WholeNumbers, readsNothingOutsideTheRange)
{
    EXPECT_EQ(read("1", 1, 9), 1);
    EXPECT_EQ(read("9", 1, 9), 9);
    EXPECT_TRUE(std::isnan(read("0", 1, 9)));
    EXPECT_TRUE(std::isnan(read("10", 1, 9)));
    EXPECT_TRUE(std::isnan(read("1000000000000001", -1e18, 1e18)));
}

TEST(WholeNumbers, writesDigits)
{
    EXPECT_EQ(WholeNumbers::text(-5), QStringLiteral("-5"));
    EXPECT_EQ(WholeNumbers::text(most), QStringLiteral("1000000000000000"));
    for (const double value : {none, 0.5, 1e18, std::numeric_limits<double>::infinity()})
        EXPECT_EQ(WholeNumbers::text(value), QString()) << value;
}

TEST(WholeNumbers, stepsWithinTheRange)
{
    EXPECT_EQ(WholeNumbers::stepped(5, 1, 0, 10), 6);
    EXPECT_EQ(WholeNumbers::stepped(10, 1, 0, 10), 10);
    EXPECT_EQ(WholeNumbers::stepped(0, -3, 0, 10), 0);
    EXPECT_EQ(WholeNumbers::stepped(most, 1, -1e18, 1e18), most);
    EXPECT_EQ(WholeNumbers::stepped(50, 1, 0, 10), 10);
    EXPECT_EQ(WholeNumbers::stepped(none, 1, 3, 10), 3);
    EXPECT_EQ(WholeNumbers::stepped(5, 1, 10, 0), 10) << "a range the wrong way round";
}
