#include "base/Files.h"
#include "duplicates/DuplicateServices.h"

#include <QTimer>

#include <thread>

#include <gtest/gtest.h>

namespace {

/// A delete run that is entered again while it moves a file, as it happens when the event loop turns meanwhile. Four
/// equal files in the order of their folders, of which "1/x", "2/x" and "3/x" are set to go.
struct DeleteRunReentranceTest : public testing::Test
{
    DuplicateServices services;
    TestPlatform &test = services.test;
    DuplicateService &duplicates = services.duplicates;
    QStringList equal;

    void SetUp() override
    {
        duplicates.setMinFileSize(0);
        for (int i = 0; i < 4; ++i)
            equal << services.file(QStringLiteral("%1/x").arg(i));
        services.useScanPaths({"0", "1", "2", "3"});
        services.scan();
    }

    /// Calls `action` from within the move of one of the files, which has gone by then.
    void during(const QString &moved, const std::function<void()> &action)
    {
        test.recycler.answers = [=](const QStringList &paths, const Recycler::Completion &done) {
            DuplicateServices::remove(paths.constFirst());
            if (paths.constFirst() == moved)
                action();
            done({});
        };
    }

    /// The files that are still on the disk.
    QStringList onDisk() const
    {
        QStringList there;
        for (const QString &path : equal) {
            if (files::exists(path))
                there << path.mid(test.home.size() + 1);
        }
        return there;
    }
};

} // namespace

TEST_F(DeleteRunReentranceTest, aFileThatIsToStayAfterAllIsSpared)
{
    during(equal[1], [this] { duplicates.toggleKeep(0, 2); });
    EXPECT_EQ(duplicates.deleteMarked(), 10);
    EXPECT_EQ(test.recycler.recycled, QStringList({equal[1], equal[3]}));
    EXPECT_EQ(services.shown(), QStringList{"5: 0/x 2/x"});
    EXPECT_EQ(services.records().at(0).title, "Removed 2 duplicate files");
}

TEST_F(DeleteRunReentranceTest, filesThatAreToGoOnlySinceStayInThisRun)
{
    duplicates.toggleKeep(0, 3);
    // One before and one behind the file that moves.
    during(equal[1], [this] {
        duplicates.toggleKeep(0, 0);
        duplicates.toggleKeep(0, 3);
    });
    EXPECT_EQ(duplicates.deleteMarked(), 10);
    EXPECT_EQ(onDisk(), QStringList({"0/x", "3/x"}));
    EXPECT_EQ(services.shown(), QStringList{"5: 0/x- 3/x-"});
    EXPECT_EQ(duplicates.markedForDeletion(), QSet<QString>({equal[0], equal[3]}));
}

TEST_F(DeleteRunReentranceTest, aClickOnAFileThatHasGoneBringsNothingBack)
{
    during(equal[2], [this] { duplicates.toggleKeep(0, 1); });
    EXPECT_EQ(duplicates.deleteMarked(), 15);
    EXPECT_TRUE(duplicates.groups().empty());
    EXPECT_TRUE(duplicates.markedForDeletion().isEmpty());
}

TEST_F(DeleteRunReentranceTest, aKeptFileSetToGoMeanwhileGoesInTheNextRun)
{
    duplicates.toggleKeep(0, 1); // two files stay
    during(equal[2], [this] { duplicates.toggleKeep(0, 0); });
    EXPECT_EQ(duplicates.deleteMarked(), 10);
    EXPECT_EQ(duplicates.deleteMarked(), 5);
    EXPECT_EQ(onDisk(), QStringList{"1/x"});
    EXPECT_TRUE(duplicates.markedForDeletion().isEmpty());
}

TEST_F(DeleteRunReentranceTest, aSecondRunMeanwhileDoesNothing)
{
    qint64 freed = -1;
    during(equal[1], [&] { freed = duplicates.deleteMarked(); });
    EXPECT_EQ(duplicates.deleteMarked(), 15);
    EXPECT_EQ(freed, 0);
    EXPECT_EQ(test.recycler.recycled, equal.mid(1));
    EXPECT_EQ(services.records().size(), 1U);
    EXPECT_EQ(test.systemLog.lines.size(), 1);
}

