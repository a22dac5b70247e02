// Cancels of probes that really run. Every wait is for an event: a probe says through a pipe that it has
// begun, and one that hangs waits for a writer that never comes.

#include "base/EventLoopMainQueue.h"
#include "base/ThreadWorkQueue.h"
#include "disk/DiskServices.h"

#include <QEventLoop>

#include <csignal>
#include <thread>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

/// A `du` of which each run tells that it has begun.
class ObservedDu
{
public:
    /// `then` is what a run does behind that; `$never` is a pipe that never has a writer.
    ObservedDu(DiskServices &services, const QByteArray &then)
        : pids_(services.test.temp.at("pids"))
    {
        const QByteArray begun = DiskServices::bytes(services.test.temp.at("begun"));
        const QByteArray never = DiskServices::bytes(services.test.temp.at("never"));
        EXPECT_EQ(mkfifo(begun.constData(), 0600), 0);
        EXPECT_EQ(mkfifo(never.constData(), 0600), 0);
        begun_ = open(begun.constData(), O_RDWR | O_CLOEXEC); // for writing too, so that it never ends
        EXPECT_NE(begun_, -1);
        services.useDu("never='" + never + "'\necho $$ >>'" + DiskServices::bytes(pids_) + "'\necho \"$2\" >'"
                       + begun + "'\n" + then);
    }
    ~ObservedDu() { close(begun_); }
    ObservedDu(const ObservedDu &) = delete;
    ObservedDu &operator=(const ObservedDu &) = delete;

    /// Waits until another run has begun and gives the path that it measures.
    QString awaitBegin() const
    {
        QByteArray line;
        char byte = 0;
        while (read(begun_, &byte, 1) == 1 && byte != '\n')
            line += byte;
        return paths::fromBytes(line);
    }

    /// The runs there were, and how many of them are still in the process table, ended ones that nobody has
    /// collected included.
    std::pair<qsizetype, qsizetype> runsAndLeftovers() const
    {
        const QByteArrayList pids =
            files::readPrefix(pids_, 1 << 20).value_or(QByteArray()).trimmed().split('\n');
        const auto isThere = [](const QByteArray &pid) { return kill(pid.toInt(), 0) == 0; };
        return {pids.size(), std::count_if(pids.begin(), pids.end(), isThere)};
    }

private:
    QString pids_;
    int begun_ = -1;
};

/// One probe on a thread of its own.
class RunningProbe
{
public:
    RunningProbe(SizeProbes &probes, const QString &path, ProbeContext context)
        : thread_([this, &probes, path, context] { size_ = probes.probeSize(path, context); })
    {
    }
    ~RunningProbe()
    {
        if (thread_.joinable())
            thread_.join();
    }
    RunningProbe(const RunningProbe &) = delete;
    RunningProbe &operator=(const RunningProbe &) = delete;

    /// Waits for the probe's end.
    qint64 size()
    {
        thread_.join();
        return size_;
    }

private:
    qint64 size_ = -1;
    std::thread thread_;
};

const QByteArray hang = "read -r line <\"$never\"\n";

struct ProbeCancel : testing::Test
{
    DiskServices services;
    SizeProbes &probes = services.probes;
    DiskService &disk = services.disk;

    size_t live(ProbeContext context) const { return services.probes.liveSizeProbes()[context].size(); }
};

using Pair = std::pair<qsizetype, qsizetype>;

} // namespace

TEST_F(ProbeCancel, endsAProbeThatHangsAndGivesZero)
{
    const ObservedDu du(services, hang);
    RunningProbe probe(probes, "/a", ProbeContext::generic);
    EXPECT_EQ(du.awaitBegin(), "/a");
    ASSERT_EQ(live(ProbeContext::generic), 1U);
    EXPECT_TRUE(probes.liveSizeProbes()[ProbeContext::generic].front()->isRunning());
    probes.cancelProbes(ProbeContext::generic);
    EXPECT_EQ(live(ProbeContext::generic), 0U);
    EXPECT_EQ(probe.size(), 0);
    EXPECT_EQ(du.runsAndLeftovers(), Pair(1, 0));
}

TEST_F(ProbeCancel, endsAProbeWhoseOutputFillsThePipe)
{
    const ObservedDu du(services, "while :; do echo 0123456789012345678901234567890123456789; done\n");
    RunningProbe probe(probes, "/a", ProbeContext::generic);
    du.awaitBegin();
    probes.cancelProbes(ProbeContext::generic);
    EXPECT_EQ(probe.size(), 0);
    EXPECT_EQ(du.runsAndLeftovers(), Pair(1, 0));
}

