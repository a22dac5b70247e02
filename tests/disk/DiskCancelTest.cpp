// Cancels of scans whose probes really run. Every wait is for an event: a probe says through a pipe that it has
// begun, and one that hangs waits for a writer that never comes.

#include "base/EventLoopMainQueue.h"
#include "base/ThreadWorkQueue.h"
#include "disk/DiskServices.h"
#include "support/ObservedDu.h"
#include "support/RunningProbe.h"

#include <QEventLoop>

#include <thread>

namespace {

const QByteArray hang = ObservedDu::hang;

struct DiskCancelTest : testing::Test
{
    DiskServices services;
    SizeProbes &probes = services.probes;
    DiskService &disk = services.disk;

    size_t live(ProbeContext context) const { return services.probes.liveSizeProbes()[context].size(); }
};

using Pair = std::pair<qsizetype, qsizetype>;

} // namespace

TEST_F(DiskCancelTest, ofTheAnalyzerEndsEveryGenericProbeWhicheverScreenStartedIt)
{
    const ObservedDu du(services.test, hang);
    RunningProbe storage(probes, "/storage", ProbeContext::storage);
    RunningProbe generic(probes, "/generic", ProbeContext::generic);
    du.awaitBegin();
    du.awaitBegin();
    disk.cancelAnalyzerScan();
    EXPECT_EQ(generic.size(), 0);
    EXPECT_EQ(live(ProbeContext::storage), 1U);
    probes.cancelProbes();
    services.test.settle();
}

TEST_F(DiskCancelTest, ofEachDashboardScanEndsItsOwnProbeAtWorkOnly)
{
    const ObservedDu du(services.test,
                        "case \"$2\" in */hangs|*/Applications) " + hang.trimmed() + ";; esac\n");
    services.test.temp.file("home/Documents/hangs");
    std::thread breakdown([this] { disk.computeStorageCategories(); });
    EXPECT_TRUE(du.awaitBegin().endsWith(u"/Applications"));
    std::thread largest([this] { disk.computeLargestDirectories(); });
    EXPECT_TRUE(du.awaitBegin().endsWith(u"/hangs"));
    EXPECT_EQ(live(ProbeContext::storage), 1U);
    EXPECT_EQ(live(ProbeContext::largestDirs), 1U);
    EXPECT_EQ(live(ProbeContext::generic), 0U);

    disk.cancelLargestDirsScan();
    EXPECT_EQ(live(ProbeContext::storage), 1U);
    EXPECT_EQ(live(ProbeContext::largestDirs), 0U);
    disk.cancelStorageScan();
    probes.cancelProbes(); // whatever was not ended, so that a failure is one and no endless wait
    largest.join();
    breakdown.join();
    services.test.settle();
}

TEST_F(DiskCancelTest, ofADrillGoesOnWithTheNextChild)
{
    const ObservedDu du(services.test,
                        "case \"$2\" in */hangs) " + hang.trimmed() + ";; esac\nprintf '7\\t%s\\n' \"$2\"\n");
    for (const char *name : {"hangs", "one", "two"})
        services.test.temp.file(QStringLiteral("home/folder/") + name);
    std::vector<LargeDirectory> entries;
    std::thread drill([&] { entries = disk.drillChildren(services.inHome("folder")); });
    while (!du.awaitBegin().endsWith(u"/hangs")) {}
    probes.cancelProbes(ProbeContext::generic);
    drill.join();
    EXPECT_EQ(entries.size(), 2U);
    EXPECT_EQ(du.runsAndLeftovers(), Pair(3, 0));
}

