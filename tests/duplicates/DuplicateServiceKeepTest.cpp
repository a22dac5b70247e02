#include "duplicates/DuplicateServices.h"
#include "duplicates/HeardSignals.h"

#include <limits>

#include <gtest/gtest.h>

namespace {

/// Two groups of three and of two files: "one/big", "two/big" and "three/big", and "one/small" and "two/small". A group
/// without files can't be tested: only a scan makes groups, and each of its has two files at least.
struct DuplicateServiceKeepTest : public testing::Test
{
    DuplicateServices services;
    DuplicateService &duplicates = services.duplicates;
    HeardSignals heard{duplicates};
    const size_t nowhere = std::numeric_limits<size_t>::max();

    void SetUp() override
    {
        make("one/big", 300);
        make("two/big", 100);
        make("three/big", 200);
        make("one/small", 100);
        make("two/small", 200);
        duplicates.setMinFileSize(0);
        services.useScanPaths({"one", "two", "three"});
        rescan();
    }

    /// A file that was last modified so many seconds after a certain moment.
    void make(const QString &relative, int seconds) const
    {
        const QString path = services.file(relative, relative.endsWith("big") ? "the big content" : "small");
        const std::filesystem::file_time_type epoch{};
        std::filesystem::last_write_time(paths::toBytes(path).toStdString(),
                                         epoch + std::chrono::seconds(seconds));
    }

    void rescan()
    {
        services.scan();
        heard.take();
    }

    QUuid groupId(size_t index) const { return duplicates.groups().at(index).id; }
    QString big() const { return services.shown().value(0); }
    QString small() const { return services.shown().value(1); }
    QSet<QString> marked(const QStringList &relative) const
    {
        QSet<QString> paths;
        for (const QString &path : relative)
            paths.insert(services.inHome(path));
        return paths;
    }
};

const QStringList asScanned = {QStringLiteral("15: one/big two/big- three/big-"),
                               QStringLiteral("5: one/small two/small-")};

} // namespace

TEST_F(DuplicateServiceKeepTest, beginWithTheFirstFileKept)
{
    EXPECT_EQ(services.shown(), asScanned);
    EXPECT_TRUE(duplicates.markedForDeletion().isEmpty());
}

TEST_F(DuplicateServiceKeepTest, aClickTurnsOneFileAndTellsItAlone)
{
    duplicates.toggleKeep(0, 0);
    EXPECT_EQ(services.shown(), QStringList({"15: one/big- two/big- three/big-", small()}));
    EXPECT_EQ(duplicates.markedForDeletion(), marked({"one/big"}));
    EXPECT_EQ(heard.take(), QStringList{"fileChanged 0 0"});

    duplicates.toggleKeep(1, 1);
    EXPECT_EQ(small(), "5: one/small two/small");
    EXPECT_EQ(duplicates.markedForDeletion(), marked({"one/big"})); // it was never marked
    EXPECT_EQ(heard.take(), QStringList{"fileChanged 1 1"});

    duplicates.toggleKeep(1, 1);
    duplicates.toggleKeep(0, 0);
    EXPECT_EQ(services.shown(), asScanned);
    EXPECT_EQ(duplicates.markedForDeletion(), marked({"two/small"}));
    EXPECT_EQ(heard.take(), QStringList({"fileChanged 1 1", "fileChanged 0 0"}));
}

TEST_F(DuplicateServiceKeepTest, aClickOnWhatIsNotThereDoesNothing)
{
    duplicates.toggleKeep(0, 3);
    duplicates.toggleKeep(1, 2);
    duplicates.toggleKeep(2, 0);
    duplicates.toggleKeep(nowhere, 0);
    duplicates.toggleKeep(0, nowhere);
    EXPECT_EQ(services.shown(), asScanned);
    EXPECT_TRUE(duplicates.markedForDeletion().isEmpty());
    EXPECT_TRUE(heard.take().isEmpty());
}

