#include "disk/TreemapView.h"

#include "base/Paths.h"
#include "common/Formatters.h"
#include "disk/AnalyzerContents.h"
#include "support/Rows.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

#include <algorithm>
#include <cmath>
#include <limits>

#include <gtest/gtest.h>

namespace {

StorageCategory category(const QString &name, qint64 size, const QString &color = QStringLiteral("58a6ff"))
{
    return {QUuid::createUuid(), name, size, color, {}, {}};
}

/// The colour of `share` of the one over the rest of the other.
Color mixed(const Color &over, const Color &under, double share)
{
    const auto part = [share](double one, double other) { return one * share + other * (1 - share); };
    return {part(over.red, under.red), part(over.green, under.green), part(over.blue, under.blue)};
}

double luminance(const Color &color)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.red) + 0.7152 * linear(color.green) + 0.0722 * linear(color.blue);
}

double contrast(const Color &one, const Color &other)
{
    const double first = luminance(one) + 0.05;
    const double second = luminance(other) + 0.05;
    return std::max(first, second) / std::min(first, second);
}

/// A colour as the tiles' model writes it: the last six digits count.
Color readColor(const QString &text)
{
    return colorFromHex(text.last(6));
}

class TreemapViewTest : public ::testing::Test
{
protected:
    double number(int row, const char *role) { return rowValue(map.tiles(), row, role).toDouble(); }
    QString text(int row, const char *role) { return rowValue(map.tiles(), row, role).toString(); }
    bool hasLabelAt(double width, double height)
    {
        map.setCategories({category(QStringLiteral("all"), 100)});
        map.resize(width, height);
        return rowValue(map.tiles(), 0, "hasLabel").toBool();
    }
    void recordTaps()
    {
        map.onTap = [this](const StorageCategory &tapped) { taps << tapped.name; };
    }

    TreemapView map;
    QAbstractItemModelTester tester{map.tiles(), QAbstractItemModelTester::FailureReportingMode::Fatal};
    QStringList taps;
    const std::vector<StorageCategory> unsorted{category(QStringLiteral("small"), 10),
                                                category(QStringLiteral("large"), 60),
                                                category(QStringLiteral("middle"), 30)};
};

} // namespace

TEST_F(TreemapViewTest, drawsNothingWithoutCategoriesOrRoom)
{
    map.resize(100, 100);
    EXPECT_EQ(map.tiles()->rowCount(), 0);
    map.setCategories(unsorted);
    EXPECT_EQ(map.tiles()->rowCount(), 3);
    map.resize(0, 100);
    EXPECT_EQ(map.tiles()->rowCount(), 0);
}

TEST_F(TreemapViewTest, drawsTheTilesInOrderOfTheirSize)
{
    map.setCategories(unsorted);
    map.resize(100, 100);
    EXPECT_EQ(columnTexts(map.tiles(), "tileName").join(u' '), QStringLiteral("large middle small"));
    EXPECT_EQ(columnTexts(map.tiles(), "sizeText").join(u','), QStringLiteral("60 B,30 B,10 B"));
}

TEST_F(TreemapViewTest, tellsNameAndSizeOfATileInItsTip)
{
    map.setCategories({category(QStringLiteral("two\nlines"), 60)});
    map.resize(10, 10); // too small for a label
    EXPECT_EQ(text(0, "tipText"), QStringLiteral("two↵lines · 60 B"));
}

TEST_F(TreemapViewTest, drawsATileTwoPointsSmallerThanItsRectangleAndCentredOnIt)
{
    map.setCategories(unsorted);
    map.resize(100, 100); // large: 60×100 at the left
    EXPECT_DOUBLE_EQ(number(0, "tileX"), 1);
    EXPECT_DOUBLE_EQ(number(0, "tileY"), 1);
    EXPECT_DOUBLE_EQ(number(0, "tileWidth"), 58);
    EXPECT_DOUBLE_EQ(number(0, "tileHeight"), 98);
    EXPECT_DOUBLE_EQ(number(1, "tileX"), 61); // middle: 40×75 beside it, on top
    EXPECT_DOUBLE_EQ(number(1, "tileHeight"), 73);
}

