#include "disk/Treemap.h"

#include <QStringList>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <ostream>
#include <random>

#include <gtest/gtest.h>

// How a failure shows a rectangle.
// NOLINTNEXTLINE(readability-identifier-naming): the test library calls it by this name
void PrintTo(const QRectF &rect, std::ostream *stream)
{
    *stream << '(' << rect.x() << ", " << rect.y() << ", " << rect.width() << ", " << rect.height() << ')';
}

namespace {

/// Categories "0", "1", … of these sizes; the colour is the name too.
std::vector<StorageCategory> categoriesOf(const std::vector<qint64> &sizes)
{
    std::vector<StorageCategory> categories;
    for (const qint64 size : sizes) {
        const QString name = QString::number(categories.size());
        categories.push_back({QUuid::createUuid(), name, size, name, "doc.fill", {}});
    }
    return categories;
}

QStringList namesOf(const std::vector<TreemapItem> &items)
{
    QStringList names;
    for (const TreemapItem &item : items)
        names << item.name;
    return names;
}

std::vector<TreemapItem> layoutOf(const std::vector<qint64> &sizes, double width, double height)
{
    return layoutTreemap(categoriesOf(sizes), width, height);
}

bool isSame(const QRectF &rect, const QRectF &expected)
{
    const auto close = [](double left, double right) { return std::abs(left - right) < 1e-9; };
    return close(rect.x(), expected.x()) && close(rect.y(), expected.y())
           && close(rect.width(), expected.width()) && close(rect.height(), expected.height());
}

void expectRects(const std::vector<TreemapItem> &items, const std::vector<QRectF> &expected)
{
    ASSERT_EQ(items.size(), expected.size());
    for (size_t i = 0; i < items.size(); ++i) {
        EXPECT_TRUE(isSame(items[i].rect, expected[i])) << i << ": " << testing::PrintToString(items[i].rect)
                                                        << " is not " << testing::PrintToString(expected[i]);
    }
}

double areaOf(const QRectF &rect)
{
    return rect.width() * rect.height();
}

/// The area that two rectangles share.
double overlap(const QRectF &left, const QRectF &right)
{
    const double width = std::min(left.right(), right.right()) - std::max(left.left(), right.left());
    const double height = std::min(left.bottom(), right.bottom()) - std::max(left.top(), right.top());
    return width > 0 && height > 0 ? width * height : 0;
}

/// Areas in proportion, everything inside, nothing over anything else, in order of size.
void expectFaithful(const std::vector<qint64> &sizes, double width, double height)
{
    const double tolerance = 1e-9 * width * height;
    const double total = std::accumulate(sizes.begin(), sizes.end(), 0.0);
    const auto positive = std::count_if(sizes.begin(), sizes.end(), [](qint64 size) { return size > 0; });
    const auto items = layoutOf(sizes, width, height);
    ASSERT_EQ(static_cast<qsizetype>(items.size()), positive);
    for (size_t i = 0; i < items.size(); ++i) {
        const QRectF &rect = items[i].rect;
        EXPECT_EQ(items[i].size, static_cast<double>(sizes[items[i].name.toULongLong()]));
        EXPECT_EQ(items[i].color, items[i].name);
        EXPECT_NEAR(areaOf(rect), items[i].size / total * width * height, tolerance);
        EXPECT_GE(rect.left(), -1e-9 * width);
        EXPECT_GE(rect.top(), -1e-9 * height);
        EXPECT_LE(rect.right(), width * (1 + 1e-9));
        EXPECT_LE(rect.bottom(), height * (1 + 1e-9));
        for (size_t j = 0; j < i; ++j) {
            EXPECT_LE(overlap(rect, items[j].rect), tolerance) << j << " over " << i;
            EXPECT_GE(items[j].size, items[i].size);
        }
    }
}

} // namespace

TEST(Treemap, threeItemsAreSplitWhereTheWorseAspectIsLeast)
{
    // Behind the first: 60 x 100 and 40 x 100, worst 2.5. Behind the second: 90 x 100 and 10 x 100, worst 10.
    expectRects(layoutOf({60, 30, 10}, 100, 100), {{0, 0, 60, 100}, {60, 0, 40, 75}, {60, 75, 40, 25}});
}

TEST(Treemap, twoItemsInATallRectangleLieAboveEachOther)
{
    expectRects(layoutOf({75, 25}, 80, 200), {{0, 0, 80, 150}, {0, 150, 80, 50}});
}

TEST(Treemap, twoItemsInASquareOrAWideRectangleLieBesideEachOther)
{
    expectRects(layoutOf({3, 1}, 100, 100), {{0, 0, 75, 100}, {75, 0, 25, 100}});
    expectRects(layoutOf({3, 1}, 200, 80), {{0, 0, 150, 80}, {150, 0, 50, 80}});
}

TEST(Treemap, fourEqualItemsInASquareMakeQuarters)
{
    expectRects(layoutOf({1, 1, 1, 1}, 100, 100),
                {{0, 0, 50, 50}, {0, 50, 50, 50}, {50, 0, 50, 50}, {50, 50, 50, 50}});
}

