#include "common/Formatters.h"

#include <limits>

#include <gtest/gtest.h>

namespace {

constexpr qint64 kilo = 1024;
constexpr qint64 mega = kilo * kilo;
constexpr qint64 giga = mega * kilo;
constexpr qint64 tera = giga * kilo;

void expectBytes(qint64 bytes, const char *text)
{
    EXPECT_EQ(formatBytes(bytes).toStdString(), text) << bytes;
}

Date daysBefore(Date now, int days)
{
    return now - std::chrono::hours(24 * days);
}

/// A day in June: whatever the tests go back to lies on the same side of the changes of clocks.
const Date noon = dates::fromUnix(1718884800, 0);

QString dayText(int days)
{
    return relativeDayText(daysBefore(noon, days), noon);
}

} // namespace

TEST(FormatBytes, hasNoDecimalsForNothing)
{
    expectBytes(0, "0 B");
}

TEST(FormatBytes, showsOneDecimalBelowTenOfTheUnit)
{
    expectBytes(1, "1.0 B");
    expectBytes(9, "9.0 B");
    expectBytes(1024, "1.0 KB");
    expectBytes(1536, "1.5 KB");
    expectBytes(10239, "10.0 KB");
}

TEST(FormatBytes, showsNoDecimalFromTenOfTheUnit)
{
    expectBytes(10, "10 B");
    expectBytes(1023, "1023 B");
    expectBytes(10240, "10 KB");
    expectBytes(999 * kilo, "999 KB");
}

TEST(FormatBytes, takesTheUnitFromTheLogarithmAndRoundsOnlyInTheFormat)
{
    expectBytes(mega - 1, "1024 KB");
    expectBytes(giga - 1, "1024 MB");
    expectBytes(tera - 1, "1024 GB");
}

TEST(FormatBytes, beginsEachUnitAtItsPowerOf1024)
{
    expectBytes(mega, "1.0 MB");
    expectBytes(giga, "1.0 GB");
    expectBytes(tera, "1.0 TB");
}

TEST(FormatBytes, roundsTiesToTheEvenDigit)
{
    expectBytes(10 * kilo + 512, "10 KB");
    expectBytes(11 * kilo + 512, "12 KB");
    expectBytes(kilo + 256, "1.2 KB");
    expectBytes(kilo + 768, "1.8 KB");
}

TEST(FormatBytes, reachesUpToTheLastCountBelow1024Terabytes)
{
    expectBytes(1023 * tera, "1023 TB");
    expectBytes(1024 * tera - 1, "1024 TB");
}

TEST(FormatBytesDeathTest, endsTheProgramOnCountsWithoutAText)
{
    EXPECT_DEATH(formatBytes(-1), "has no text");
    EXPECT_DEATH(formatBytes(1024 * tera), "has no text");
}

TEST(ClampedBytes, keepsCountsWithAText)
{
    EXPECT_EQ(clampedBytes(0), 0);
    EXPECT_EQ(clampedBytes(4711), 4711);
    EXPECT_EQ(clampedBytes(1024 * tera - 1), 1024 * tera - 1);
}

TEST(ClampedBytes, bringsOtherCountsToTheNearestOne)
{
    EXPECT_EQ(clampedBytes(-1), 0);
    EXPECT_EQ(clampedBytes(std::numeric_limits<qint64>::min()), 0);
    EXPECT_EQ(clampedBytes(1024 * tera), 1024 * tera - 1);
    EXPECT_EQ(clampedBytes(std::numeric_limits<qint64>::max()), 1024 * tera - 1);
}

TEST(ColorFromHex, readsSixDigitsAsOpaqueRedGreenBlue)
{
    EXPECT_EQ(colorFromHex(QStringLiteral("ff8000")), (Color{1.0, 128 / 255.0, 0.0, 1.0}));
    EXPECT_EQ(colorFromHex(QStringLiteral("58A6FF")), colorFromHex(QStringLiteral("58a6ff")));
}

TEST(ColorFromHex, readsEightDigitsWithAlphaFirst)
{
    EXPECT_EQ(colorFromHex(QStringLiteral("80ff0001")), (Color{1.0, 0.0, 1 / 255.0, 128 / 255.0}));
}

TEST(ColorFromHex, trimsWhatIsNotAlphanumericFromBothEnds)
{
    const Color blue{0, 0, 1, 1};
    EXPECT_EQ(colorFromHex(QStringLiteral("#0000ff")), blue);
    EXPECT_EQ(colorFromHex(QStringLiteral(" \t##0000ff;\n")), blue);
}