TEST_F(DuplicateServiceKeepTest, keepOnlyLetsAllOthersOfTheGroupGo)
{
    duplicates.keepOnly(0, 2);
    EXPECT_EQ(services.shown(), QStringList({"15: one/big- two/big- three/big", "5: one/small two/small-"}));
    EXPECT_EQ(heard.take(), QStringList{"groupChanged 0"});
    duplicates.keepOnly(1, 1);
    EXPECT_EQ(small(), "5: one/small- two/small");
    EXPECT_EQ(heard.take(), QStringList{"groupChanged 1"});
}

TEST_F(DuplicateServiceKeepTest, keepOnlyOfWhatIsNotThereDoesNothing)
{
    duplicates.keepOnly(0, 3);
    duplicates.keepOnly(2, 0);
    duplicates.keepOnly(nowhere, nowhere);
    EXPECT_EQ(services.shown(), asScanned);
    EXPECT_TRUE(heard.take().isEmpty());
}

TEST_F(DuplicateServiceKeepTest, keepNewestAndOldestWorkInTheGroupNamed)
{
    duplicates.keepOldest(groupId(0));
    EXPECT_EQ(services.shown(), QStringList({"15: one/big- two/big three/big-", "5: one/small two/small-"}));
    duplicates.keepNewest(groupId(0));
    EXPECT_EQ(services.shown(), QStringList({"15: one/big two/big- three/big-", "5: one/small two/small-"}));
    EXPECT_EQ(heard.take(), QStringList({"groupChanged 0", "groupChanged 0"}));
    duplicates.keepNewest(groupId(1));
    EXPECT_EQ(services.shown(), QStringList({"15: one/big two/big- three/big-", "5: one/small- two/small"}));
    EXPECT_EQ(heard.take(), QStringList{"groupChanged 1"});
}

TEST_F(DuplicateServiceKeepTest, keepNewestKeepsAllThatShareTheLatestDate)
{
    make("three/big", 300);
    rescan();
    duplicates.keepNewest(groupId(0));
    EXPECT_EQ(big(), "15: one/big two/big- three/big");
    duplicates.keepOldest(groupId(0));
    EXPECT_EQ(big(), "15: one/big- two/big three/big-");
}

TEST_F(DuplicateServiceKeepTest, keepOldestKeepsAllThatShareTheEarliestDate)
{
    make("three/big", 100);
    rescan();
    duplicates.keepOldest(groupId(0));
    EXPECT_EQ(big(), "15: one/big- two/big three/big");
    duplicates.keepNewest(groupId(0));
    EXPECT_EQ(big(), "15: one/big two/big- three/big-");
}

TEST_F(DuplicateServiceKeepTest, aGroupThatIsNotThereIsPassedOver)
{
    const QUuid earlier = groupId(0);
    rescan();
    for (const QUuid &group : {earlier, QUuid::createUuid(), QUuid(), duplicates.groups()[0].files[0].id}) {
        duplicates.keepNewest(group);
        duplicates.keepOldest(group);
        EXPECT_FALSE(duplicates.indexOf(group));
    }
    EXPECT_EQ(services.shown(), asScanned);
    EXPECT_TRUE(heard.take().isEmpty());
}

TEST_F(DuplicateServiceKeepTest, aGroupsIndexIsItsPlaceInTheList)
{
    EXPECT_EQ(duplicates.indexOf(groupId(0)), 0U);
    EXPECT_EQ(duplicates.indexOf(groupId(1)), 1U);
}