TEST_F(TreemapViewTest, drawsTilesOnWholePixelsWithGapsOfOneWidth)
{
    map.setCategories({category(QStringLiteral("left"), 577), category(QStringLiteral("top"), 311),
                       category(QStringLiteral("bottom"), 101)});
    for (const double ratio : {1., 1.25, 1.5, 2.}) {
        map.resize(501, 333, ratio);
        ASSERT_EQ(map.tiles()->rowCount(), 3);
        for (int row = 0; row < 3; ++row) {
            for (const char *role : {"tileX", "tileY", "tileWidth", "tileHeight"}) {
                const double pixels = number(row, role) * ratio;
                EXPECT_NEAR(pixels, std::round(pixels), 1e-6) << role << " at " << ratio;
            }
        }
        const double gap = std::round(2 * ratio) / ratio;
        EXPECT_NEAR(number(1, "tileX") - number(0, "tileX") - number(0, "tileWidth"), gap, 1e-6);
        EXPECT_NEAR(number(2, "tileX") - number(0, "tileX") - number(0, "tileWidth"), gap, 1e-6);
        EXPECT_NEAR(number(2, "tileY") - number(1, "tileY") - number(1, "tileHeight"), gap, 1e-6);
    }
}

TEST_F(TreemapViewTest, drawsNoTileOfNegativeExtent)
{
    map.setCategories({category(QStringLiteral("all"), 100)});
    map.resize(1.5, 1);
    EXPECT_EQ(number(0, "tileWidth"), 0);
    EXPECT_EQ(number(0, "tileHeight"), 0);
}

TEST_F(TreemapViewTest, givesASingleCategoryTheWholeViewAndItsLabel)
{
    EXPECT_TRUE(hasLabelAt(200, 100));
    EXPECT_EQ(map.tiles()->rowCount(), 1);
    EXPECT_DOUBLE_EQ(number(0, "tileWidth"), 198);
    EXPECT_DOUBLE_EQ(number(0, "tileHeight"), 98);
}

TEST_F(TreemapViewTest, labelsATileOnlyWhenItsRectangleIsWiderThan55AndTallerThan28)
{
    EXPECT_FALSE(hasLabelAt(55, 100));
    EXPECT_TRUE(hasLabelAt(55.5, 100));
    EXPECT_FALSE(hasLabelAt(100, 28));
    EXPECT_TRUE(hasLabelAt(100, 28.5));
}

TEST_F(TreemapViewTest, drawsNoTileForACategoryOfSizeZero)
{
    map.setCategories({category(QStringLiteral("none"), 0), category(QStringLiteral("all"), 5)});
    map.resize(100, 100);
    EXPECT_EQ(columnTexts(map.tiles(), "tileName"), QStringList{QStringLiteral("all")});
}

TEST_F(TreemapViewTest, givesColoursAsTheLookWritesThem)
{
    map.setCategories({category(QStringLiteral("a"), 2, QStringLiteral("58a6ff")),
                       category(QStringLiteral("b"), 1, QStringLiteral("nothing"))});
    map.resize(100, 100);
    EXPECT_EQ(text(0, "tileColor"), QStringLiteral("#ff58a6ff"));
    EXPECT_EQ(text(1, "tileColor"), QStringLiteral("#ff000000"));
}

TEST_F(TreemapViewTest, writesLabelsDarkOnLightTilesAndWhiteOnDarkOnes)
{
    map.setCategories({category(QStringLiteral("light"), 2, QStringLiteral("58a6ff")),
                       category(QStringLiteral("dark"), 1, QStringLiteral("484f58"))});
    map.resize(100, 100);
    EXPECT_EQ(text(0, "labelColor"), QStringLiteral("#0d1117"));
    EXPECT_EQ(text(1, "labelColor"), QStringLiteral("#ffffff"));
}

TEST_F(TreemapViewTest, labelsReadWellOnEveryColourUnderThePointerToo)
{
    FileEntry folder;
    folder.children.emplace(20, FileEntry{{}, QStringLiteral("child"), {}, 50, true, std::nullopt});
    map.setCategories(analyzer::mapCategories(folder));
    map.resize(1000, 1000);
    ASSERT_EQ(map.tiles()->rowCount(), 13); // all colours of the palette, and that of the rest
    for (int row = 0; row < 13; ++row) {
        const Color tile = readColor(text(row, "tileColor"));
        const Color label = readColor(text(row, "labelColor"));
        const Color hovered = mixed(tile, readColor(text(row, "groundColor")), map.hoveredOpacity);
        EXPECT_GE(contrast(tile, label), 4.5) << qPrintable(text(row, "tileColor"));
        EXPECT_GE(contrast(hovered, label), 4.5) << qPrintable(text(row, "tileColor"));
        const Color lighter = mixed(tile, {1, 1, 1}, map.hoveredOpacity);
        EXPECT_EQ(luminance(hovered) > luminance(tile), contrast(lighter, label) >= 4.5)
            << qPrintable(text(row, "tileColor"));
    }
}

