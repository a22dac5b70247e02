#include "common/SettingsKeys.h"
#include "disk/DiskMeasures.h"
#include "disk/DiskServices.h"

#include <QSet>

#include <limits>

#include <gtest/gtest.h>

namespace {

struct StorageScanTest : testing::Test
{
    DiskServices services;
    TestPlatform &test = services.test;
    DiskService &disk = services.disk;

    StorageScanTest() { services.countRuns(); }

    void scan(bool force)
    {
        disk.scanStorage(force);
        test.settle();
    }

    /// How many scans `action` starts: each one is a job.
    size_t jobsOf(const std::function<void()> &action)
    {
        action();
        test.mainQueue.run();
        const size_t jobs = test.workQueue.waiting();
        test.settle();
        return jobs;
    }

    size_t jobsOfUnforcedScan()
    {
        return jobsOf([this] { disk.scanStorage(false); });
    }
};

} // namespace

TEST_F(StorageScanTest, startsWithNothing)
{
    EXPECT_TRUE(disk.cachedCategories().empty());
    EXPECT_TRUE(disk.cachedLargeDirs().empty());
    EXPECT_FALSE(disk.isScanningStorage());
    EXPECT_FALSE(disk.isScanningLargestDirs());
    EXPECT_FALSE(disk.lastBreakdownScan());
    EXPECT_FALSE(disk.analyzerRoot());
    EXPECT_EQ(disk.analyzerScanPath(), test.home);
    EXPECT_FALSE(disk.isScanningAnalyzer());
    EXPECT_FALSE(disk.lastAnalyzerScan());
}

TEST_F(StorageScanTest, givesTheSevenFoldersInTheirOrderWithTheirSizes)
{
    services.useDuThatReadsSizes();
    const struct
    {
        const char *name, *folder, *color, *icon;
    } rows[] = {
        {"Applications", "Applications", "58a6ff", "app.fill"},
        {"Documents", "home/Documents", "a371f7", "doc.fill"},
        {"Library", "home/Library", "3fb950", "books.vertical.fill"},
        {"Downloads", "home/Downloads", "da3633", "arrow.down.circle.fill"},
        {"Pictures", "home/Pictures", "d29922", "photo.fill"},
        {"Music", "home/Music", "39d2c0", "music.note"},
        {"Desktop", "home/Desktop", "f778ba", "desktopcomputer"},
    };
    int kibibytes = 0;
    for (const auto &row : rows)
        test.temp.file(QString(row.folder) + "/size", QByteArray::number(++kibibytes) + "\n");
    scan(false);

    ASSERT_EQ(disk.cachedCategories().size(), std::size(rows));
    QSet<QUuid> ids;
    for (size_t i = 0; i < std::size(rows); ++i) {
        const StorageCategory &category = disk.cachedCategories()[i];
        EXPECT_EQ(category.name, rows[i].name);
        EXPECT_EQ(category.size, static_cast<qint64>(i + 1) * 1024);
        EXPECT_EQ(category.color, rows[i].color);
        EXPECT_EQ(category.icon, rows[i].icon);
        EXPECT_TRUE(category.children.empty());
        ids << category.id;
    }
    EXPECT_EQ(ids.size(), 7);
}