TEST_F(DuplicateServiceKeepTest, theCommandsForAllGroupsReachEachOfThem)
{
    duplicates.keepAllInAllGroups();
    EXPECT_EQ(services.shown(), QStringList({"15: one/big two/big three/big", "5: one/small two/small"}));
    EXPECT_EQ(heard.take(), QStringList{"keepChanged"});
    duplicates.keepNewestInAllGroups();
    EXPECT_EQ(services.shown(), QStringList({"15: one/big two/big- three/big-", "5: one/small- two/small"}));
    EXPECT_EQ(heard.take(), QStringList{"keepChanged"});
    duplicates.keepOldestInAllGroups();
    EXPECT_EQ(services.shown(), QStringList({"15: one/big- two/big three/big-", "5: one/small two/small-"}));
    EXPECT_EQ(heard.take(), QStringList{"keepChanged"});
    duplicates.keepFirstInAllGroups();
    EXPECT_EQ(services.shown(), asScanned);
    EXPECT_EQ(heard.take(), QStringList{"keepChanged"});
}

TEST_F(DuplicateServiceKeepTest, theCommandsForAllGroupsKeepAllFilesOfATie)
{
    make("three/big", 300);
    make("two/small", 100);
    rescan();
    duplicates.keepNewestInAllGroups();
    EXPECT_EQ(services.shown(), QStringList({"15: one/big two/big- three/big", "5: one/small two/small"}));
    duplicates.keepOldestInAllGroups();
    EXPECT_EQ(services.shown(), QStringList({"15: one/big- two/big three/big-", "5: one/small two/small"}));
}

TEST_F(DuplicateServiceKeepTest, theCommandsForAllGroupsDoNothingToAnEmptyList)
{
    services.useScanPaths({});
    rescan();
    duplicates.keepAllInAllGroups();
    duplicates.keepFirstInAllGroups();
    duplicates.keepNewestInAllGroups();
    duplicates.keepOldestInAllGroups();
    duplicates.toggleKeep(0, 0);
    duplicates.keepOnly(0, 0);
    EXPECT_TRUE(duplicates.groups().empty());
    EXPECT_TRUE(duplicates.markedForDeletion().isEmpty());
}

TEST_F(DuplicateServiceKeepTest, onlyAClickChangesTheMarks)
{
    duplicates.toggleKeep(0, 0);
    duplicates.toggleKeep(1, 0);
    const QSet<QString> marks = marked({"one/big", "one/small"});
    duplicates.keepOnly(0, 0); // keeps a marked file, and lets unmarked ones go
    EXPECT_EQ(duplicates.markedForDeletion(), marks);
    duplicates.keepNewest(groupId(0));
    duplicates.keepOldest(groupId(1));
    EXPECT_EQ(duplicates.markedForDeletion(), marks);
    duplicates.keepAllInAllGroups();
    EXPECT_EQ(duplicates.markedForDeletion(), marks);
    duplicates.keepFirstInAllGroups();
    duplicates.keepNewestInAllGroups();
    duplicates.keepOldestInAllGroups();
    EXPECT_EQ(duplicates.markedForDeletion(), marks);
}

TEST_F(DuplicateServiceKeepTest, aMarkOutlivesABulkCommandThatKeepsItsFile)
{
    duplicates.toggleKeep(0, 0);
    duplicates.keepAllInAllGroups();
    rescan();
    EXPECT_EQ(big(), "15: one/big- two/big three/big");
    EXPECT_EQ(small(), "5: one/small two/small-");
}

TEST_F(DuplicateServiceKeepTest, aClickThatUndoesABulkChoiceLeavesNoMark)
{
    duplicates.keepAllInAllGroups();
    duplicates.toggleKeep(0, 1); // now it goes, and is marked
    EXPECT_EQ(duplicates.markedForDeletion(), marked({"two/big"}));
    duplicates.keepAllInAllGroups();
    duplicates.toggleKeep(0, 1); // kept and marked: it goes again
    EXPECT_EQ(duplicates.markedForDeletion(), marked({"two/big"}));
    duplicates.toggleKeep(0, 1);
    EXPECT_TRUE(duplicates.markedForDeletion().isEmpty());
    EXPECT_EQ(big(), "15: one/big two/big three/big");
}
