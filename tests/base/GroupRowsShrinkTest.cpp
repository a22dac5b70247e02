#include "base/GroupRows.h"

#include "NamedGroups.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {
using GroupRowsShrinkTest = NamedGroups;
using Range = std::pair<int, int>;
} // namespace

TEST_F(GroupRowsShrinkTest, goOneByOneAfterADeleteRun)
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
    EXPECT_EQ(text(0, "detail"), u"2"_s);
    EXPECT_EQ(resets.count(), 0);
    ASSERT_EQ(removals.count(), 3); // from the end
    EXPECT_EQ(removals[0].mid(1), QList<QVariant>({8, 8}));
    EXPECT_EQ(removals[1].mid(1), QList<QVariant>({4, 6}));
    EXPECT_EQ(removals[2].mid(1), QList<QVariant>({2, 2}));
    ASSERT_EQ(changes.count(), 1); // the heads count what is left
    EXPECT_EQ(range(changes[0]), Range(0, 8));
    rows.refreshMember(2, 1); // the last group is another one by now
    EXPECT_EQ(range(changes[1]), Range(8, 8));
    EXPECT_EQ(rows.row(8)->group, 2U);
    EXPECT_EQ(rows.row(8)->member, 1);
}

TEST_F(GroupRowsShrinkTest, goAllAtOnceWithTheWholeList)
{
    showFour();
    QSignalSpy removals(&rows, &QAbstractItemModel::rowsRemoved);
    groups.clear();
    rows.shrink({});
    EXPECT_EQ(rows.rowCount(), 0);
    ASSERT_EQ(removals.count(), 1);
    EXPECT_EQ(removals[0].mid(1), QList<QVariant>({0, 13}));
}

TEST_F(GroupRowsShrinkTest, stayWhereNothingHasGone)
{
    showFour();
    const QSignalSpy removals(&rows, &QAbstractItemModel::rowsRemoved);
    const QSignalSpy resets(&rows, &QAbstractItemModel::modelReset);
    rows.shrink(all());
    EXPECT_EQ(rows.rowCount(), 14);
    EXPECT_EQ(removals.count() + resets.count(), 0);
}

TEST_F(GroupRowsShrinkTest, answerRightlyInTheMiddleOfARemoval)
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

TEST_F(GroupRowsShrinkTest, sayNothingOfFilesThatAreGoneBeforeTheListKnows)
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

TEST_F(GroupRowsShrinkTest, goOneByOneInUpToAHundredPlaces)
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
    EXPECT_EQ(text(299, "detail") + text(303, "detail"), u"(99z)(100z)"_s);
}

TEST_F(GroupRowsShrinkTest, areTakenAnewAfterMoreThanAHundredRemovals)
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
    EXPECT_EQ(text(302, "detail"), u"(100z)"_s);
}

TEST_F(GroupRowsShrinkTest, tellWhereEachRowStandsOnceTheyAreTakenAnew)
{
    showTriples(150);
    std::vector<int> places;
    QObject::connect(&rows, &GroupRows::takenAnew, [&] {
        for (const int before : {0, 1, 2, 3, 4, 404, 592, 599, -1, 600})
            places.push_back(rows.rowNow(before));
    });
    // "y" of each group but the last two, of which one goes as a whole and the other stays as it is.
    for (size_t index = 0; index < 148; ++index)
        takeAway(index, 1);
    takeAway(148);
    rows.shrink(all());
    // The first head, "x" and "z" for what has gone, the next head; the head of 101; all of 149 at the end.
    EXPECT_EQ(places, std::vector<int>({0, 1, 2, 2, 3, 303, 444, 447, -1, -1}));
    EXPECT_EQ(text(303, "title") + text(447, "title"), u"101x149z"_s);
    EXPECT_EQ(rows.rowNow(0), -1); // only as long as it is told
}

TEST_F(GroupRowsShrinkTest, tellTheLastRowForThoseBehindWhichNoneStays)
{
    showTriples(150);
    std::vector<int> places;
    QObject::connect(&rows, &GroupRows::takenAnew, [&] {
        places = {rows.rowNow(0), rows.rowNow(598), rows.rowNow(599)};
    });
    for (size_t index = 0; index < 150; ++index)
        takeAway(index, 2);
    rows.shrink(all());
    EXPECT_EQ(places, std::vector<int>({0, 449, 449}));
}

TEST_F(GroupRowsShrinkTest, areTakenAnewWhereAGroupComesIntoViewAsOthersGo)
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

TEST_F(GroupRowsShrinkTest, stayUnderAFilterWhereAHiddenGroupGoes)
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