TEST(ColorFromHex, givesOpaqueBlackForAnyOtherLength)
{
    const Color black{0, 0, 0, 1};
    for (const char *text : {"", "#", "fff", "fffff", "fffffff", "fffffffff", "f f f"})
        EXPECT_EQ(colorFromHex(QString::fromLatin1(text)), black) << text;
}

TEST(ColorFromHex, readsTheLeadingHexadecimalDigitsOnly)
{
    EXPECT_EQ(colorFromHex(QStringLiteral("zzzzzz")), (Color{0, 0, 0, 1}));
    EXPECT_EQ(colorFromHex(QStringLiteral("ffzzzz")), (Color{0, 0, 1, 1}));
    EXPECT_EQ(colorFromHex(QStringLiteral("0x00ff")), (Color{0, 0, 1, 1}));
    EXPECT_EQ(colorFromHex(QStringLiteral("ff ff ff")), (Color{0, 0, 1, 0})); // eight characters
    EXPECT_EQ(colorFromHex(QStringLiteral("zzzzzzzz")), (Color{0, 0, 0, 0}));
}

TEST(ColorText, writesAlphaFirst)
{
    EXPECT_EQ(colorText(QStringLiteral("58a6ff")), QStringLiteral("#ff58a6ff"));
    EXPECT_EQ(colorText(QStringLiteral("0a58a6ff")), QStringLiteral("#0a58a6ff"));
    EXPECT_EQ(colorText(QStringLiteral("no colour")), QStringLiteral("#ff000000"));
}

TEST(RelativeDayText, isUnknownWithoutADate)
{
    EXPECT_EQ(relativeDayText(std::nullopt, noon), QStringLiteral("Unknown"));
}

TEST(RelativeDayText, hasWordsForTheFirstTwoDays)
{
    EXPECT_EQ(dayText(0), QStringLiteral("Today"));
    EXPECT_EQ(dayText(1), QStringLiteral("Yesterday"));
}

TEST(RelativeDayText, countsElapsedDaysAndNotMidnights)
{
    EXPECT_EQ(relativeDayText(noon - std::chrono::hours(23), noon), QStringLiteral("Today"));
    EXPECT_EQ(relativeDayText(noon - std::chrono::hours(25), noon), QStringLiteral("Yesterday"));
}

TEST(RelativeDayText, countsDaysUpToSix)
{
    EXPECT_EQ(dayText(2), QStringLiteral("2 days ago"));
    EXPECT_EQ(dayText(6), QStringLiteral("6 days ago"));
}

TEST(RelativeDayText, countsDatesToComeAsNegativeDays)
{
    EXPECT_EQ(dayText(-1), QStringLiteral("-1 days ago"));
    EXPECT_EQ(dayText(-400), QStringLiteral("-400 days ago"));
}

TEST(RelativeDayText, hasNoSingularForm)
{
    EXPECT_EQ(dayText(7), QStringLiteral("1 weeks ago"));
    EXPECT_EQ(dayText(30), QStringLiteral("1 months ago"));
    EXPECT_EQ(dayText(365), QStringLiteral("1 years ago"));
}

TEST(RelativeDayText, truncatesWeeksMonthsAndYears)
{
    EXPECT_EQ(dayText(13), QStringLiteral("1 weeks ago"));
    EXPECT_EQ(dayText(14), QStringLiteral("2 weeks ago"));
    EXPECT_EQ(dayText(29), QStringLiteral("4 weeks ago"));
    EXPECT_EQ(dayText(59), QStringLiteral("1 months ago"));
    EXPECT_EQ(dayText(60), QStringLiteral("2 months ago"));
    EXPECT_EQ(dayText(364), QStringLiteral("12 months ago"));
    EXPECT_EQ(dayText(729), QStringLiteral("1 years ago"));
    EXPECT_EQ(dayText(730), QStringLiteral("2 years ago"));
}

TEST(ElapsedDaysText, isThatOfTheDate)
{
    EXPECT_EQ(elapsedDaysText(0), u"Today");
    EXPECT_EQ(elapsedDaysText(-2), u"-2 days ago");
    EXPECT_EQ(elapsedDaysText(29), u"4 weeks ago");
    EXPECT_EQ(elapsedDaysText(365), u"1 years ago");
}
