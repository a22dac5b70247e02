#include "duplicates/DuplicateServiceRun.h"
#include "duplicates/HeardSignals.h"

#include <gtest/gtest.h>

namespace {

/// What a scan tells on its way, and when.
class DuplicateServiceScanTest : public DuplicateServiceRun
{
};

} // namespace

TEST_F(DuplicateServiceScanTest, beginsWithNothingFoundAndTheUsualScope)
{
    DuplicateServices untouched;
    const DuplicateService &fresh = untouched.duplicates;
    EXPECT_TRUE(fresh.groups().empty());
    EXPECT_FALSE(fresh.isScanning());
    EXPECT_FALSE(fresh.cancelRequested());
    EXPECT_EQ(fresh.progress(), 0);
    EXPECT_EQ(fresh.currentPath(), QString());
    EXPECT_TRUE(fresh.markedForDeletion().isEmpty());
    EXPECT_EQ(fresh.hashFailureCount(), 0);
    EXPECT_EQ(fresh.scanPaths(), QStringList{untouched.test.home});
    EXPECT_EQ(fresh.ignorePaths().size(), 8);
    EXPECT_EQ(fresh.minFileSize(), 102400);
    EXPECT_FALSE(fresh.isDeleting());
    EXPECT_EQ(fresh.deletedFiles(), 0U);
    EXPECT_EQ(fresh.filesToDelete(), 0U);
    EXPECT_EQ(untouched.test.workQueue.waiting(), 0U);
    EXPECT_EQ(untouched.test.mainQueue.run(), 0);
}

TEST_F(DuplicateServiceScanTest, marksItselfDeniedWithoutFullDiskAccessAndGoesOn)
{
    services.file("a");
    services.file("b");
    services.scan(); // the home folder has none of the protected folders
    EXPECT_EQ(test.access.deniedContexts(), QSet<QString>{"Duplicate Finder"});
    EXPECT_EQ(duplicates.groups().size(), 1U);
}

TEST_F(DuplicateServiceScanTest, clearsItsDenialWithFullDiskAccess)
{
    services.scan();
    test.access.markDenied("Another Tool");
    test.temp.folder("home/Library/Safari");
    test.access.recheck();
    services.scan();
    EXPECT_EQ(test.access.deniedContexts(), QSet<QString>{"Another Tool"});
}

TEST_F(DuplicateServiceScanTest, asksForFullDiskAccessAtEachScan)
{
    test.temp.folder("home/Library/Safari");
    services.scan();
    test.access.markDenied("Duplicate Finder");
    test.mainQueue.run();
    services.scan();
    EXPECT_TRUE(test.access.deniedContexts().isEmpty());
}

TEST_F(DuplicateServiceScanTest, isOneUserInitiatedJob)
{
    duplicates.scan();
    EXPECT_EQ(test.workQueue.waiting(), 1U);
    EXPECT_EQ(test.workQueue.lastPriority(), WorkPriority::userInitiated);
}

TEST_F(DuplicateServiceScanTest, setsItsFieldsAtOnceAndLeavesTheMarks)
{
    const QString first = services.file("one/x");
    services.file("two/x");
    services.useScanPaths({"one", "two"});
    {
        const InjectedFaults unreadable(files::Operation::open, services.file("three/x"));
        duplicates.addScanPath(services.inHome("three"));
        services.scan();
    }
    ASSERT_EQ(fields(), "rests 1 '' groups 1 failures 1");
    duplicates.toggleKeep(0, 0);
    duplicates.setCancelRequested(true);

    duplicates.scan();
    EXPECT_EQ(fields(), "scans 0 '' groups 0 failures 0");
    EXPECT_FALSE(duplicates.cancelRequested());
    EXPECT_EQ(duplicates.markedForDeletion(), QSet<QString>{first});
}

TEST_F(DuplicateServiceScanTest, tellsEachStageInBlocksOfTheMainQueue)
{
    services.file("one/x", "equal");
    services.file("one/deep/x", "equal");
    services.file("two/y", "same");
    services.file("two/z", "same");
    services.file("two/alone", "of no other size");
    services.useScanPaths({"one", "two"});
    duplicates.scan();
    EXPECT_EQ(test.mainQueue.run(), 1); // the access monitor's
    EXPECT_EQ(test.workQueue.run(), 1);
    EXPECT_EQ(fields(), "scans 0 '' groups 0 failures 0"); // the job itself has touched nothing
    EXPECT_EQ(stepped(), QStringList({
                             "scans 0 'one' groups 0 failures 0",
                             "scans 0 'one/deep' groups 0 failures 0",
                             "scans 0 'two' groups 0 failures 0",
                             "scans 0.4 'Comparing file hashes...' groups 0 failures 0",
                             "scans 0.7 'Comparing file hashes...' groups 0 failures 0",
                             "scans 1 'Comparing file hashes...' groups 0 failures 0",
                             "rests 1 '' groups 2 failures 0",
                         }));
}

