#include "common/LastScannedPill.h"

#include <QRegularExpression>

#include <cmath>

#include <gtest/gtest.h>

namespace {

constexpr double day = 86400;
const Date scanned = dates::fromUnix(1'600'000'000, 0);

LastScannedPill pillAt(double age, double lifetime = 300)
{
    const auto passed = std::chrono::duration_cast<Date::duration>(std::chrono::duration<double>(age));
    return {scanned, lifetime, scanned + passed};
}

} // namespace

TEST(LastScannedPill, isNotShownWithoutADate)
{
    EXPECT_FALSE((LastScannedPill{std::nullopt, 300, scanned}).isShown());
    EXPECT_EQ((LastScannedPill{std::nullopt, 300, scanned}).text(), QString());
    EXPECT_EQ((LastScannedPill{std::nullopt, 300, scanned}).tooltip(), QString());
    EXPECT_TRUE(pillAt(0).isShown());
}

TEST(LastScannedPill, saysJustNowBelow5Seconds)
{
    EXPECT_EQ(pillAt(4).text(), "Cached · just now");
    EXPECT_EQ(pillAt(4.9).text(), "Cached · just now");
    EXPECT_EQ(pillAt(5).text(), "Cached · 5 sec ago");
}

TEST(LastScannedPill, says1MinuteAt90Seconds)
{
    EXPECT_EQ(pillAt(90).text(), "Cached · 1 min ago");
}

TEST(LastScannedPill, says1DayAtOneDayWhenTheLifetimeAllows)
{
    EXPECT_EQ(pillAt(day, 3 * day).text(), "Cached · 1 day ago");
    EXPECT_EQ(pillAt(day).text(), "Stale · refreshing soon");
}

TEST(LastScannedPill, says2DaysAtTwoDays)
{
    EXPECT_EQ(pillAt(2 * day, 3 * day).text(), "Cached · 2 days ago");
}

TEST(LastScannedPill, ageTextChangesAtItsBounds)
{
    const std::pair<double, const char *> rows[] = {
        {0, "just now"},           {4, "just now"},    {5, "5 sec ago"},      {59.9, "59 sec ago"},
        {60, "1 min ago"},         {119, "1 min ago"}, {3599, "59 min ago"},  {3600, "1 hr ago"},
        {day - 1, "23 hr ago"},    {day, "1 day ago"}, {172799, "1 day ago"}, {172800, "2 days ago"},
        {30 * day, "30 days ago"}, {-100, "just now"},
    };
    for (const auto &[age, text] : rows)
        EXPECT_EQ(ageText(age), text) << age;
}

TEST(LastScannedPill, tellsAllItsTextsForWhatKeepsTheirRoom)
{
    const QStringList texts = LastScannedPill::widestTexts();
    const auto hasFormOf = [&](QString text) {
        const QString form = text.replace(QRegularExpression("\\d+"), "\\d\\d?");
        return !texts.filter(QRegularExpression(QRegularExpression::anchoredPattern(form))).isEmpty();
    };
    for (const double age : {0., 5., 59., 60., 3599., 3600., day - 1, day, 2 * day, 30 * day})
        EXPECT_TRUE(hasFormOf(pillAt(age, 40 * day).text())) << age;
    EXPECT_TRUE(hasFormOf(pillAt(300).text()));
}

TEST(LastScannedPill, isStaleFromTheLifetimeOn)
{
    EXPECT_EQ(pillAt(299.5).text(), "Cached · 4 min ago");
    EXPECT_FALSE(pillAt(299.5).isStale());
    EXPECT_TRUE(pillAt(300).isStale());
    EXPECT_EQ(pillAt(300).text(), "Stale · refreshing soon");
    EXPECT_EQ(pillAt(301).text(), "Stale · refreshing soon");
}

TEST(LastScannedPill, tooltipTellsTheTimeLeft)
{
    EXPECT_EQ(pillAt(174.1).tooltip(), // 125.9 seconds remain
              "Last scanned 2 min ago. Auto-refresh in 2 min 5 sec, or click Refresh to update now.");
    EXPECT_EQ(pillAt(0).tooltip(),
              "Last scanned just now. Auto-refresh in 5 min 0 sec, or click Refresh to update now.");
    EXPECT_EQ(pillAt(299.5).tooltip(),
              "Last scanned 4 min ago. Auto-refresh in 0 min 0 sec, or click Refresh to update now.");
}

TEST(LastScannedPill, tooltipOfAStaleResultPromisesTheNextView)
{
    EXPECT_EQ(pillAt(300).tooltip(), "Cache expired — next view will re-scan automatically.");
}

TEST(LastScannedPill, countsALifetimeBeyond64BitsAsTheLongest)
{
    for (const double lifetime : {0x1p62, 60 * 0x1p63, HUGE_VAL})
        EXPECT_EQ(pillAt(0, lifetime).tooltip(), "Last scanned just now. Auto-refresh in 76861433640456465 "
                                                 "min 4 sec, or click Refresh to update now.");
    EXPECT_TRUE(pillAt(0, std::nan("")).isStale());
}
