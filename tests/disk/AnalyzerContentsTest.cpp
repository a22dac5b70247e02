#include "disk/AnalyzerContents.h"

#include <QStringList>

#include <limits>

#include <gtest/gtest.h>

namespace {

FileEntry child(const QString &name, qint64 size, bool isDirectory = false)
{
    return {QUuid::createUuid(), name, "/x/" + name, size, isDirectory, std::nullopt};
}

FileEntry folderOf(std::vector<qint64> sizes)
{
    FileEntry folder = child("folder", 0, true);
    folder.children.emplace();
    for (const qint64 size : sizes)
        folder.children->push_back(child(QStringLiteral("child%1").arg(folder.children->size()), size));
    return folder;
}

std::vector<qint64> sizesOf(const std::vector<StorageCategory> &categories)
{
    std::vector<qint64> sizes;
    for (const StorageCategory &category : categories)
        sizes.push_back(category.size);
    return sizes;
}

using Sizes = std::vector<qint64>;

} // namespace

TEST(AnalyzerMap, twentyEqualChildrenGive12AndEightOthers)
{
    const auto categories = analyzer::mapCategories(folderOf(Sizes(20, 50)));
    ASSERT_EQ(categories.size(), 13U);
    EXPECT_EQ(categories[11].name, "child11");
    EXPECT_EQ(categories[12].name, "8 others");
    EXPECT_EQ(categories[12].size, 400);
    EXPECT_EQ(categories[12].color, "484f58");
    EXPECT_EQ(categories[12].icon, "ellipsis");
    EXPECT_TRUE(categories[12].children.empty());
}