TEST_F(DuplicateServiceScanTest, progressRisesByTheBucketsThatHoldMoreThanOneFile)
{
    for (int size = 1; size <= 3; ++size) {
        services.file(QStringLiteral("one/%1").arg(size), QByteArray(size, 'a'));
        services.file(QStringLiteral("two/%1").arg(size), QByteArray(size, 'b')); // no group comes of it
    }
    services.file("one/4", "four");
    services.useScanPaths({"one", "two"});
    runJob();
    std::vector<double> progress;
    while (test.mainQueue.step())
        progress.push_back(duplicates.progress());
    const std::vector<double> expected = {0, 0, 0.4, 0.6, 0.8, 1, 1};
    ASSERT_EQ(progress.size(), expected.size());
    for (size_t i = 0; i < expected.size(); ++i)
        EXPECT_DOUBLE_EQ(progress[i], expected[i]) << i;
}

TEST_F(DuplicateServiceScanTest, tellsAFolderThatItCannotListAndNoneThatItStaysOutOf)
{
    test.temp.folder("home/one");
    test.temp.folder("home/two/node_modules/inside");
    services.useScanPaths({"one", "missing", "two"});
    const InjectedFaults unreadable(files::Operation::list, services.inHome("one"));
    runJob();
    const QStringList seen = stepped();
    ASSERT_EQ(seen.size(), 5);
    EXPECT_EQ(seen[0], "scans 0 'one' groups 0 failures 0");
    EXPECT_EQ(seen[1], "scans 0 'missing' groups 0 failures 0");
    EXPECT_EQ(seen[2], "scans 0 'two' groups 0 failures 0");
    EXPECT_EQ(seen[4], "rests 1 '' groups 0 failures 0");
}

TEST_F(DuplicateServiceScanTest, withoutScanPathsEndsAtOnceAsDone)
{
    services.file("a");
    services.file("b");
    services.useScanPaths({});
    runJob();
    EXPECT_EQ(stepped(), QStringList({
                             "scans 0.4 'Comparing file hashes...' groups 0 failures 0",
                             "rests 1 '' groups 0 failures 0",
                         }));
}

TEST_F(DuplicateServiceScanTest, setsAllFieldsOfABlockBeforeItNotifies)
{
    services.file("one/x");
    services.file("one/y");
    services.useScanPaths({"one"});
    QStringList seen; // by those who listen, each state once
    const auto look = [&] {
        if (seen.isEmpty() || seen.last() != fields())
            seen << fields();
    };
    for (const auto signal : {&DuplicateService::isScanningChanged, &DuplicateService::progressChanged,
                              &DuplicateService::groupsChanged, &DuplicateService::currentPathChanged})
        QObject::connect(&duplicates, signal, look);
    services.scan();
    EXPECT_EQ(seen, QStringList({
                        "scans 0 '' groups 0 failures 0",
                        "scans 0 'one' groups 0 failures 0",
                        "scans 0.4 'Comparing file hashes...' groups 0 failures 0",
                        "scans 1 'Comparing file hashes...' groups 0 failures 0",
                        "rests 1 '' groups 1 failures 0",
                    }));
}

TEST_F(DuplicateServiceScanTest, tellsEachFieldThatItSetsAtItsStartAndAtItsEnd)
{
    services.useScanPaths({});
    HeardSignals heard(duplicates);
    const auto sorted = [](QStringList names) {
        names.sort();
        return names;
    };
    const QStringList all = {"currentPathChanged", "groupsChanged", "isScanningChanged", "progressChanged"};
    duplicates.scan();
    EXPECT_EQ(sorted(heard.take()), all);
    test.mainQueue.run();
    test.workQueue.run();
    ASSERT_TRUE(test.mainQueue.step());
    EXPECT_EQ(sorted(heard.take()), QStringList({"currentPathChanged", "progressChanged"}));
    ASSERT_TRUE(test.mainQueue.step());
    EXPECT_EQ(sorted(heard.take()), all);
}

TEST_F(DuplicateServiceScanTest, jobOfAServiceThatIsGoneDoesNothing)
{
    int operations = 0;
    const InjectedFaults counted([&operations](files::Operation, const QString &) {
        ++operations;
        return 0;
    });
    auto another = services.makeAnother();
    another->scan();
    test.mainQueue.run();
    another.reset();
    operations = 0;
    EXPECT_EQ(test.workQueue.run(), 1);
    EXPECT_EQ(operations, 0);
    EXPECT_EQ(test.mainQueue.run(), 0);
}

TEST_F(DuplicateServiceScanTest, blocksForAServiceThatIsGoneDoNothing)
{
    services.file("one/x");
    services.file("two/x");
    auto another = services.makeAnother();
    another->scan();
    test.mainQueue.run();
    test.workQueue.run();
    another.reset();
    EXPECT_GT(test.mainQueue.run(), 0);
}

TEST_F(DuplicateServiceScanTest, stopsWhenItsServiceGoesDuringTheWalk)
{
    services.file("one/x");
    services.file("two/x");
    auto another = services.makeAnother();
    another->removeScanPath(test.home);
    another->addScanPath(services.inHome("one"));
    another->addScanPath(services.inHome("two"));
    another->scan();
    test.mainQueue.run();
    bool hasListedTheSecond = false;
    const InjectedFaults faults([&](files::Operation operation, const QString &path) {
        if (operation == files::Operation::list && path == services.inHome("one"))
            another.reset();
        hasListedTheSecond = hasListedTheSecond || path == services.inHome("two");
        return 0;
    });
    test.workQueue.run();
    EXPECT_EQ(another, nullptr);
    EXPECT_FALSE(hasListedTheSecond);
    test.mainQueue.run();
}
