#include "base/Date.h"

#include "support/LocaleGuard.h"

#include <limits>

#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace {

Date utc(std::chrono::year_month_day day, std::chrono::nanoseconds time = 0ns)
{
    return std::chrono::sys_days(day) + time;
}

} // namespace

TEST(WholeDays, countsElapsedDaysAndNotMidnights)
{
    const LocaleGuard zone("en_US", "UTC");
    const Date evening = utc(2024y / 5 / 10, 23h);
    EXPECT_EQ(dates::wholeDaysBetween(evening, evening), 0);
    EXPECT_EQ(dates::wholeDaysBetween(evening, evening + 2h), 0);
    EXPECT_EQ(dates::wholeDaysBetween(evening, evening + 24h - 1ms), 0);
    EXPECT_EQ(dates::wholeDaysBetween(evening, evening + 24h), 1);
    EXPECT_EQ(dates::wholeDaysBetween(evening, evening + 48h - 1ms), 1);
}

TEST(WholeDays, takeTheShortDayOfSpringAsADay)
{
    const LocaleGuard zone("en_US", "Europe/Berlin");
    const Date midnight = utc(2023y / 3 / 25, 23h); // 26 March, on which the clocks skip an hour
    EXPECT_EQ(dates::wholeDaysBetween(midnight, midnight + 23h), 1);
    EXPECT_EQ(dates::wholeDaysBetween(midnight, midnight + 23h - 1ms), 0);
}

TEST(WholeDays, takeTheLongDayOfAutumnAsADay)
{
    const LocaleGuard zone("en_US", "Europe/Berlin");
    const Date midnight = utc(2023y / 10 / 28, 22h); // 29 October, which has an hour twice
    EXPECT_EQ(dates::wholeDaysBetween(midnight, midnight + 24h), 0);
    EXPECT_EQ(dates::wholeDaysBetween(midnight, midnight + 25h), 1);
}

TEST(WholeDays, countByTheCurrentZone)
{
    const Date midnight = utc(2023y / 3 / 25, 23h);
    const LocaleGuard zone("en_US", "UTC");
    EXPECT_EQ(dates::wholeDaysBetween(midnight, midnight + 23h), 0);
}

TEST(WholeDays, spanAChangeOfClocksInAWeek)
{
    const LocaleGuard zone("en_US", "America/New_York");
    const Date noon = utc(2024y / 3 / 7, 17h);
    EXPECT_EQ(dates::wholeDaysBetween(noon, noon + 7 * 24h - 1h), 7);
    EXPECT_EQ(dates::wholeDaysBetween(noon, noon + 7 * 24h - 2h), 6);
}

TEST(WholeDays, areNegativeBackwardsAndTruncatedTowardZero)
{
    const LocaleGuard zone("en_US", "Europe/Berlin");
    const Date midnight = utc(2023y / 3 / 26, 22h); // 27 March
    EXPECT_EQ(dates::wholeDaysBetween(midnight, midnight - 23h), -1);
    EXPECT_EQ(dates::wholeDaysBetween(midnight, midnight - 23h + 1ms), 0);
    EXPECT_EQ(dates::wholeDaysBetween(midnight, midnight - 23h - 24h + 1ms), -1);
    EXPECT_EQ(dates::wholeDaysBetween(midnight, midnight - 23h - 24h), -2);
}

TEST(WholeDays, reachFromTheDistantPastToTheFarFuture)
{
    const LocaleGuard zone("en_US", "UTC");
    const Date epoch;
    EXPECT_EQ(dates::wholeDaysBetween(dates::distantPast, epoch), 106751);
    EXPECT_EQ(dates::wholeDaysBetween(epoch, dates::distantPast), -106751);
    EXPECT_EQ(dates::wholeDaysBetween(epoch, Date::max()), 106751);
    EXPECT_EQ(dates::wholeDaysBetween(dates::distantPast, Date::max()), 213503);
}

TEST(WholeDays, countAcrossTheEpoch)
{
    const LocaleGuard zone("en_US", "UTC");
    EXPECT_EQ(dates::wholeDaysBetween(Date(-12h), Date(12h)), 1);
    EXPECT_EQ(dates::wholeDaysBetween(Date(-12h), Date(12h - 1ms)), 0);
    EXPECT_EQ(dates::wholeDaysBetween(Date(-1ns), Date(0ns)), 0);
}

TEST(SecondsBetween, keepFractionsAndSigns)
{
    const Date start = utc(2024y / 1 / 1);
    EXPECT_EQ(dates::secondsBetween(start, start), 0);
    EXPECT_NEAR(dates::secondsBetween(start, start + 1500ms), 1.5, 1e-6);
    EXPECT_NEAR(dates::secondsBetween(start + 1500ms, start), -1.5, 1e-6);
}

TEST(SecondsBetween, reachFromTheDistantPastToTheFarFuture)
{
    EXPECT_NEAR(dates::secondsBetween(dates::distantPast, Date::max()), 18446744073.709552, 1e-3);
    EXPECT_NEAR(dates::secondsBetween(Date::max(), dates::distantPast), -18446744073.709552, 1e-3);
}

TEST(FromUnix, keepsNanoseconds)
{
    EXPECT_EQ(dates::fromUnix(0, 0), Date());
    EXPECT_EQ(dates::fromUnix(1700000000, 123456789), Date(1700000000s + 123456789ns));
    EXPECT_EQ(dates::fromUnix(-1, 999999999), Date(-1ns));
}

TEST(FromUnix, holdsDatesThatNoFileHasWithinTheRange)
{
    using Seconds = std::numeric_limits<qint64>;
    EXPECT_EQ(dates::fromUnix(Seconds::max(), 999999999), Date::max());
    EXPECT_EQ(dates::fromUnix(Seconds::min(), 0), dates::distantPast);
    EXPECT_EQ(dates::fromUnix(9223372037, 0), Date::max());
    EXPECT_EQ(dates::fromUnix(-9223372037, 0), dates::distantPast);
    EXPECT_LT(dates::fromUnix(9223372035, 999999999), Date::max());
    EXPECT_GT(dates::fromUnix(-9223372035, 0), dates::distantPast);
}
