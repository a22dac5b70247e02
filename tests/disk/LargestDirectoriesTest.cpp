#include "disk/DiskMeasures.h"
#include "disk/DiskServices.h"
#include "filesystem/InjectedFaults.h"

#include <random>

#include <gtest/gtest.h>

namespace {

struct LargestDirectoriesTest : testing::Test
{
    DiskServices services;
    TestPlatform &test = services.test;
    DiskService &disk = services.disk;

    QStringList names(const std::vector<LargeDirectory> &entries) const
    {
        QStringList names;
        for (const LargeDirectory &entry : entries)
            names << entry.name;
        return names;
    }

    /// A file that the `du` of `useDuThatReadsSizes` takes for one of that size.
    void fileOf(const QString &relative, qint64 kibibytes)
    {
        test.temp.file(relative, QByteArray::number(kibibytes) + "\n");
    }

    /// The result over roots of a test's own, by their paths below the home folder.
    QStringList largestBelow(const QStringList &roots)
    {
        Locations table = *test.locations;
        table.largestDirectoryRoots.clear();
        for (const QString &root : roots)
            table.largestDirectoryRoots << services.inHome(root);
        return names(diskmeasures::largestDirectories(table, services.probes));
    }

    size_t jobsOfUnforcedScan()
    {
        disk.scanLargestDirs(false);
        const size_t jobs = test.workQueue.waiting();
        test.settle();
        return jobs;
    }

    /// Content that no file system can squeeze.
    static QByteArray noise(int count)
    {
        std::mt19937 random(1); // NOLINT(cert-msc51-cpp): the same at each run, on purpose
        QByteArray bytes(count, Qt::Uninitialized);
        for (char &byte : bytes)
            byte = static_cast<char>(random());
        return bytes;
    }
};

using DrillChildrenTest = LargestDirectoriesTest;

} // namespace

TEST_F(LargestDirectoriesTest, realFoldersAndFilesCompeteByTheirAllocatedSize)
{
    test.temp.file("home/Documents/Project/part one", noise(6'000'000));
    test.temp.file("home/Documents/Project/part two", noise(6'000'000));
    test.temp.file("home/Downloads/disk image", noise(11'000'000));
    test.temp.file("home/Downloads/small", noise(5000));
    disk.scanLargestDirs(false);
    test.settle();

    const auto &entries = disk.cachedLargeDirs();
    ASSERT_EQ(names(entries), QStringList({"Project", "disk image"}));
    EXPECT_EQ(entries[0].path, services.inHome("Documents/Project"));
    EXPECT_EQ(entries[0].size, services.probes.probeSize(entries[0].path, ProbeContext::generic));
    EXPECT_GE(entries[1].size, 11'000'000);
    EXPECT_NE(entries[0].id, entries[1].id);
}

TEST_F(LargestDirectoriesTest, aFileOf500MegabytesInDownloadsAppearsAsAnEntry)
{
    services.useDuThatReadsSizes();
    fileOf("home/Downloads/movie.mkv", 500'000'000 / 1024);
    const auto entries = disk.computeLargestDirectories();
    ASSERT_EQ(names(entries), QStringList({"movie.mkv"}));
    EXPECT_EQ(entries.front().path, services.inHome("Downloads/movie.mkv"));
}

TEST_F(LargestDirectoriesTest, onlyWhatIsAbove10MillionBytesIsKept)
{
    services.useDuThatReadsSizes();       // whole KiB, so the two nearest counts around the limit
    fileOf("home/Documents/below", 9765); // 9,999,360 bytes
    fileOf("home/Documents/above", 9766); // 10,000,384 bytes
    EXPECT_EQ(names(disk.computeLargestDirectories()), QStringList({"above"}));
}

