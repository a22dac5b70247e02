#include "duplicates/DuplicateServiceRun.h"

#include <gtest/gtest.h>

namespace {

/// The ends of a scan that was cancelled or could not open files.
class DuplicateServiceEndsTest : public DuplicateServiceRun
{
};

} // namespace

TEST_F(DuplicateServiceEndsTest, cancelInTheWalkEndsWithNothing)
{
    for (const char *name : {"one/x", "one/deep/x", "two/x"})
        services.file(name);
    services.useScanPaths({"one", "two"});
    const auto cancel = cancelOn(files::Operation::list, "one/deep");
    runJob();
    EXPECT_EQ(stepped(), QStringList({
                             "scans 0 'one' groups 0 failures 0",
                             "scans 0 'one/deep' groups 0 failures 0",
                             "rests 0 '' groups 0 failures 0",
                         }));
    EXPECT_TRUE(duplicates.cancelRequested());
}

TEST_F(DuplicateServiceEndsTest, cancelBeforeItsJobRunsVisitsNothing)
{
    services.file("one/x");
    services.file("two/x");
    duplicates.scan();
    duplicates.setCancelRequested(true);
    test.mainQueue.run();
    test.workQueue.run();
    EXPECT_EQ(stepped(), QStringList{"rests 0 '' groups 0 failures 0"});
}

TEST_F(DuplicateServiceEndsTest, cancelWithoutScanPathsEndsAsOneInTheWalk)
{
    services.useScanPaths({});
    duplicates.scan();
    duplicates.setCancelRequested(true);
    test.settle();
    EXPECT_EQ(fields(), "rests 0 '' groups 0 failures 0");
}

TEST_F(DuplicateServiceEndsTest, cancelInTheHashPassLeavesWhatItFoundSorted)
{
    // The bucket of the larger files holds fewer of them, so that it comes second by what is wasted.
    for (const char *folder : {"one", "two"})
        services.file(QStringLiteral("%1/ten").arg(folder), QByteArray(10, 'x'));
    for (const char *folder : {"one", "two", "three"})
        services.file(QStringLiteral("%1/nine").arg(folder), QByteArray(9, 'x'));
    for (const char *folder : {"one", "two"})
        services.file(QStringLiteral("%1/eight").arg(folder), QByteArray(8, 'x'));
    services.file("one/seven", QByteArray(7, 'x'));
    services.file("two/seven", QByteArray(7, 'x'));
    services.useScanPaths({"one", "two", "three"});
    const auto cancel = cancelOn(files::Operation::read, "one/eight");
    runJob();
    const QStringList seen = stepped();
    // The bucket in which the cancel came counts as done, and the last one is not begun.
    EXPECT_EQ(seen.mid(3), QStringList({
                               "scans 0.4 'Comparing file hashes...' groups 0 failures 0",
                               "scans 0.55 'Comparing file hashes...' groups 0 failures 0",
                               "scans 0.7 'Comparing file hashes...' groups 0 failures 0",
                               "scans 0.85 'Comparing file hashes...' groups 0 failures 0",
                               "rests 0 'Cancelled' groups 2 failures 0",
                           }));
    EXPECT_EQ(services.shown(), QStringList({"9: one/nine two/nine- three/nine-", "10: one/ten two/ten-"}));
}

TEST_F(DuplicateServiceEndsTest, cancelInABucketKeepsTheGroupsOfWhatWasHashedOfIt)
{
    for (const char *folder : {"one", "two", "three"})
        services.file(QStringLiteral("%1/x").arg(folder));
    services.useScanPaths({"one", "two", "three"});
    const auto cancel = cancelOn(files::Operation::read, "two/x");
    services.scan();
    EXPECT_EQ(fields(), "rests 0 'Cancelled' groups 1 failures 0");
    EXPECT_EQ(services.shown(), QStringList{"5: one/x two/x-"});
}

TEST_F(DuplicateServiceEndsTest, cancelAtTheLastFileIsOneAllTheSame)
{
    services.file("one/x");
    services.file("two/x");
    services.useScanPaths({"one", "two"});
    const auto cancel = cancelOn(files::Operation::read, "two/x");
    services.scan();
    EXPECT_EQ(fields(), "rests 0 'Cancelled' groups 1 failures 0");
}

TEST_F(DuplicateServiceEndsTest, cancelAfterItsJobHasEndedComesTooLate)
{
    services.file("one/x");
    services.file("two/x");
    runJob();
    duplicates.setCancelRequested(true);
    test.mainQueue.run();
    EXPECT_EQ(fields(), "rests 1 '' groups 1 failures 0");
}

TEST_F(DuplicateServiceEndsTest, cancelInTheHashPassCountsTheFilesThatItCouldNotOpen)
{
    for (const char *folder : {"one", "two", "three"})
        services.file(QStringLiteral("%1/x").arg(folder));
    services.useScanPaths({"one", "two", "three"});
    const InjectedFaults faults([&](files::Operation operation, const QString &path) {
        if (operation != files::Operation::open)
            return 0;
        if (path == services.inHome("two/x"))
            duplicates.setCancelRequested(true);
        return path == services.inHome("one/x") ? EACCES : 0;
    });
    services.scan();
    EXPECT_EQ(fields(), "rests 0 'Cancelled' groups 0 failures 1");
}

TEST_F(DuplicateServiceEndsTest, countsTheFilesThatItCouldNotOpen)
{
    for (const char *name : {"one/x", "two/x", "three/x", "four/x"})
        services.file(name);
    services.file("one/alone", "of no other size, so nobody opens it");
    services.useScanPaths({"one", "two", "three", "four"});
    const InjectedFaults unreadable([&](files::Operation operation, const QString &path) {
        const bool opens = operation == files::Operation::open;
        return opens && !path.startsWith(services.inHome("t")) ? EACCES : 0;
    });
    runJob();
    EXPECT_EQ(duplicates.hashFailureCount(), 0);
    test.mainQueue.run();
    EXPECT_EQ(duplicates.hashFailureCount(), 2);
    EXPECT_EQ(services.shown(), QStringList{"5: two/x three/x-"});
}

TEST_F(DuplicateServiceEndsTest, cancelInTheWalkTellsNoFailuresOfAnEarlierScan)
{
    services.file("one/x");
    services.file("two/x");
    services.useScanPaths({"one", "two"});
    {
        const InjectedFaults unreadable(files::Operation::open, services.inHome("one/x"));
        services.scan();
    }
    ASSERT_EQ(duplicates.hashFailureCount(), 1);
    const auto cancel = cancelOn(files::Operation::list, "one");
    services.scan();
    EXPECT_EQ(duplicates.hashFailureCount(), 0);
}
