#include "duplicates/PathLists.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(PathLists, holdListsOfAnyLengthInTheirOrder)
{
    PathLists lists;
    EXPECT_EQ(lists.size(), 0U);
    lists.reserve(3, 3);
    lists.append(u"/a"_s);
    lists.append(u"/b"_s);
    lists.endList();
    lists.endList();
    lists.append(u"/c"_s);
    lists.endList();
    ASSERT_EQ(lists.size(), 3U);
    ASSERT_EQ(lists[0].size(), 2U);
    EXPECT_EQ(lists[0][0], u"/a"_s);
    EXPECT_EQ(lists[0][1], u"/b"_s);
    EXPECT_TRUE(lists[1].empty());
    ASSERT_EQ(lists[2].size(), 1U);
    EXPECT_EQ(lists[2][0], u"/c"_s);
}

TEST(PathLists, shareTheTextsTheyAreMadeOf)
{
    const QString path = u"/a/path"_s.repeated(2);
    PathLists lists;
    lists.append(path);
    lists.endList();
    EXPECT_EQ(lists[0][0].constData(), path.constData());
}