TEST(AnalyzerMap, childOfExactlyTwoPercentIsKept)
{
    for (const qint64 percent : {qint64(1), qint64(3), qint64(7'777'777), qint64(10'000'000'000)}) {
        const auto categories = analyzer::mapCategories(folderOf({98 * percent, 2 * percent}));
        EXPECT_EQ(sizesOf(categories), Sizes({98 * percent, 2 * percent}));
        EXPECT_EQ(categories.back().name, "child1") << percent;
    }
}

TEST(AnalyzerMap, sumBeyond64BitsIsTheLargestCount)
{
    const qint64 most = std::numeric_limits<qint64>::max();
    EXPECT_EQ(sizesOf(analyzer::mapCategories(folderOf({most, most, 1}))), Sizes({most, most}));
    EXPECT_EQ(sizesOf(analyzer::mapCategories(folderOf({most - 5, 3, 9}))), Sizes({most - 5, 5}));
}

TEST(AnalyzerMap, childBelowTwoPercentGoesToTheOthers)
{
    const auto categories = analyzer::mapCategories(folderOf({981, 19}));
    EXPECT_EQ(sizesOf(categories), Sizes({981, 19}));
    EXPECT_EQ(categories.back().name, "1 others");
}

TEST(AnalyzerMap, emptyWithoutChildrenAndWithoutBytes)
{
    EXPECT_TRUE(analyzer::mapCategories(child("unopened", 100, true)).empty());
    EXPECT_TRUE(analyzer::mapCategories(folderOf({})).empty());
    EXPECT_TRUE(analyzer::mapCategories(folderOf({0, 0, 0})).empty());
}

TEST(AnalyzerMap, sharesAreOfTheChildrensSumAndNotOfTheFoldersSize)
{
    FileEntry folder = folderOf({98, 2});
    folder.size = 1'000'000;
    EXPECT_EQ(sizesOf(analyzer::mapCategories(folder)), Sizes({98, 2}));
}

TEST(AnalyzerMap, hasNoOthersWhenNothingIsLeftOut)
{
    EXPECT_EQ(analyzer::mapCategories(folderOf(Sizes(12, 7))).size(), 12U);
}

TEST(AnalyzerMap, hasNoOthersWhenTheLeftOutOnesAreEmpty)
{
    EXPECT_EQ(sizesOf(analyzer::mapCategories(folderOf({5, 0, 0}))), Sizes({5}));
}

TEST(AnalyzerMap, colorsRunThroughThePaletteAndStartAgain)
{
    const QStringList palette = {"58a6ff", "a371f7", "3fb950", "da3633",
                                 "d29922", "39d2c0", "f778ba", "8b949e"};
    const auto categories = analyzer::mapCategories(folderOf(Sizes(12, 1)));
    ASSERT_EQ(categories.size(), 12U);
    for (size_t i = 0; i < categories.size(); ++i)
        EXPECT_EQ(categories[i].color, palette[static_cast<qsizetype>(i % 8)]) << i;
}

TEST(AnalyzerMap, iconTellsAFolderFromAFile)
{
    FileEntry folder = folderOf({});
    folder.children = {child("movies", 60, true), child("movie.mp4", 40)};
    const auto categories = analyzer::mapCategories(folder);
    ASSERT_EQ(categories.size(), 2U);
    EXPECT_EQ(categories[0].icon, "folder.fill");
    EXPECT_EQ(categories[1].icon, "doc.fill");
}

TEST(AnalyzerRowSymbol, goesByTheNameAndTheFirstRuleThatMatches)
{
    const std::pair<const char *, const char *> fileRows[] = {
        {"Tool.APP", "app.fill"},        {"a.jpg", "photo.fill"},
        {"a.jpeg", "photo.fill"},        {"a.PNG", "photo.fill"},
        {"a.gif", "photo.fill"},         {"a.heic", "photo.fill"},
        {"a.webp", "photo.fill"},        {"Mine.photoslibrary", "photo.fill"},
        {"p.xcodeproj", "hammer.fill"},  {"p.xcworkspace", "hammer.fill"},
        {"a.mp4", "film.fill"},          {"a.mov", "film.fill"},
        {"a.avi", "film.fill"},          {"a.mkv", "film.fill"},
        {"a.mp3", "music.note"},         {"a.aac", "music.note"},
        {"a.wav", "music.note"},         {"a.flac", "music.note"},
        {"a.m4a", "music.note"},         {"a.pdf", "doc.richtext.fill"},
        {"a.zip", "doc.zipper"},         {"a.tar.gz", "doc.zipper"},
        {"a.tar", "doc.zipper"},         {"a.rar", "doc.zipper"},
        {"a.7z", "doc.zipper"},          {"a.iso", "externaldrive.fill"},
        {"a.dmg", "externaldrive.fill"}, {"a.svg", "doc.fill"},
        {"a.tiff", "doc.fill"},          {".pdf", "doc.fill"},
        {"plain", "doc.fill"},           {"a.wmv", "doc.fill"},
    };
    for (const auto &[name, symbol] : fileRows)
        EXPECT_EQ(analyzer::rowSymbol(child(name, 1)), symbol) << name;
    for (const char *ext : {"swift", "py", "js", "ts", "java", "c", "cpp", "h"})
        EXPECT_EQ(analyzer::rowSymbol(child(QStringLiteral("a.") + ext, 1)),
                  "chevron.left.forwardslash.chevron.right");
}

TEST(AnalyzerRowSymbol, folderTakesItsRuleOnlyBehindThoseAboveIt)
{
    const std::pair<const char *, const char *> rows[] = {
        {"Tool.app", "app.fill"},       {"holiday.jpg", "photo.fill"}, {"Mine.photoslibrary", "photo.fill"},
        {"p.xcodeproj", "hammer.fill"}, {"clip.mp4", "folder.fill"},   {"a.zip", "folder.fill"},
        {"Documents", "folder.fill"},
    };
    for (const auto &[name, symbol] : rows)
        EXPECT_EQ(analyzer::rowSymbol(child(name, 1, true)), symbol) << name;
}

TEST(AnalyzerShare, isAPartOfTheWholeAndZeroOfNothing)
{
    EXPECT_EQ(analyzer::share(1, 8), 0.125);
    EXPECT_EQ(analyzer::share(5, 5), 1);
    EXPECT_EQ(analyzer::share(5, 0), 0);
    EXPECT_EQ(analyzer::share(0, 0), 0);
}

TEST(AnalyzerShare, textHasOneDecimal)
{
    EXPECT_EQ(analyzer::shareText(0.125), "12.5%");
    EXPECT_EQ(analyzer::shareText(0), "0.0%");
    EXPECT_EQ(analyzer::shareText(1), "100.0%");
    EXPECT_EQ(analyzer::shareText(0.99999), "100.0%");
    EXPECT_EQ(analyzer::shareText(1.0 / 3), "33.3%");
}

TEST(AnalyzerShare, textRoundsTiesToTheEvenDigit)
{
    EXPECT_EQ(analyzer::shareText(analyzer::share(1, 16)), "6.2%");    // 6.25
    EXPECT_EQ(analyzer::shareText(analyzer::share(3, 16)), "18.8%");   // 18.75
    EXPECT_EQ(analyzer::shareText(analyzer::share(49, 400)), "12.2%"); // 12.25
}