namespace {

/// The service on real threads and a real event loop.
struct ThreadedScanTest : DiskCancelTest
{
    TestPlatform &test = services.test;
    EventLoopMainQueue mainQueue;
    Platform platform{.home = test.home,
                      .locations = test.locations,
                      .defaults = test.defaults,
                      .clock = test.clock,
                      .programs = {},
                      .keyStyle = KeyStyle::words,
                      .mainQueue = mainQueue,
                      .workQueue = workQueue,
                      .notifications = test.notifications,
                      .workspace = test.workspace,
                      .recycler = test.recycler,
                      .applications = test.applications,
                      .systemLog = test.systemLog,
                      .systemInfo = test.systemInfo};
    SizeProbes ownProbes{platform};
    FileSystemService fileSystem{platform, ownProbes};
    DiskService service{platform, ownProbes, [this]() -> FileSystemService & { return fileSystem; },
                        [this]() -> FDAService & { return test.access; }};
    ThreadWorkQueue workQueue; // goes first, and waits for its jobs

    /// Turns the event loop until the service has notified of a change.
    void await(void (DiskService::*change)())
    {
        QEventLoop loop;
        QObject::connect(&service, change, &loop, &QEventLoop::quit);
        loop.exec();
    }
};

} // namespace

TEST_F(ThreadedScanTest, stoppedBreakdownPublishesPartialFiguresAndIsDated)
{
    const ObservedDu du(services.test, "case \"$2\" in */Library) " + hang.trimmed()
                                           + ";; esac\nprintf '7\\t%s\\n' \"$2\"\n");
    platform.programs = test.platform.programs;
    service.scanStorage(false);
    await(&DiskService::isScanningStorageChanged);
    EXPECT_TRUE(service.isScanningStorage());
    while (!du.awaitBegin().endsWith(u"/Library")) {}

    service.cancelStorageScan();
    await(&DiskService::isScanningStorageChanged);
    EXPECT_FALSE(service.isScanningStorage());
    if (service.cachedCategories().empty())
        await(&DiskService::cachedCategoriesChanged);
    ASSERT_EQ(service.cachedCategories().size(), 7U);
    for (const StorageCategory &category : service.cachedCategories())
        EXPECT_EQ(category.size, category.name == "Library" ? 0 : 7 * 1024) << qPrintable(category.name);
    EXPECT_EQ(service.lastBreakdownScan(), test.clock.now());
    EXPECT_FALSE(service.isScanningStorage());
    EXPECT_EQ(du.runsAndLeftovers(), Pair(7, 0));
}

TEST_F(ThreadedScanTest, stoppedAnalyzerScanPublishesWhatItHad)
{
    test.temp.file("home/sub/file", QByteArray(5, 'x'));
    test.temp.folder("home/sub/deep");
    const ObservedDu du(services.test, hang);
    platform.programs = test.platform.programs;
    service.scanAnalyzer(test.home, false);
    await(&DiskService::isScanningAnalyzerChanged);
    EXPECT_EQ(du.awaitBegin(), services.inHome("sub/deep"));
    service.cancelAnalyzerScan();
    await(&DiskService::analyzerRootChanged);
    EXPECT_EQ(service.analyzerRoot()->size, 5);
    EXPECT_FALSE(service.isScanningAnalyzer());
    EXPECT_EQ(du.runsAndLeftovers(), Pair(1, 0));
}

TEST_F(ThreadedScanTest, theThreeScansRunSideBySide)
{
    test.temp.file("home/Documents/sub/deep/file", QByteArray(50'000, 'x'));
    service.scanStorage(false);
    service.scanLargestDirs(false);
    service.scanAnalyzer(test.home, false);
    const auto isDone = [this] {
        return service.lastBreakdownScan() && service.lastAnalyzerScan() && !service.isScanningLargestDirs();
    };
    QEventLoop loop;
    const auto look = [&] {
        if (isDone())
            loop.quit();
    };
    QObject::connect(&service, &DiskService::cachedCategoriesChanged, &loop, look);
    QObject::connect(&service, &DiskService::cachedLargeDirsChanged, &loop, look);
    QObject::connect(&service, &DiskService::analyzerRootChanged, &loop, look);
    loop.exec();
    EXPECT_EQ(service.cachedCategories().size(), 7U);
    EXPECT_GE(service.cachedCategories()[1].size, 50'000);
    EXPECT_GE(service.analyzerRoot()->size, 50'000);
}
