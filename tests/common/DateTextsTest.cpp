#include "common/DateTexts.h"

#include "support/LocaleGuard.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const Date firstOfMarch = dates::fromUnix(1772357400, 0); // 2026-03-01 09:30:00 UTC

} // namespace

TEST(DateTexts, mediumDayIsMonthDayAndYear)
{
    const LocaleGuard reader;
    EXPECT_EQ(datetexts::mediumDay(firstOfMarch), u"Mar 1, 2026"_s);
    EXPECT_EQ(datetexts::mediumDay(dates::fromUnix(1703980800, 0)), u"Dec 31, 2023"_s);
}

TEST(DateTexts, mediumDayIsTheDayInTheReadersTimeZone)
{
    const Date lastSecond = dates::fromUnix(1772409599, 999999999); // of March 1, UTC
    {
        const LocaleGuard reader("en_US", "Asia/Tokyo");
        EXPECT_EQ(datetexts::mediumDay(lastSecond), u"Mar 2, 2026"_s);
    }
    const LocaleGuard reader("en_US", "UTC");
    EXPECT_EQ(datetexts::mediumDay(lastSecond), u"Mar 1, 2026"_s);
}

TEST(DateTexts, mediumDayNamesTheMonthInTheReadersLanguageInTheSameOrder)
{
    const LocaleGuard reader("de_DE", "Europe/Berlin");
    EXPECT_EQ(datetexts::mediumDay(firstOfMarch), u"März 1, 2026"_s);
}

TEST(DateTexts, mediumDayReachesBeforeTheEpoch)
{
    const LocaleGuard reader;
    EXPECT_EQ(datetexts::mediumDay(dates::fromUnix(0, 0)), u"Jan 1, 1970"_s);
    EXPECT_EQ(datetexts::mediumDay(dates::fromUnix(-1, 999999999)), u"Dec 31, 1969"_s);
}

TEST(DateTexts, mediumDayIsADashWhereThereIsNoDate)
{
    const LocaleGuard reader;
    EXPECT_EQ(datetexts::mediumDay(dates::distantPast), u"—"_s);
    // The first real moment is one.
    EXPECT_EQ(datetexts::mediumDay(dates::distantPast + std::chrono::nanoseconds(1)), u"Sep 21, 1677"_s);
}

TEST(DateTexts, shortDateTimeFollowsTheReadersLocale)
{
    {
        const LocaleGuard reader("de_DE", "Europe/Berlin");
        EXPECT_EQ(datetexts::shortDateTime(firstOfMarch), u"01.03.26, 10:30"_s);
    }
    const LocaleGuard reader;
    // The space before the half of the day is a narrow one from ICU 72 on.
    EXPECT_EQ(datetexts::shortDateTime(firstOfMarch).replace(u'\u202F', u' '), u"3/1/26, 9:30 AM"_s);
}
