#include "duplicates/screen/DuplicateRows.h"

#include "duplicates/screen/ShownGroups.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {
using DuplicateRowsShrink = ShownGroups;
using Range = std::pair<int, int>;
} // namespace

TEST_F(DuplicateRowsShrink, goOneByOneAfterADeleteRun)
{
    showFour();
    const QSignalSpy resets(&rows, &QAbstractItemModel::modelReset);
    QSignalSpy removals(&rows, &QAbstractItemModel::rowsRemoved);
    QSignalSpy changes(&rows, &QAbstractItemModel::dataChanged);
    takeAway(2, 0);
    takeAway(0, 1);
    takeAway(1);
    rows.shrink(all());
    EXPECT_EQ(texts("title"), u"a0 a0 a2 c1 c1 c2 d0 d0 d1"_s);
    EXPECT_EQ(texts("isLast"), u"false false true false false true false false true"_s);
    EXPECT_EQ(text(0, "detail"), u"2 copies · 10 B each · 10 B wasted"_s);
    EXPECT_EQ(resets.count(), 0);
    ASSERT_EQ(removals.count(), 3); // from the end
    EXPECT_EQ(removals[0].mid(1), QList<QVariant>({8, 8}));
    EXPECT_EQ(removals[1].mid(1), QList<QVariant>({4, 6}));
    EXPECT_EQ(removals[2].mid(1), QList<QVariant>({2, 2}));
    ASSERT_EQ(changes.count(), 1); // the heads count what is left
    EXPECT_EQ(range(changes[0]), Range(0, 8));
    rows.refreshFile(2, 1); // the last group is another one by now
    EXPECT_EQ(range(changes[1]), Range(8, 8));
    EXPECT_EQ(rows.row(8)->group, 2U);
    EXPECT_EQ(rows.row(8)->file, 1);
}

TEST_F(DuplicateRowsShrink, goAllAtOnceWithTheWholeList)
{
    showFour();
    QSignalSpy removals(&rows, &QAbstractItemModel::rowsRemoved);
    groups.clear();
    rows.shrink({});
    EXPECT_EQ(rows.rowCount(), 0);
    ASSERT_EQ(removals.count(), 1);
    EXPECT_EQ(removals[0].mid(1), QList<QVariant>({0, 13}));
}

TEST_F(DuplicateRowsShrink, stayWhereNothingHasGone)
{
    showFour();
    const QSignalSpy removals(&rows, &QAbstractItemModel::rowsRemoved);
    const QSignalSpy resets(&rows, &QAbstractItemModel::modelReset);
    rows.shrink(all());
    EXPECT_EQ(rows.rowCount(), 14);
    EXPECT_EQ(removals.count() + resets.count(), 0);
}

TEST_F(DuplicateRowsShrink, answerRightlyInTheMiddleOfARemoval)
{
    showFour();
    QStringList answers;
    const auto take = [&] {
        for (int row = 0; row < rows.rowCount(); ++row) // a row that is about to go has nothing to say
            EXPECT_EQ(rows.row(row) == nullptr, text(row, "title").isEmpty()) << row;
        answers << columnTexts(&rows, "title").join(u',');
    };
    QObject::connect(&rows, &QAbstractItemModel::rowsAboutToBeRemoved, &rows, take);
    QObject::connect(&rows, &QAbstractItemModel::rowsRemoved, &rows, take);
    takeAway(2, 0);
    takeAway(0, 1);
    takeAway(1);
    rows.shrink(all());
    EXPECT_EQ(answers, QStringList({
                           u"a0,a0,,a2,,,,c1,,c1,c2,d0,d0,d1"_s,
                           u"a0,a0,,a2,,,,c1,c1,c2,d0,d0,d1"_s,
                           u"a0,a0,,a2,,,,c1,c1,c2,d0,d0,d1"_s,
                           u"a0,a0,,a2,c1,c1,c2,d0,d0,d1"_s,
                           u"a0,a0,,a2,c1,c1,c2,d0,d0,d1"_s,
                           u"a0,a0,a2,c1,c1,c2,d0,d0,d1"_s,
                       }));
}

TEST_F(DuplicateRowsShrink, sayNothingOfFilesThatAreGoneBeforeTheListKnows)
{
    showFour();
    takeAway(3);
    takeAway(2, 2);
    for (const int row : {10, 11, 12, 13}) {
        EXPECT_EQ(rows.row(row), nullptr) << row;
        EXPECT_FALSE(rowValue(&rows, row, "title").isValid()) << row;
    }
    EXPECT_EQ(text(9, "title"), u"c1"_s);
}

TEST_F(DuplicateRowsShrink, goOneByOneInUpToAHundredPlaces)
{
    showTriples(101);
    const QSignalSpy removals(&rows, &QAbstractItemModel::rowsRemoved);
    const QSignalSpy resets(&rows, &QAbstractItemModel::modelReset);
    for (size_t index = 0; index < 100; ++index)
        takeAway(index, 1);
    rows.shrink(all());
    EXPECT_EQ(removals.count(), 100);
    EXPECT_EQ(resets.count(), 0);
    EXPECT_EQ(rows.rowCount(), 304);
    EXPECT_EQ(text(299, "detail") + text(303, "detail"), u"/99/z/100/z"_s);
}

TEST_F(DuplicateRowsShrink, areTakenAnewAfterMoreThanAHundredRemovals)
{
    showTriples(101);
    const QSignalSpy removals(&rows, &QAbstractItemModel::rowsRemoved);
    const QSignalSpy resets(&rows, &QAbstractItemModel::modelReset);
    for (size_t index = 0; index < 101; ++index)
        takeAway(index, 1);
    rows.shrink(all());
    EXPECT_EQ(removals.count(), 0);
    EXPECT_EQ(resets.count(), 1);
    EXPECT_EQ(rows.rowCount(), 303);
    EXPECT_EQ(text(302, "detail"), u"/100/z"_s);
}

TEST_F(DuplicateRowsShrink, areTakenAnewWhereAGroupComesIntoViewAsOthersGo)
{
    showFour();
    rows.show({0, 2});
    const QSignalSpy removals(&rows, &QAbstractItemModel::rowsRemoved);
    const QSignalSpy resets(&rows, &QAbstractItemModel::modelReset);
    takeAway(0);
    rows.shrink({0, 1}); // "b0" passes the filter now
    EXPECT_EQ(texts("title"), u"b0 b0 b1 c0 c0 c1 c2"_s);
    EXPECT_EQ(removals.count(), 0);
    EXPECT_EQ(resets.count(), 1);
}

TEST_F(DuplicateRowsShrink, stayUnderAFilterWhereAHiddenGroupGoes)
{
    showFour();
    rows.show({1, 3});
    const QSignalSpy removals(&rows, &QAbstractItemModel::rowsRemoved);
    const QSignalSpy resets(&rows, &QAbstractItemModel::modelReset);
    takeAway(2);
    takeAway(0);
    rows.shrink({0, 1});
    EXPECT_EQ(texts("title"), u"b0 b0 b1 d0 d0 d1"_s);
    EXPECT_EQ(removals.count() + resets.count(), 0);
    EXPECT_EQ(rows.row(3)->group, 1U);
}
