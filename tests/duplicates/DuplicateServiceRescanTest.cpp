#include "duplicates/DuplicateServiceRun.h"
#include "duplicates/HeardSignals.h"

#include <gtest/gtest.h>

namespace {

/// What a scan has from the one before and what it takes no note of.
class DuplicateServiceRescanTest : public DuplicateServiceRun
{
};

} // namespace

TEST_F(DuplicateServiceRescanTest, worksOnTheScopeThatItBeganWith)
{
    services.file("one/x", QByteArray(10, 'x'));
    services.file("two/x", QByteArray(10, 'x'));
    services.file("three/x", QByteArray(10, 'x'));
    services.useScanPaths({"one", "two"});
    duplicates.scan();
    duplicates.removeScanPath(services.inHome("one"));
    duplicates.addScanPath(services.inHome("three"));
    duplicates.addIgnorePath("two");
    duplicates.setMinFileSize(11);
    test.settle();
    EXPECT_EQ(services.shown(), QStringList{"10: one/x two/x-"});
    services.scan();
    EXPECT_TRUE(services.shown().isEmpty());
    duplicates.setMinFileSize(10);
    duplicates.removeIgnorePath("two");
    services.scan();
    EXPECT_EQ(services.shown(), QStringList{"10: two/x three/x-"});
}

TEST_F(DuplicateServiceRescanTest, worksOnTheMarksThatItBeganWith)
{
    services.file("one/x");
    services.file("two/x");
    services.useScanPaths({"one", "two"});
    duplicates.scan();
    duplicates.scan();
    test.mainQueue.run();
    ASSERT_TRUE(test.workQueue.step());
    test.mainQueue.run();
    duplicates.toggleKeep(0, 0); // the second scan has begun already
    test.settle();
    EXPECT_EQ(services.shown(), QStringList{"5: one/x two/x-"});
    EXPECT_EQ(duplicates.markedForDeletion(), QSet<QString>{services.inHome("one/x")});
}

TEST_F(DuplicateServiceRescanTest, discardsTheEarlierGroupsAtOnce)
{
    services.file("one/x");
    services.file("two/x");
    services.scan();
    ASSERT_EQ(duplicates.groups().size(), 1U);
    HeardSignals heard(duplicates);
    duplicates.scan();
    EXPECT_TRUE(duplicates.groups().empty());
    EXPECT_TRUE(heard.take().contains("groupsChanged"));
    test.settle();
    EXPECT_EQ(duplicates.groups().size(), 1U);
}

TEST_F(DuplicateServiceRescanTest, givesEachGroupAndEntryAFreshIdentity)
{
    services.file("one/x");
    services.file("two/x");
    services.scan();
    const DuplicateFileGroup earlier = duplicates.groups().at(0);
    services.scan();
    const DuplicateFileGroup &group = duplicates.groups().at(0);
    EXPECT_EQ(group.hash, earlier.hash);
    EXPECT_NE(group.id, earlier.id);
    EXPECT_NE(group.files.at(0).id, group.files.at(1).id);
    for (const DuplicateFileEntry &file : earlier.files) {
        EXPECT_NE(group.files.at(0).id, file.id);
        EXPECT_NE(group.files.at(1).id, file.id);
    }
}

TEST_F(DuplicateServiceRescanTest, bringsTheMarksOfSingleClicksBackAndLetsAllOthersOfTheirGroupsStay)
{
    for (const char *name : {"one/x", "two/x", "three/x"})
        services.file(name);
    services.file("one/unmarked", "same");
    services.file("two/unmarked", "same");
    services.useScanPaths({"one", "two", "three"});
    services.scan();
    ASSERT_EQ(services.shown(), QStringList({"5: one/x two/x- three/x-", "4: one/unmarked two/unmarked-"}));
    duplicates.toggleKeep(0, 0);
    services.scan();
    EXPECT_EQ(services.shown(), QStringList({"5: one/x- two/x three/x", "4: one/unmarked two/unmarked-"}));
    services.scan(); // and again, since the mark is still there
    EXPECT_EQ(services.shown(), QStringList({"5: one/x- two/x three/x", "4: one/unmarked two/unmarked-"}));
    duplicates.toggleKeep(0, 0);
    services.scan();
    EXPECT_EQ(services.shown(), QStringList({"5: one/x two/x- three/x-", "4: one/unmarked two/unmarked-"}));
}

TEST_F(DuplicateServiceRescanTest, forgetsTheChoicesOfTheBulkCommands)
{
    for (const char *name : {"one/x", "two/x", "three/x"})
        services.file(name);
    services.useScanPaths({"one", "two", "three"});
    services.scan();
    const QStringList usual = services.shown();
    const std::vector<std::function<void()>> commands = {
        [this] { duplicates.keepOnly(0, 2); },
        [this] { duplicates.keepAllInAllGroups(); },
    };
    for (const std::function<void()> &command : commands) {
        command();
        EXPECT_NE(services.shown(), usual);
        services.scan();
        EXPECT_EQ(services.shown(), usual);
    }
}