TEST_F(ProbeCancel, contextsAreCancelledApart)
{
    const ObservedDu du(services, hang);
    RunningProbe storage(probes, "/storage", ProbeContext::storage);
    du.awaitBegin();
    RunningProbe largest(probes, "/largest", ProbeContext::largestDirs);
    du.awaitBegin();
    RunningProbe generic(probes, "/generic", ProbeContext::generic);
    du.awaitBegin();

    probes.cancelProbes(ProbeContext::storage);
    EXPECT_EQ(storage.size(), 0);
    ASSERT_EQ(live(ProbeContext::largestDirs), 1U);
    ASSERT_EQ(live(ProbeContext::generic), 1U);
    EXPECT_TRUE(probes.liveSizeProbes()[ProbeContext::largestDirs].front()->isRunning());
    EXPECT_TRUE(probes.liveSizeProbes()[ProbeContext::generic].front()->isRunning());

    probes.cancelProbes(ProbeContext::largestDirs);
    EXPECT_EQ(largest.size(), 0);
    EXPECT_EQ(live(ProbeContext::generic), 1U);
    probes.cancelProbes(ProbeContext::generic);
    EXPECT_EQ(generic.size(), 0);
    EXPECT_EQ(du.runsAndLeftovers(), Pair(3, 0));
}

TEST_F(ProbeCancel, withoutAContextEndsAllAndEmptiesTheRegistry)
{
    const ObservedDu du(services, hang);
    RunningProbe storage(probes, "/storage", ProbeContext::storage);
    RunningProbe largest(probes, "/largest", ProbeContext::largestDirs);
    RunningProbe generic(probes, "/generic", ProbeContext::generic);
    RunningProbe another(probes, "/another", ProbeContext::generic);
    for (int i = 0; i < 4; ++i)
        du.awaitBegin();
    probes.cancelProbes();
    for (RunningProbe *probe : {&storage, &largest, &generic, &another})
        EXPECT_EQ(probe->size(), 0);
    EXPECT_TRUE(probes.liveSizeProbes().empty());
    EXPECT_EQ(du.runsAndLeftovers(), Pair(4, 0));
}

TEST_F(ProbeCancel, ofTheAnalyzerEndsEveryGenericProbeWhicheverScreenStartedIt)
{
    const ObservedDu du(services, hang);
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

TEST_F(ProbeCancel, ofEachDashboardScanEndsItsOwnProbeAtWorkOnly)
{
    const ObservedDu du(services, "case \"$2\" in */hangs|*/Applications) " + hang.trimmed() + ";; esac\n");
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

TEST_F(ProbeCancel, leavesTheProbesThatStartAfterItAlone)
{
    const ObservedDu du(services, "[ \"$2\" = /first ] && " + hang + "printf '7\\t%s\\n' \"$2\"\n");
    RunningProbe first(probes, "/first", ProbeContext::generic);
    du.awaitBegin();
    probes.cancelProbes(ProbeContext::generic);
    EXPECT_EQ(first.size(), 0);
    EXPECT_EQ(probes.probeSize("/second", ProbeContext::generic), 7 * 1024);
}

TEST_F(ProbeCancel, aFinishedProbeIsCollected)
{
    const ObservedDu du(services, "exec /usr/bin/du \"$@\"\n");
    EXPECT_GT(probes.probeSize(services.test.temp.path(), ProbeContext::generic), 0);
    EXPECT_EQ(du.runsAndLeftovers(), Pair(1, 0));
}

TEST_F(ProbeCancel, ofADrillGoesOnWithTheNextChild)
{
    const ObservedDu du(services,
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
struct ThreadedScan : ProbeCancel
{
    TestPlatform &test = services.test;
    EventLoopMainQueue mainQueue;
    Platform platform{test.home,       test.locations, test.defaults,  test.clock,         {},
                      KeyStyle::words, mainQueue,      workQueue,      test.notifications, test.workspace,
                      test.recycler,   test.systemLog, test.systemInfo};
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

TEST_F(ThreadedScan, stoppedBreakdownPublishesPartialFiguresAndIsDated)
{
    const ObservedDu du(services, "case \"$2\" in */Library) " + hang.trimmed()
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

TEST_F(ThreadedScan, stoppedAnalyzerScanPublishesWhatItHad)
{
    test.temp.file("home/sub/file", QByteArray(5, 'x'));
    test.temp.folder("home/sub/deep");
    const ObservedDu du(services, hang);
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

TEST_F(ThreadedScan, theThreeScansRunSideBySide)
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
