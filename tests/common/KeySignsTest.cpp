#include "common/KeySigns.h"

#include <gtest/gtest.h>

namespace {

QString words(const QString &text)
{
    return keysigns::text(text, KeyStyle::words);
}

} // namespace

TEST(KeySigns, stayAsTheyStandWhereSignsAreTheStyle)
{
    for (const char16_t *text : {u"⇧⌘Y", u"⌘+click", u"⌘⌫", u"Open Search (⌘K)", u""})
        EXPECT_EQ(keysigns::text(QString::fromUtf16(text), KeyStyle::signs), QString::fromUtf16(text));
}

TEST(KeySigns, becomeWordsWithCtrlInThePlaceOfCommand)
{
    EXPECT_EQ(words(QStringLiteral("⌘K")), QStringLiteral("Ctrl+K"));
    EXPECT_EQ(words(QStringLiteral("⌥⌘T")), QStringLiteral("Ctrl+Alt+T"));
    EXPECT_EQ(words(QStringLiteral("⌃Q")), QStringLiteral("Meta+Q"));
}

TEST(KeySigns, nameCtrlFirstAndShiftLastWhateverTheirOrder)
{
    EXPECT_EQ(words(QStringLiteral("⇧⌘Y")), QStringLiteral("Ctrl+Shift+Y"));
    EXPECT_EQ(words(QStringLiteral("⌘⇧Y")), QStringLiteral("Ctrl+Shift+Y"));
    EXPECT_EQ(words(QStringLiteral("⇧⌥⌃⌘Y")), QStringLiteral("Ctrl+Meta+Alt+Shift+Y"));
}

TEST(KeySigns, keepThePlusThatIsAlreadyThere)
{
    EXPECT_EQ(words(QStringLiteral("⌘+click")), QStringLiteral("Ctrl+click"));
    EXPECT_EQ(words(QStringLiteral("⇧+click")), QStringLiteral("Shift+click"));
}

TEST(KeySigns, nameTheBackspaceKey)
{
    EXPECT_EQ(words(QStringLiteral("⌘⌫")), QStringLiteral("Ctrl+Backspace"));
    EXPECT_EQ(words(QStringLiteral("⌫")), QStringLiteral("Backspace"));
}

TEST(KeySigns, areFoundInsideAText)
{
    EXPECT_EQ(words(QStringLiteral("Open Search (⌘K)")), QStringLiteral("Open Search (Ctrl+K)"));
    EXPECT_EQ(words(QStringLiteral("⌘1 to ⌘5")), QStringLiteral("Ctrl+1 to Ctrl+5"));
    EXPECT_EQ(words(QStringLiteral("Settings (⌘,)")), QStringLiteral("Settings (Ctrl+,)"));
}

TEST(KeySigns, leaveATextWithoutThemAlone)
{
    EXPECT_EQ(words(QStringLiteral("a + b, 1+1")), QStringLiteral("a + b, 1+1"));
    EXPECT_EQ(words(QString()), QString());
}

TEST(KeySigns, makeSequencesInQtsWords)
{
    EXPECT_EQ(keysigns::sequence(QStringLiteral("⇧⌘Y")), QStringLiteral("Ctrl+Shift+Y"));
    EXPECT_EQ(keysigns::sequence(QStringLiteral("⌘,")), QStringLiteral("Ctrl+,"));
    EXPECT_EQ(keysigns::sequence(QStringLiteral("⌘⌫")), QStringLiteral("Ctrl+Backspace"));
    EXPECT_EQ(keysigns::sequence(QString()), QString());
}
