#include "base/Text.h"

#include "support/LocaleGuard.h"

#include <QStringList>

#include <algorithm>
#include <limits>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QStringList charactersOf(const QString &text)
{
    QStringList all;
    for (const QStringView character : text::characters(text))
        all << character.toString();
    return all;
}

} // namespace

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

TEST(Characters, areThoseThatAReaderSees)
{
    EXPECT_EQ(charactersOf(u"Zoom"_s), (QStringList{u"Z"_s, u"o"_s, u"o"_s, u"m"_s}));
    EXPECT_EQ(charactersOf(u"cafe\u0301"_s), (QStringList{u"c"_s, u"a"_s, u"f"_s, u"e\u0301"_s}));
    EXPECT_EQ(charactersOf(u"\U0001F1E9\U0001F1EA!"_s), (QStringList{u"\U0001F1E9\U0001F1EA"_s, u"!"_s}))
        << "a flag is two letters";
    const QString family = u"\U0001F468\u200D\U0001F469\u200D\U0001F467"_s;
    EXPECT_EQ(charactersOf(family + u'x'), (QStringList{family, u"x"_s}));
    EXPECT_EQ(charactersOf(u"a\r\nb"_s), (QStringList{u"a"_s, u"\r\n"_s, u"b"_s}));
}

TEST(Characters, ofNothingAreNone)
{
    EXPECT_EQ(charactersOf(QString()), QStringList());
}

TEST(Characters, keepBytesThatAreNoText)
{
    const QString bytes = QString(QChar(0xDC80)) + QChar(0xDCFF);
    EXPECT_EQ(charactersOf(bytes).join(QString()), bytes);
    EXPECT_EQ(charactersOf(bytes).size(), 2);
}

TEST(ContainsLocalized, looksPastTheCase)
{
    const LocaleGuard guard("en_US");
    EXPECT_TRUE(text::containsLocalized(u"Photo Editor"_s, u"EDIT"_s));
    EXPECT_TRUE(text::containsLocalized(u"TITAN"_s, u"titan"_s));
    EXPECT_TRUE(text::containsLocalized(u"Straße"_s, u"STRASSE"_s));
    EXPECT_TRUE(text::containsLocalized(u"ΟΔΟΣ"_s, u"οδος"_s)) << "with the sigma that ends a word";
    EXPECT_FALSE(text::containsLocalized(u"Photo Editor"_s, u"editors"_s));
}

TEST(ContainsLocalized, tellsAccentsApartButNotTheirEncodings)
{
    const LocaleGuard guard("en_US");
    EXPECT_TRUE(text::containsLocalized(u"Caf\u00E9 Editor"_s, u"CAFE\u0301"_s));
    EXPECT_TRUE(text::containsLocalized(u"Cafe\u0301 Editor"_s, u"f\u00C9 "_s));
    EXPECT_FALSE(text::containsLocalized(u"Caf\u00E9 Editor"_s, u"cafe"_s));
    EXPECT_FALSE(text::containsLocalized(u"Cafe\u0301 Editor"_s, u"cafe"_s)) << "nor is a bare e found in it";
}

TEST(ContainsLocalized, goesByTheReadersLanguage)
{
    const QString sharp = u"TITAN"_s;
    {
        const LocaleGuard turkish("tr_TR");
        EXPECT_FALSE(text::containsLocalized(sharp, u"titan"_s));
        EXPECT_TRUE(text::containsLocalized(sharp, u"t\u0131tan"_s));
    }
    const LocaleGuard english("en_US");
    EXPECT_FALSE(text::containsLocalized(sharp, u"t\u0131tan"_s));
}

TEST(ContainsLocalized, findsNothingInAnyText)
{
    EXPECT_TRUE(text::containsLocalized(u"Editor"_s, QString()));
    EXPECT_TRUE(text::containsLocalized(QString(), QString()));
    EXPECT_FALSE(text::containsLocalized(QString(), u"a"_s));
}

TEST(ContainsLocalized, findsBytesThatAreNoText)
{
    EXPECT_TRUE(text::containsLocalized(u"A"_s + QChar(0xDC80) + u'B', QChar(0xDC80) + u"b"_s));
    EXPECT_FALSE(text::containsLocalized(u"A"_s + QChar(0xDC80), QString(QChar(0xDC81))));
}

TEST(Precedes, ordersByCodePoints)
{
    const LocaleGuard guard("sv_SE"); // which is not asked
    QStringList names{u"zebra"_s, u"\u00E9clair"_s, u"Zoo"_s, u"apple"_s,      u"Apple"_s,
                      u"10"_s,    u"9"_s,           u""_s,    u"\U0001F680"_s, u"\uFF21"_s};
    std::stable_sort(names.begin(), names.end(), text::precedes);
    EXPECT_EQ(names, (QStringList{u""_s, u"10"_s, u"9"_s, u"Apple"_s, u"Zoo"_s, u"apple"_s, u"zebra"_s,
                                  u"\u00E9clair"_s, u"\uFF21"_s, u"\U0001F680"_s}))
        << "what takes two units stands behind what takes one";
}

TEST(Precedes, holdsEncodingsOfOneTextForEqual)
{
    EXPECT_FALSE(text::precedes(u"caf\u00E9"_s, u"cafe\u0301"_s));
    EXPECT_FALSE(text::precedes(u"cafe\u0301"_s, u"caf\u00E9"_s));
    EXPECT_TRUE(text::precedes(u"cafe\u0301"_s, u"caf\u00E9 "_s));
    EXPECT_FALSE(text::precedes(u"same"_s, u"same"_s));
}

TEST(Joined, passesOverPartsThatSayNothing)
{
    EXPECT_EQ(text::joined({u"one"_s, {}, u"two"_s, {}}, u", "), u"one, two");
    EXPECT_EQ(text::joined({{}, {}}, u", "), QString());
}
