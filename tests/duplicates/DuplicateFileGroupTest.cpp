#include "duplicates/DuplicateFileGroup.h"

#include <limits>

#include <gtest/gtest.h>

TEST(DuplicateFileGroup, wastesTheBytesBeyondOneFile)
{
    DuplicateFileGroup group;
    group.size = qint64(1) << 40;
    group.files.resize(4);
    EXPECT_EQ(group.wastedBytes(), qint64(3) << 40);
    group.size = std::numeric_limits<qint64>::max();
    group.files.resize(2);
    EXPECT_EQ(group.wastedBytes(), std::numeric_limits<qint64>::max());
    group.size = 0;
    EXPECT_EQ(group.wastedBytes(), 0);
}

TEST(DuplicateFileGroup, endsTheProcessWhereItsWasteOverflows)
{
    DuplicateFileGroup group;
    group.size = std::numeric_limits<qint64>::max() / 2 + 1;
    group.files.resize(3);
    EXPECT_DEATH(static_cast<void>(group.wastedBytes()), "overflow");
}

TEST(DuplicateFileGroup, countsTheFilesThatGo)
{
    DuplicateFileGroup group;
    EXPECT_EQ(group.filesToGo(), 0);
    EXPECT_FALSE(group.keepsNothing()); // it has nothing to lose
    group.files.resize(3);
    for (DuplicateFileEntry &file : group.files)
        file.keep = true;
    EXPECT_EQ(group.filesToGo(), 0);
    group.files[0].keep = false;
    group.files[2].keep = false;
    EXPECT_EQ(group.filesToGo(), 2);
    EXPECT_FALSE(group.keepsNothing());
    group.files[1].keep = false;
    EXPECT_EQ(group.filesToGo(), 3);
    EXPECT_TRUE(group.keepsNothing());
}
