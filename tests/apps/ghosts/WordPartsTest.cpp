#include "apps/ghosts/WordParts.h"

#include <QStringList>

#include <random>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

WordParts partsOf(const QStringList &words)
{
    WordParts parts;
    for (const QString &word : words)
        parts.add(word);
    return parts;
}

} // namespace

TEST(WordParts, containEachPartOfAWord)
{
    const WordParts parts = partsOf({u"editor"_s, u"ab"_s, QString(), u"photo works"_s});
    for (const QString &text :
         {u"editor"_s, u"edi"_s, u"tor"_s, u"dito"_s, u"e"_s, u"ab"_s, u"b"_s, u"o w"_s})
        EXPECT_TRUE(parts.contains(text)) << text.toStdString();
}

TEST(WordParts, containNothingElse)
{
    const WordParts parts = partsOf({u"editor"_s, u"ab"_s, u"torus"_s, u"reedit"_s});
    for (const QString &text :
         {QString(), u"editors"_s, u"editorab"_s, u"edt"_s, u"reeditor"_s, u"editorus"_s, u"ba"_s, u"z"_s})
        EXPECT_FALSE(parts.contains(text)) << text.toStdString();
    EXPECT_FALSE(WordParts().contains(u"a"_s));
}

TEST(WordParts, areThoseThatOneSearchAWordFinds)
{
    std::mt19937 random(5);
    const auto upTo = [&random](int most) { return std::uniform_int_distribution<int>(0, most)(random); };
    const auto word = [&upTo](int most) {
        QString made;
        for (int left = upTo(most); left > 0; --left)
            made += QLatin1StringView("abc")[upTo(2)];
        return made;
    };
    int contained = 0;
    for (int round = 0; round < 2000; ++round) {
        const QStringList words{word(8), word(8), word(8)};
        const QString text = word(6);
        const bool isContained = !text.isEmpty() && !words.filter(text).isEmpty();
        EXPECT_EQ(partsOf(words).contains(text), isContained)
            << text.toStdString() << " in " << words.join(u' ').toStdString();
        contained += isContained ? 1 : 0;
    }
    EXPECT_GT(contained, 200);
    EXPECT_LT(contained, 1800);
}