TEST_F(StorageScanTest, measuresRealFoldersOneAfterTheOther)
{
    test.temp.file("home/Documents/file", QByteArray(100'000, 'x'));
    scan(false);
    EXPECT_EQ(disk.cachedCategories()[1].size,
              services.probes.probeSize(services.inHome("Documents"), ProbeContext::generic));
    EXPECT_GE(disk.cachedCategories()[1].size, 100'000);
    EXPECT_EQ(disk.cachedCategories()[5].size, 0); // there is no folder Music
    EXPECT_EQ(services.runs(), 7 + 1);
}

TEST_F(StorageScanTest, runsOnAUserInitiatedThreadAndRaisesItsFlagInALaterTurn)
{
    disk.scanStorage(false);
    EXPECT_FALSE(disk.isScanningStorage());
    test.mainQueue.run();
    EXPECT_TRUE(disk.isScanningStorage());
    EXPECT_EQ(test.workQueue.lastPriority(), WorkPriority::userInitiated);
    test.workQueue.run();
    EXPECT_TRUE(disk.isScanningStorage());
    EXPECT_TRUE(disk.cachedCategories().empty());
    test.mainQueue.run();
    EXPECT_FALSE(disk.isScanningStorage());
    EXPECT_EQ(disk.lastBreakdownScan(), test.clock.now());
}

TEST_F(StorageScanTest, secondScanWithinFiveMinutesStartsNothingAndOneAfterThemRescans)
{
    scan(false);
    test.clock.advance(299.5);
    EXPECT_EQ(jobsOfUnforcedScan(), 0U);
    test.clock.advance(0.5);
    EXPECT_EQ(jobsOfUnforcedScan(), 1U);
    EXPECT_EQ(disk.lastBreakdownScan(), test.clock.now());
}

TEST_F(StorageScanTest, lifetimeBelowOneMinuteBehavesAsFive)
{
    for (const qint64 minutes : {qint64(0), qint64(-1), std::numeric_limits<qint64>::min()}) {
        test.defaults.set(settings::diskCacheLifetimeMinutes, minutes);
        EXPECT_EQ(disk.cacheLifetime(), 300);
        scan(true);
        test.clock.advance(299);
        EXPECT_EQ(jobsOfUnforcedScan(), 0U);
        test.clock.advance(1);
        EXPECT_EQ(jobsOfUnforcedScan(), 1U);
    }
    test.defaults.set(settings::diskCacheLifetimeMinutes, 1);
    EXPECT_EQ(disk.cacheLifetime(), 60);
}

TEST_F(StorageScanTest, lifetimeShortenedInTheSettingsTakesEffectAtTheNextCheck)
{
    scan(false);
    test.clock.advance(120);
    EXPECT_EQ(jobsOfUnforcedScan(), 0U);
    test.defaults.set(settings::diskCacheLifetimeMinutes, 2);
    EXPECT_EQ(jobsOfUnforcedScan(), 1U);
}

TEST_F(StorageScanTest, forcePassesTheCacheOver)
{
    scan(false);
    EXPECT_EQ(jobsOf([this] { disk.scanStorage(true); }), 1U);
}

TEST_F(StorageScanTest, forcedScanDuringARunningOneStartsNothing)
{
    disk.scanStorage(false);
    test.mainQueue.run();
    ASSERT_TRUE(disk.isScanningStorage());
    EXPECT_EQ(jobsOf([this] {
                  disk.scanStorage(true);
                  disk.refreshStorage();
              }),
              1U); // the first one's
}

TEST_F(StorageScanTest, breakdownWithEverySizeZeroCountsAsCached)
{
    test.platform.programs.du = test.temp.at("missing");
    scan(false);
    ASSERT_EQ(disk.cachedCategories().size(), 7U);
    for (const StorageCategory &category : disk.cachedCategories())
        EXPECT_EQ(category.size, 0);
    EXPECT_EQ(jobsOfUnforcedScan(), 0U);
}

TEST_F(StorageScanTest, twoCallsInOneTurnStartTwoRunsOfWhichTheLaterOverwrites)
{
    EXPECT_EQ(jobsOf([this] {
                  disk.scanStorage(false);
                  disk.scanStorage(false);
              }),
              2U);
    EXPECT_EQ(services.runs(), 14);
    EXPECT_EQ(disk.cachedCategories().size(), 7U);
    EXPECT_FALSE(disk.isScanningStorage());
}

TEST_F(StorageScanTest, refreshRunsAnewAndLeavesTheDateAlone)
{
    scan(false);
    const auto date = disk.lastBreakdownScan();
    test.clock.advance(10);
    test.temp.file("home/Music/song", QByteArray(20'000, 'x'));
    EXPECT_EQ(jobsOf([this] { disk.refreshStorage(); }), 1U);
    EXPECT_GE(disk.cachedCategories()[5].size, 20'000);
    EXPECT_EQ(disk.lastBreakdownScan(), date);
}

TEST_F(StorageScanTest, refreshWithoutAScanBeforeLeavesNoDate)
{
    disk.refreshStorage();
    test.settle();
    EXPECT_EQ(disk.cachedCategories().size(), 7U);
    EXPECT_FALSE(disk.lastBreakdownScan());
    EXPECT_EQ(jobsOfUnforcedScan(), 1U); // a result without a date is not cached
}

TEST_F(StorageScanTest, oldFiguresStayOnViewWhileANewScanRuns)
{
    scan(false);
    disk.scanStorage(true);
    test.mainQueue.run();
    EXPECT_EQ(disk.cachedCategories().size(), 7U);
    EXPECT_TRUE(disk.lastBreakdownScan());
    test.settle();
}

TEST_F(StorageScanTest, fieldsAreSetBeforeAnyChangeIsNotified)
{
    QStringList seen;
    const auto note = [this, &seen](const char *signal) {
        seen << QStringLiteral("%1 %2 %3 %4")
                    .arg(signal)
                    .arg(disk.isScanningStorage())
                    .arg(disk.cachedCategories().size())
                    .arg(disk.lastBreakdownScan().has_value());
    };
    QObject::connect(&disk, &DiskService::isScanningStorageChanged, [&] { note("flag"); });
    QObject::connect(&disk, &DiskService::cachedCategoriesChanged, [&] { note("list"); });
    QObject::connect(&disk, &DiskService::lastBreakdownScanChanged, [&] { note("date"); });
    scan(false);
    EXPECT_EQ(seen, QStringList({"flag 1 0 0", "list 0 7 1", "date 0 7 1", "flag 0 7 1"}));
}

TEST_F(StorageScanTest, stopClearsTheFlagAtOnceAndAnotherRunMayStartBesideTheFirst)
{
    disk.scanStorage(false);
    test.mainQueue.run();
    disk.cancelStorageScan();
    EXPECT_TRUE(disk.isScanningStorage()); // in a later turn, as everything published
    test.mainQueue.run();
    EXPECT_FALSE(disk.isScanningStorage());
    EXPECT_EQ(test.workQueue.waiting(), 1U);
    EXPECT_EQ(jobsOf([this] { disk.scanStorage(false); }), 2U);
}

TEST_F(StorageScanTest, stopOnTheDashboardEndsARunningAnalyzerScanToo)
{
    for (const bool isBreakdown : {true, false}) {
        disk.scanAnalyzer(test.home, true);
        test.mainQueue.run();
        ASSERT_TRUE(disk.isScanningAnalyzer());
        isBreakdown ? disk.cancelStorageScan() : disk.cancelLargestDirsScan();
        EXPECT_TRUE(services.fileSystem.scanCancelled);
        test.mainQueue.run();
        EXPECT_FALSE(disk.isScanningAnalyzer());
        test.settle();
    }
}

TEST_F(StorageScanTest, stopWithoutAnAnalyzerScanLeavesItsFlagAlone)
{
    disk.cancelStorageScan();
    disk.cancelLargestDirsScan();
    EXPECT_FALSE(services.fileSystem.scanCancelled);
}

namespace {

/// A breakdown over places of a test's own.
qint64 sizeOverPlaces(DiskServices &services, const QStringList &places)
{
    Locations table = *services.test.locations;
    table.storageRows = {{"Applications", places, "58a6ff", "app.fill"},
                         {"Music", {}, "39d2c0", "music.note"}};
    const auto categories = diskmeasures::storageCategories(table, services.probes);
    EXPECT_EQ(categories.size(), 2U);
    EXPECT_EQ(categories.back().name, "Music"); // a row without a place stays
    EXPECT_EQ(categories.back().size, 0);
    return categories.front().size;
}

} // namespace

TEST_F(StorageScanTest, rowOfSeveralPlacesIsTheirSumAndASwitchedOffOneIsZero)
{
    const QString one = test.temp.folder("one");
    const QString two = test.temp.folder("two");
    test.temp.file("one/file", QByteArray(30'000, 'x'));
    test.temp.file("two/file", QByteArray(50'000, 'x'));
    const qint64 expected = services.probes.probeSize(one, ProbeContext::generic)
                            + services.probes.probeSize(two, ProbeContext::generic);
    EXPECT_GE(expected, 80'000);
    EXPECT_EQ(sizeOverPlaces(services, {one, test.temp.at("missing"), two}), expected);
}

TEST_F(StorageScanTest, placesWhoseSumIsBeyond64BitsDoNotEndTheProgram)
{
    services.useDu(
        "[ \"$2\" = /huge ] && size=9007199254740991 || size=4\nprintf '%s\\t%s\\n' $size \"$2\"\n");
    EXPECT_EQ(sizeOverPlaces(services, {"/small", "/huge"}), std::numeric_limits<qint64>::max());
    EXPECT_EQ(sizeOverPlaces(services, {"/huge", "/small"}), std::numeric_limits<qint64>::max());
}
