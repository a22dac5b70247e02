#include "base/Text.h"

#include <limits>

#include <gtest/gtest.h>

TEST(ParseInteger, readsDigitsWithAnOptionalSign)
{
    EXPECT_EQ(text::parseInteger("0"), 0);
    EXPECT_EQ(text::parseInteger("007"), 7);
    EXPECT_EQ(text::parseInteger("+42"), 42);
    EXPECT_EQ(text::parseInteger("-42"), -42);
}

TEST(ParseInteger, readsTheWholeRangeOf64Bits)
{
    EXPECT_EQ(text::parseInteger("9223372036854775807"), std::numeric_limits<qint64>::max());
    EXPECT_EQ(text::parseInteger("-9223372036854775808"), std::numeric_limits<qint64>::min());
}

TEST(ParseInteger, refusesValuesBeyond64Bits)
{
    EXPECT_EQ(text::parseInteger("9223372036854775808"), std::nullopt);
    EXPECT_EQ(text::parseInteger("-9223372036854775809"), std::nullopt);
    EXPECT_EQ(text::parseInteger("99999999999999999999999"), std::nullopt);
}

TEST(ParseInteger, refusesWhatIsNotWhollyDigits)
{
    for (const char *digits : {"", "+", "-", "+-1", "--1", "-+1", "++1", " 1", "1 ", "1\n", "1.0", "1,000",
                               "0x10", "1e3", "one", "\xD9\xA1"})
        EXPECT_EQ(text::parseInteger(digits), std::nullopt) << digits;
}

TEST(ParseInteger, refusesANulBehindTheDigits)
{
    EXPECT_EQ(text::parseInteger(QByteArrayView("1\0", 2)), std::nullopt);
}

TEST(ParseInteger, refusesAViewOfNothing)
{
    EXPECT_EQ(text::parseInteger(QByteArrayView()), std::nullopt);
}