TEST_F(TreemapViewTest, lightensATileUnderThePointerUnlessItsWhiteLabelWouldFade)
{
    map.setCategories({category(QStringLiteral("middle"), 2, QStringLiteral("757575")),
                       category(QStringLiteral("dark"), 1, QStringLiteral("484f58"))});
    map.resize(100, 100);
    EXPECT_EQ(text(0, "labelColor"), QStringLiteral("#ffffff"));
    EXPECT_EQ(text(0, "groundColor"), QStringLiteral("#0d1117"));
    EXPECT_EQ(text(1, "labelColor"), QStringLiteral("#ffffff"));
    EXPECT_EQ(text(1, "groundColor"), QStringLiteral("#ffffff"));
}

TEST_F(TreemapViewTest, showsBytesOfANameThatAreNoTextAndHandsTheNameOnAsItIs)
{
    const QString name = paths::fromBytes("caf\xe9");
    map.setCategories({category(name, 5)});
    map.resize(100, 100);
    EXPECT_EQ(text(0, "tileName"), QStringLiteral("caf\uFFFD"));
    recordTaps();
    map.tap(0);
    EXPECT_EQ(taps, QStringList{name});
}

TEST_F(TreemapViewTest, hasATextForSizesBeyondTheLargestUnit)
{
    map.setCategories({category(QStringLiteral("all"), std::numeric_limits<qint64>::max())});
    map.resize(100, 100);
    EXPECT_EQ(text(0, "sizeText"), QStringLiteral("1024 TB"));
}

TEST_F(TreemapViewTest, tellsWhichTileThePointerIsOn)
{
    const QSignalSpy changes(&map, &TreemapView::hoveredIndexChanged);
    EXPECT_EQ(map.hoveredIndex(), -1);
    map.hover(1);
    map.hover(1);
    EXPECT_EQ(map.hoveredIndex(), 1);
    EXPECT_EQ(changes.count(), 1);
    map.leave(1);
    EXPECT_EQ(map.hoveredIndex(), -1);
    EXPECT_EQ(changes.count(), 2);
}

TEST_F(TreemapViewTest, keepsTheNextTileHoveredWhenTheLastOneIsLeftLate)
{
    map.hover(0);
    map.hover(1);
    map.leave(0);
    EXPECT_EQ(map.hoveredIndex(), 1);
}

TEST_F(TreemapViewTest, hoversNothingOnceTheCategoriesChange)
{
    map.setCategories(unsorted);
    map.hover(2);
    map.setCategories({category(QStringLiteral("all"), 5)});
    EXPECT_EQ(map.hoveredIndex(), -1);
}

TEST_F(TreemapViewTest, handsOnTheCategoryOfTheSortedListAndNotOfTheOneThatCame)
{
    map.setCategories(unsorted);
    map.resize(100, 100);
    recordTaps();
    for (int i = 0; i < 3; ++i)
        map.tap(i);
    EXPECT_EQ(taps.join(u' '), QStringLiteral("large middle small"));
}

TEST_F(TreemapViewTest, handsOnNothingForAnIndexOutsideTheList)
{
    map.setCategories(unsorted);
    recordTaps();
    map.tap(-1);
    map.tap(3);
    EXPECT_EQ(taps, QStringList());
}

TEST_F(TreemapViewTest, takesAClickThatNobodyWaitsFor)
{
    map.setCategories(unsorted);
    EXPECT_NO_THROW(map.tap(0)); // as calling an empty function would
}

TEST_F(TreemapViewTest, survivesAClickThatReplacesItsCategories)
{
    map.setCategories(unsorted);
    map.resize(100, 100);
    map.onTap = [this](const StorageCategory &tapped) {
        map.setCategories({});
        taps << tapped.name;
    };
    map.tap(1);
    EXPECT_EQ(taps, QStringList{QStringLiteral("middle")});
    EXPECT_EQ(map.tiles()->rowCount(), 0);
}