TEST_F(LargestDirectoriesTest, theEightLargestWinWithoutAQuotaForARoot)
{
    services.useDuThatReadsSizes();
    for (int i = 0; i < 9; ++i)
        fileOf(QStringLiteral("home/Movies/movie%1").arg(i), 100'000 + i);
    fileOf("home/Music/song", 20'000);
    fileOf("Applications/Tool.app/size", 100'003);
    EXPECT_EQ(
        names(disk.computeLargestDirectories()),
        QStringList({"movie8", "movie7", "movie6", "movie5", "movie4", "Tool.app", "movie3", "movie2"}));
}

TEST_F(LargestDirectoriesTest, equalOnesComeInTheOrderOfTheirRoots)
{
    services.useDuThatReadsSizes();
    const QStringList folders = {"home/Movies",  "home/Desktop",   "home/Music",   "home/Pictures",
                                 "home/Library", "home/Downloads", "Applications", "home/Documents"};
    for (const QString &folder : folders)
        fileOf(folder + "/in " + folder.section(u'/', -1), 20'000);
    EXPECT_EQ(names(disk.computeLargestDirectories()),
              QStringList({"in Applications", "in Library", "in Documents", "in Downloads", "in Pictures",
                           "in Music", "in Desktop", "in Movies"}));
}

TEST_F(LargestDirectoriesTest, namesThatBeginWithADotAreNotMeasured)
{
    services.useDuThatReadsSizes();
    fileOf("home/Documents/.hidden", 50'000);
    fileOf("home/Documents/plain", 20'000);
    EXPECT_EQ(names(disk.computeLargestDirectories()), QStringList({"plain"}));
}

TEST_F(LargestDirectoriesTest, rootThatCannotBeReadIsSkippedSilently)
{
    services.useDuThatReadsSizes();
    fileOf("home/Documents/locked", 50'000);
    fileOf("home/Music/song", 20'000);
    const InjectedFaults faults(files::Operation::list, services.inHome("Documents"));
    EXPECT_EQ(names(disk.computeLargestDirectories()), QStringList({"song"}));
}

TEST_F(LargestDirectoriesTest, whatVanishesOrLeadsNowhereIsNotMeasured)
{
    services.countRuns();
    test.temp.file("home/Documents/stays");
    test.temp.file("home/Documents/vanishes");
    test.temp.link("home/Documents/broken", "nowhere");
    const InjectedFaults faults(files::Operation::attributes, services.inHome("Documents/vanishes"));
    disk.computeLargestDirectories();
    EXPECT_EQ(files::readPrefix(test.temp.at("runs"), 1000),
              DiskServices::bytes(services.inHome("Documents/stays")) + "\n");
}

TEST_F(LargestDirectoriesTest, aRootInsideAnotherIsMeasuredThroughItsOwnChildrenOnly)
{
    services.useDuThatReadsSizes();
    fileOf("home/Documents/Pictures/size", 50'000);
    fileOf("home/Documents/Pictures/photo", 20'000);
    EXPECT_EQ(largestBelow({"Documents", "Documents/Pictures"}), QStringList({"size", "photo"}));
}

TEST_F(LargestDirectoriesTest, anEntryThatLeadsToARootFurtherDownIsNotMeasured)
{
    services.useDuThatReadsSizes();
    fileOf("home/Documents/size", 90'000);
    fileOf("home/Documents/Mine/size", 60'000);
    fileOf("home/Documents/Mine/Media/Pictures/photo", 20'000);
    fileOf("home/Documents/Mine too/size", 30'000);
    EXPECT_EQ(largestBelow({"Documents", "Documents/Mine/Media/Pictures"}),
              QStringList({"size", "Mine too", "photo"}));
    EXPECT_EQ(largestBelow({"Documents/Mine/Media/Pictures", "Documents"}),
              QStringList({"size", "Mine too", "photo"}));
}

TEST_F(LargestDirectoriesTest, aRootReachedThroughALinkIsSeenToLieInAnother)
{
    services.useDuThatReadsSizes();
    fileOf("home/Documents/Mine/size", 60'000);
    fileOf("home/Documents/Mine/Pictures/photo", 20'000);
    test.temp.link("home/Pictures", "Documents/Mine/Pictures");
    EXPECT_EQ(largestBelow({"Documents", "Pictures"}), QStringList({"photo"}));
    test.temp.link("home/Papers", "Documents");
    EXPECT_EQ(largestBelow({"Papers", "Pictures"}), QStringList({"photo"}));
}

TEST_F(LargestDirectoriesTest, anEntryThatIsALinkToWhatHoldsARootIsNotMeasured)
{
    services.useDuThatReadsSizes();
    fileOf("elsewhere/size", 60'000);
    fileOf("elsewhere/Pictures/photo", 20'000);
    test.temp.link("home/Pictures", test.temp.at("elsewhere/Pictures"));
    test.temp.folder("home/Documents");
    test.temp.link("home/Documents/all", test.temp.at("elsewhere"));
    EXPECT_EQ(largestBelow({"Documents", "Pictures"}), QStringList({"photo"}));
}

TEST_F(LargestDirectoriesTest, twoRootsThatAreOneFolderListItOnce)
{
    services.useDuThatReadsSizes();
    fileOf("home/Music/song", 20'000);
    test.temp.link("home/Movies", "Music");
    EXPECT_EQ(largestBelow({"Music", "Movies", "Music"}), QStringList({"song"}));
}

TEST_F(LargestDirectoriesTest, aRootThatIsNotThereHidesNothing)
{
    services.useDuThatReadsSizes();
    fileOf("home/Documents/Mine/size", 60'000);
    EXPECT_EQ(largestBelow({"Documents", "Documents/Mine/Pictures"}), QStringList({"Mine"}));
}

TEST_F(LargestDirectoriesTest, emptyResultRescansEachTimeAlthoughTheDateIsFresh)
{
    disk.scanStorage(true);
    test.settle();
    ASSERT_TRUE(disk.lastBreakdownScan());
    EXPECT_EQ(jobsOfUnforcedScan(), 1U);
    EXPECT_TRUE(disk.cachedLargeDirs().empty());
    EXPECT_EQ(jobsOfUnforcedScan(), 1U);
}

TEST_F(LargestDirectoriesTest, goesStaleWithTheBreakdownAndNeverSetsItsDate)
{
    services.useDuThatReadsSizes();
    fileOf("home/Music/song", 20'000);
    EXPECT_EQ(jobsOfUnforcedScan(), 1U);
    EXPECT_FALSE(disk.lastBreakdownScan());
    EXPECT_EQ(jobsOfUnforcedScan(), 1U); // a result, yet no date

    disk.scanStorage(true);
    test.settle();
    EXPECT_EQ(jobsOfUnforcedScan(), 0U);
    test.clock.advance(300);
    EXPECT_EQ(jobsOfUnforcedScan(), 1U);
    EXPECT_NE(disk.lastBreakdownScan(), test.clock.now());
}

TEST_F(LargestDirectoriesTest, forceAndRefreshRunAnewUnlessARunIsOn)
{
    services.useDuThatReadsSizes();
    fileOf("home/Music/song", 20'000);
    disk.scanStorage(true);
    disk.scanLargestDirs(true);
    test.settle();

    disk.scanLargestDirs(true);
    test.mainQueue.run();
    EXPECT_TRUE(disk.isScanningLargestDirs());
    disk.scanLargestDirs(true);
    disk.refreshLargestDirs();
    EXPECT_EQ(test.workQueue.waiting(), 1U);
    test.settle();

    const auto date = disk.lastBreakdownScan();
    test.clock.advance(10);
    disk.refreshLargestDirs();
    EXPECT_EQ(test.workQueue.waiting(), 1U);
    test.settle();
    EXPECT_EQ(disk.lastBreakdownScan(), date);
}

TEST_F(LargestDirectoriesTest, fieldsAreSetBeforeAnyChangeIsNotified)
{
    services.useDuThatReadsSizes();
    fileOf("home/Music/song", 20'000);
    QStringList seen;
    const auto note = [this, &seen](const char *signal) {
        seen << QStringLiteral("%1 %2 %3")
                    .arg(signal)
                    .arg(disk.isScanningLargestDirs())
                    .arg(disk.cachedLargeDirs().size());
    };
    QObject::connect(&disk, &DiskService::isScanningLargestDirsChanged, [&] { note("flag"); });
    QObject::connect(&disk, &DiskService::cachedLargeDirsChanged, [&] { note("list"); });
    disk.scanLargestDirs(false);
    EXPECT_FALSE(disk.isScanningLargestDirs());
    test.settle();
    EXPECT_EQ(seen, QStringList({"flag 1 0", "list 0 1", "flag 0 1"}));
}

TEST_F(LargestDirectoriesTest, stopClearsTheFlagAndTheRunStillPublishes)
{
    services.useDuThatReadsSizes();
    fileOf("home/Music/song", 20'000);
    disk.scanLargestDirs(false);
    test.mainQueue.run();
    disk.cancelLargestDirsScan();
    test.mainQueue.run();
    EXPECT_FALSE(disk.isScanningLargestDirs());
    test.settle();
    EXPECT_EQ(names(disk.cachedLargeDirs()), QStringList({"song"}));
    EXPECT_FALSE(disk.isScanningLargestDirs());
}

TEST_F(DrillChildrenTest, gives10OfTheLargestLargestFirst)
{
    services.useDuThatReadsSizes();
    for (int i = 1; i <= 12; ++i)
        fileOf(QStringLiteral("home/folder/child%1").arg(i), i);
    const auto entries = disk.drillChildren(services.inHome("folder"));
    EXPECT_EQ(names(entries), QStringList({"child12", "child11", "child10", "child9", "child8", "child7",
                                           "child6", "child5", "child4", "child3"}));
    EXPECT_EQ(entries.front().path, services.inHome("folder/child12"));
    EXPECT_EQ(entries.front().size, 12 * 1024);
}

TEST_F(DrillChildrenTest, leavesOutDotNamesAndEmptyOnes)
{
    services.useDuThatReadsSizes();
    fileOf("home/folder/.hidden", 9);
    fileOf("home/folder/empty", 0);
    fileOf("home/folder/negative", -4);
    fileOf("home/folder/small", 1);
    EXPECT_EQ(names(disk.drillChildren(services.inHome("folder"))), QStringList({"small"}));
}

TEST_F(DrillChildrenTest, measuresRealFoldersWithTheirHiddenContent)
{
    test.temp.file("home/folder/sub/.hidden", QByteArray(40'000, 'x'));
    const auto entries = disk.drillChildren(services.inHome("folder"));
    ASSERT_EQ(names(entries), QStringList({"sub"}));
    EXPECT_GE(entries.front().size, 40'000);
}

TEST_F(DrillChildrenTest, equalOnesKeepTheirListingOrder)
{
    services.useDuThatReadsSizes();
    for (int i = 0; i < 8; ++i)
        fileOf(QStringLiteral("home/folder/%1").arg(i * 5 % 8), 3);
    const auto listed = files::list(services.inHome("folder")).value();
    EXPECT_EQ(names(disk.drillChildren(services.inHome("folder"))),
              QStringList(listed.begin(), listed.end()));
}

TEST_F(DrillChildrenTest, isEmptyOnAFileAndOnAnUnreadableFolder)
{
    const QString file = test.temp.file("home/file", "x");
    EXPECT_TRUE(disk.drillChildren(file).empty());
    EXPECT_TRUE(disk.drillChildren(services.inHome("missing")).empty());
    test.temp.file("home/locked/a", "x");
    const InjectedFaults faults(files::Operation::list, services.inHome("locked"));
    EXPECT_TRUE(disk.drillChildren(services.inHome("locked")).empty());
}