TEST(Treemap, ofEquallyGoodSplitsTheFirstIsTaken)
{
    // Behind the first and behind the second the worse part is 32 x 96.
    expectRects(layoutOf({5, 5, 5}, 96, 96), {{0, 0, 32, 96}, {32, 0, 64, 48}, {32, 48, 64, 48}});
}

TEST(Treemap, sidesBelowAPointCountAsOnePointInAnAspect)
{
    // By true aspects this square would be quartered as a large one is. Here the worst aspect of every cut is 0.5
    // over 1, so the first one is taken, and likewise in the rest.
    expectRects(layoutOf({1, 1, 1, 1}, 0.5, 0.5), {{0, 0, 0.125, 0.5},
                                                   {0.125, 0, 0.375, 0.5 / 3},
                                                   {0.125, 0.5 / 3, 0.1875, 1.0 / 3},
                                                   {0.3125, 0.5 / 3, 0.1875, 1.0 / 3}});
}

TEST(Treemap, aSingleItemGetsTheWholeRectangle)
{
    const auto items = layoutOf({7}, 120, 30);
    expectRects(items, {{0, 0, 120, 30}});
    EXPECT_EQ(items.front().size, 7);
}

TEST(Treemap, isEmptyWithoutItemsBytesOrRoom)
{
    EXPECT_TRUE(layoutOf({}, 100, 100).empty());
    EXPECT_TRUE(layoutOf({0, 0}, 100, 100).empty());
    EXPECT_TRUE(layoutOf({1, 2}, 0, 100).empty());
    EXPECT_TRUE(layoutOf({1, 2}, 100, 0).empty());
    EXPECT_TRUE(layoutOf({1, 2}, -5, 100).empty());
    EXPECT_TRUE(layoutOf({1, 2}, std::nan(""), 100).empty());
}

TEST(Treemap, itemsOfSizeZeroHaveNoRectangle)
{
    EXPECT_EQ(namesOf(layoutOf({0, 5, 0, 3, 0}, 100, 100)), QStringList({"1", "3"}));
    EXPECT_EQ(namesOf(layoutOf({0, 5}, 100, 100)), QStringList({"1"}));
    expectRects(layoutOf({5, 0}, 100, 100), {{0, 0, 100, 100}});
}

TEST(Treemap, rectanglesComeInOrderOfSizeAndEqualOnesAsTheyCame)
{
    EXPECT_EQ(namesOf(layoutOf({1, 9, 4, 9, 4, 1}, 300, 200)), QStringList({"1", "3", "2", "4", "0", "5"}));
}

TEST(Treemap, theIndexOfARectangleIsThatOfItsCategoryInTheSortedList)
{
    const auto categories = categoriesOf({3, 0, 8, 5, 8, 2});
    const auto sorted = sortedForTreemap(categories);
    const auto items = layoutTreemap(categories, 300, 200);
    ASSERT_EQ(items.size(), 5U);
    for (size_t i = 0; i < items.size(); ++i)
        EXPECT_EQ(items[i].name, sorted[i].name) << i;
}

TEST(Treemap, severalItemsDeeperThan31CutsBecomeOneOther)
{
    std::vector<qint64> sizes; // each half of the one before, so that each cut takes one item off
    for (int i = 0; i < 40; ++i)
        sizes.push_back(qint64(1) << (50 - i));
    const auto items = layoutOf(sizes, 1000, 1000);
    ASSERT_EQ(items.size(), 33U);
    EXPECT_EQ(items[31].name, "31");
    EXPECT_EQ(items[31].size, static_cast<double>(sizes[31]));
    double rest = 0;
    for (size_t i = 32; i < sizes.size(); ++i)
        rest += static_cast<double>(sizes[i]);
    EXPECT_EQ(items[32].name, "Other");
    EXPECT_EQ(items[32].size, rest);
    EXPECT_EQ(items[32].color, "32");
}

TEST(Treemap, theLastOfTheSkewedOnesKeepsItsNameWhenItIsAlone)
{
    std::vector<qint64> sizes;
    for (int i = 0; i < 33; ++i)
        sizes.push_back(qint64(1) << (50 - i));
    const auto items = layoutOf(sizes, 1000, 1000);
    ASSERT_EQ(items.size(), 33U);
    EXPECT_EQ(items.back().name, "32");
}

TEST(Treemap, areasFollowSizesInsideTheRectangleWithoutOverlap)
{
    std::mt19937_64 random(20'240'101);
    const auto upTo = [&random](qint64 most) {
        return std::uniform_int_distribution<qint64>(0, most)(random);
    };
    for (int round = 0; round < 200; ++round) {
        std::vector<qint64> sizes(static_cast<size_t>(1 + upTo(59)));
        const qint64 most = qint64(1) << (1 + upTo(48));
        for (qint64 &size : sizes)
            size = upTo(most);
        sizes.front() += 1; // so that there is something to show
        const double width = 1 + static_cast<double>(upTo(200'000)) / 100;
        const double height = 1 + static_cast<double>(upTo(200'000)) / 100;
        SCOPED_TRACE(testing::Message() << "round " << round);
        expectFaithful(sizes, width, height);
    }
}
