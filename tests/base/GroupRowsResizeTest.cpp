#include "base/GroupRows.h"

#include "NamedGroups.h"

#include <QPersistentModelIndex>
#include <QSignalSpy>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct GroupRowsResizeTest : public NamedGroups
{
    GroupRowsResizeTest() { showFour(); }

    void add(size_t toGroup, const QString &name)
    {
        groups[toGroup].members.push_back({QUuid::createUuid(), name});
    }
};

} // namespace

TEST_F(GroupRowsResizeTest, addsRowsAtTheEndOfTheGroup)
{
    QSignalSpy inserted(&rows, &QAbstractItemModel::rowsInserted);
    const QPersistentModelIndex after = rows.index(7); // the head of the third group
    add(1, u"b2"_s);
    add(1, u"b3"_s);
    rows.resize(1);
    EXPECT_EQ(texts("title"), u"a0 a0 a1 a2 b0 b0 b1 b2 b3 c0 c0 c1 c2 d0 d0 d1"_s);
    EXPECT_EQ(texts("isLast"), u"false false false true false false false false true false false false true "
                               "false false true"_s);
    ASSERT_EQ(inserted.size(), 1);
    EXPECT_EQ(inserted[0][1].toInt(), 7);
    EXPECT_EQ(inserted[0][2].toInt(), 8);
    EXPECT_EQ(after.row(), 9) << "other rows move along";
    EXPECT_EQ(rows.row(8)->id, groups[1].members[3].id);
}

TEST_F(GroupRowsResizeTest, takesRowsFromTheEndOfTheGroup)
{
    QSignalSpy removed(&rows, &QAbstractItemModel::rowsRemoved);
    groups[0].members.resize(1);
    rows.resize(0);
    EXPECT_EQ(texts("title"), u"a0 a0 b0 b0 b1 c0 c0 c1 c2 d0 d0 d1"_s);
    ASSERT_EQ(removed.size(), 1);
    EXPECT_EQ(removed[0][1].toInt(), 2);
    EXPECT_EQ(removed[0][2].toInt(), 3);
}

TEST_F(GroupRowsResizeTest, leavesAHeadAloneAndFillsItAgain)
{
    const std::vector<Member> members = std::exchange(groups[3].members, {});
    rows.resize(3);
    EXPECT_EQ(rows.rowCount(), 12);
    EXPECT_TRUE(rowValue(&rows, 11, "isHead").toBool());
    EXPECT_TRUE(rowValue(&rows, 11, "isLast").toBool());
    groups[3].members = members;
    rows.resize(3);
    EXPECT_EQ(texts("title"), u"a0 a0 a1 a2 b0 b0 b1 c0 c0 c1 c2 d0 d0 d1"_s);
}

TEST_F(GroupRowsResizeTest, tellsThatTheOtherRowsOfTheGroupMayHaveChanged)
{
    QSignalSpy changed(&rows, &QAbstractItemModel::dataChanged);
    add(2, u"c3"_s);
    rows.resize(2);
    ASSERT_EQ(changed.size(), 1);
    EXPECT_EQ(range(changed[0]), std::pair(7, 11));
}

TEST_F(GroupRowsResizeTest, passesOverAGroupThatIsNotShown)
{
    rows.show({0, 2});
    QSignalSpy changed(&rows, &QAbstractItemModel::dataChanged);
    for (const size_t group : {size_t{1}, size_t{3}}) {
        add(group, u"new"_s);
        rows.resize(group);
    }
    EXPECT_EQ(texts("title"), u"a0 a0 a1 a2 c0 c0 c1 c2"_s);
    EXPECT_EQ(changed.size(), 0);
}