TEST_F(DeleteRunReentranceTest, keepingAllSparesWhatHasNotGoneYet)
{
    during(equal[1], [this] { duplicates.keepAllInAllGroups(); });
    EXPECT_EQ(duplicates.deleteMarked(), 5);
    EXPECT_EQ(onDisk(), QStringList({"0/x", "2/x", "3/x"}));
    EXPECT_EQ(services.shown(), QStringList{"5: 0/x 2/x 3/x"});
}

TEST_F(DeleteRunReentranceTest, aScanMeanwhileReplacesTheGroupsAndStopsNothing)
{
    during(equal[1], [this] { services.scan(); });
    EXPECT_EQ(duplicates.deleteMarked(), 15);
    EXPECT_EQ(onDisk(), QStringList{"0/x"});
    EXPECT_TRUE(duplicates.groups().empty()); // of the new group as well one file is left
    EXPECT_EQ(services.records().at(0).paths, equal.mid(1));
}

TEST_F(DeleteRunReentranceTest, aScanMeanwhileBringsNoFileIntoTheRun)
{
    duplicates.keepAllInAllGroups();
    duplicates.toggleKeep(0, 3);
    duplicates.toggleKeep(0, 0);
    // The scan sets more files to go, some of them at the places of those that the run began with.
    during(equal[0], [this] {
        services.file("4/y", "others");
        services.file("5/y", "others");
        services.useScanPaths({"4", "5", "2", "1"});
        services.scan();
        ASSERT_EQ(services.shown(), QStringList({"6: 4/y 5/y-", "5: 2/x 1/x-"}));
    });
    EXPECT_EQ(duplicates.deleteMarked(), 10);
    EXPECT_EQ(onDisk(), QStringList({"1/x", "2/x"}));
    EXPECT_TRUE(files::exists(services.inHome("5/y")));
    EXPECT_EQ(services.shown(), QStringList({"6: 4/y 5/y-", "5: 2/x 1/x-"}));
    EXPECT_TRUE(duplicates.markedForDeletion().isEmpty());
}

TEST_F(DeleteRunReentranceTest, aFileIsNotSparedForAnotherThatHasItsPlaceSinceAScan)
{
    duplicates.keepAllInAllGroups();
    duplicates.toggleKeep(0, 0);
    duplicates.toggleKeep(0, 1);
    during(equal[0], [this] {
        services.useScanPaths({"2", "3", "1"});
        services.scan();
        ASSERT_EQ(services.shown(), QStringList{"5: 2/x 3/x 1/x-"});
    });
    EXPECT_EQ(duplicates.deleteMarked(), 10);
    EXPECT_EQ(onDisk(), QStringList({"2/x", "3/x"}));
    EXPECT_EQ(services.shown(), QStringList{"5: 2/x 3/x"});
}

TEST_F(DeleteRunReentranceTest, aFileThatAScanMeanwhileHasSetToKeepIsSpared)
{
    during(equal[1], [this] {
        services.useScanPaths({"3", "2", "0"});
        services.scan();
        ASSERT_EQ(services.shown(), QStringList{"5: 3/x 2/x- 0/x-"});
    });
    EXPECT_EQ(duplicates.deleteMarked(), 10);
    EXPECT_EQ(onDisk(), QStringList({"0/x", "3/x"}));
    EXPECT_EQ(services.shown(), QStringList{"5: 3/x 0/x-"});
    EXPECT_EQ(services.records().at(0).paths, QStringList({equal[1], equal[2]}));
}

