#include "base/GroupRows.h"

#include "NamedGroups.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {
using GroupRowsTest = NamedGroups;
using Range = std::pair<int, int>;
} // namespace

TEST_F(GroupRowsTest, areNoneUntilThereIsSomethingToShow)
{
    groups = {group({u"a"_s, u"b"_s})};
    EXPECT_EQ(rows.rowCount(), 0);
    rows.show({0});
    EXPECT_EQ(rows.rowCount(), 3);
    rows.show({});
    EXPECT_EQ(rows.rowCount(), 0);
}

TEST_F(GroupRowsTest, areAHeadForEachGroupAndThenItsMembers)
{
    showFour();
    EXPECT_EQ(texts("title"), u"a0 a0 a1 a2 b0 b0 b1 c0 c0 c1 c2 d0 d0 d1"_s);
    EXPECT_EQ(texts("isHead"),
              u"true false false false true false false true false false false true false false"_s);
    EXPECT_EQ(texts("isLast"),
              u"false false false true false false true false false false true false false true"_s);
}

TEST_F(GroupRowsTest, areThoseOfTheGroupsThatAreShown)
{
    showFour();
    rows.show({1, 3});
    EXPECT_EQ(texts("title"), u"b0 b0 b1 d0 d0 d1"_s);
    EXPECT_EQ(rows.row(4)->group, 3U);
    EXPECT_EQ(rows.row(4)->member, 0);
    EXPECT_EQ(rows.row(4)->id, groups[3].members[0].id);
    EXPECT_TRUE(rows.row(3)->isHead());
    EXPECT_EQ(rows.row(3)->id, groups[3].id);
}

TEST_F(GroupRowsTest, giveNothingForOtherRolesAndPlaces)
{
    showFour();
    EXPECT_FALSE(rows.data(rows.index(1), Qt::DisplayRole).isValid());
    EXPECT_FALSE(rows.data(rows.index(1), Rows::detailRole + 1).isValid());
    EXPECT_FALSE(rows.data(QModelIndex(), Rows::titleRole).isValid());
    EXPECT_EQ(rows.rowCount(rows.index(0)), 0); // a list, no tree
    for (const int number : {-1, 14, 1000})
        EXPECT_EQ(rows.row(number), nullptr) << number;
}

TEST_F(GroupRowsTest, tellOfExactlyTheRowOfAMemberThatHasChanged)
{
    showFour();
    QSignalSpy changes(&rows, &QAbstractItemModel::dataChanged);
    rows.refreshMember(2, 1);
    ASSERT_EQ(changes.count(), 1);
    EXPECT_EQ(range(changes[0]), Range(9, 9));
    rows.refreshMember(0, 0);
    EXPECT_EQ(range(changes[1]), Range(1, 1));
    rows.refreshMember(3, 1);
    EXPECT_EQ(range(changes[2]), Range(13, 13));
    rows.refreshHead(1);
    EXPECT_EQ(range(changes[3]), Range(4, 4));
}

TEST_F(GroupRowsTest, tellOfTheRowsOfAGroupThatHasChanged)
{
    showFour();
    QSignalSpy changes(&rows, &QAbstractItemModel::dataChanged);
    rows.refreshGroup(1);
    ASSERT_EQ(changes.count(), 1);
    EXPECT_EQ(range(changes[0]), Range(4, 6));
    rows.refreshGroup(3);
    EXPECT_EQ(range(changes[1]), Range(11, 13));
    rows.refreshAll();
    EXPECT_EQ(range(changes[2]), Range(0, 13));
}

TEST_F(GroupRowsTest, findTheRowsOfAGroupUnderAFilter)
{
    showFour();
    rows.show({1, 3});
    QSignalSpy changes(&rows, &QAbstractItemModel::dataChanged);
    rows.refreshMember(3, 0);
    ASSERT_EQ(changes.count(), 1);
    EXPECT_EQ(range(changes[0]), Range(4, 4));
    rows.refreshGroup(1);
    ASSERT_EQ(changes.count(), 2);
    EXPECT_EQ(range(changes[1]), Range(0, 2));
}

TEST_F(GroupRowsTest, tellNothingOfGroupsThatAreNotShown)
{
    showFour();
    rows.show({1, 2});
    const QSignalSpy changes(&rows, &QAbstractItemModel::dataChanged);
    for (const size_t hidden : {0U, 3U}) {
        rows.refreshMember(hidden, 0);
        rows.refreshGroup(hidden);
        rows.refreshHead(hidden);
    }
    rows.show({});
    rows.refreshMember(0, 0);
    rows.refreshGroup(0);
    rows.refreshAll();
    EXPECT_EQ(changes.count(), 0);
}