TEST_F(DeleteRunReentranceTest, aFileThatTheUserKeepsAfterAScanMeanwhileIsSpared)
{
    int moves = 0;
    test.recycler.answers = [&](const QStringList &paths, const Recycler::Completion &done) {
        DuplicateServices::remove(paths.constFirst());
        if (++moves == 1)
            services.scan();
        else if (moves == 2)
            duplicates.toggleKeep(0, 2); // "3/x", which the scan had set to go
        done({});
    };
    EXPECT_EQ(duplicates.deleteMarked(), 10);
    EXPECT_EQ(onDisk(), QStringList({"0/x", "3/x"}));
    EXPECT_EQ(services.shown(), QStringList{"5: 0/x 3/x"});
}

TEST_F(DeleteRunReentranceTest, eachScanMeanwhileIsAskedAnew)
{
    int moves = 0;
    test.recycler.answers = [&](const QStringList &paths, const Recycler::Completion &done) {
        DuplicateServices::remove(paths.constFirst());
        services.useScanPaths(++moves == 1 ? QStringList({"3", "2", "0"}) : QStringList({"0", "3"}));
        services.scan();
        done({});
    };
    EXPECT_EQ(duplicates.deleteMarked(), 15); // the second scan lets "3/x" go after all
    EXPECT_EQ(onDisk(), QStringList{"0/x"});
}

TEST_F(DeleteRunReentranceTest, aScanMeanwhileThatIsStillUnderWayLeavesNoGroupsToTidy)
{
    during(equal[1], [this] { duplicates.scan(); });
    EXPECT_EQ(duplicates.deleteMarked(), 15);
    EXPECT_TRUE(duplicates.groups().empty());
    EXPECT_TRUE(duplicates.isScanning());
    test.settle();
    EXPECT_TRUE(duplicates.groups().empty()); // one file is left to find
    EXPECT_EQ(onDisk(), QStringList{"0/x"});
}

TEST_F(DeleteRunReentranceTest, anotherScopeMeanwhileChangesNothing)
{
    during(equal[1], [this] {
        duplicates.resetScope();
        duplicates.setMinFileSize(1'000'000);
    });
    EXPECT_EQ(duplicates.deleteMarked(), 15);
    EXPECT_EQ(onDisk(), QStringList{"0/x"});
    EXPECT_EQ(duplicates.scanPaths(), QStringList{test.home});
}

TEST_F(DeleteRunReentranceTest, theEventLoopTurnsUntilEachMoveIsAnswered)
{
    std::vector<std::thread> answers;
    QStringList seen;
    QObject context;
    test.recycler.answers = [&](const QStringList &paths, const Recycler::Completion &done) {
        // What an event of the main loop does, once it turns: the answer comes on a thread of its own.
        QTimer::singleShot(0, &context, [&, path = paths.constFirst(), done] {
            seen << QStringLiteral("moves after %1, %2")
                        .arg(duplicates.deletedFiles())
                        .arg(duplicates.isDeleting() ? "under way" : "at rest");
            DuplicateServices::remove(path);
            answers.emplace_back([done] { done({}); });
        });
    };
    EXPECT_EQ(duplicates.deleteMarked(), 15);
    for (std::thread &thread : answers)
        thread.join();
    EXPECT_EQ(seen, QStringList({"moves after 0, under way", "moves after 1, under way",
                                 "moves after 2, under way"}));
    EXPECT_EQ(onDisk(), QStringList{"0/x"});
    EXPECT_FALSE(duplicates.isDeleting());
}

TEST_F(DeleteRunReentranceTest, commandsOfTheEventLoopReachTheRun)
{
    QObject context;
    qint64 freed = -1;
    test.recycler.answers = [&](const QStringList &paths, const Recycler::Completion &done) {
        QTimer::singleShot(0, &context, [&, path = paths.constFirst(), done] {
            freed = duplicates.deleteMarked();
            duplicates.keepAllInAllGroups();
            DuplicateServices::remove(path);
            done({});
        });
    };
    EXPECT_EQ(duplicates.deleteMarked(), 5);
    EXPECT_EQ(freed, 0);
    EXPECT_EQ(onDisk(), QStringList({"0/x", "2/x", "3/x"}));
    EXPECT_EQ(services.records().size(), 1U);
}
