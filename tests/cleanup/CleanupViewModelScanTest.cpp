#include "base/ChildProcess.h"
#include "CleanupServices.h"
#include "common/SettingsKeys.h"
#include "filesystem/InjectedFaults.h"
#include "support/FifoLine.h"
#include "support/ObservedDu.h"

#include <QSignalSpy>

#include <thread>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class CleanupViewModelScanTest : public testing::Test
{
protected:
    CleanupViewModelScanTest() { services.test.useDu("printf '100\\t'\n"); }

    CleanupServices services;
    TestPlatform &test = services.test;
    CleanupViewModel &cleanup = *services.cleanup;
};

} // namespace

TEST_F(CleanupViewModelScanTest, beginsWithNothing)
{
    EXPECT_TRUE(cleanup.categories().empty());
    EXPECT_FALSE(cleanup.isScanning());
    EXPECT_FALSE(cleanup.isCleaning());
    EXPECT_FALSE(cleanup.showConfirmClean());
    EXPECT_FALSE(cleanup.lastScanTime());
    EXPECT_FALSE(cleanup.isCacheFresh());
}

TEST_F(CleanupViewModelScanTest, publishesWhatItsJobHasFound)
{
    services.file(u"Library/Logs/file"_s);
    services.file(u".Trash/file"_s);
    cleanup.scan();
    EXPECT_TRUE(cleanup.isScanning());
    EXPECT_EQ(test.workQueue.lastPriority(), WorkPriority::userInitiated);
    test.workQueue.run();
    EXPECT_TRUE(cleanup.isScanning()) << "until the result is there";
    QSignalSpy categories(&cleanup, &CleanupViewModel::categoriesChanged);
    test.settle();
    EXPECT_FALSE(cleanup.isScanning());
    EXPECT_EQ(services.ids(), (QStringList{u"logs"_s, u"trash"_s}));
    EXPECT_EQ(cleanup.lastScanTime(), test.clock.now());
    EXPECT_EQ(categories.size(), 1);
}

TEST_F(CleanupViewModelScanTest, keepsTheOldListUntilTheNewOneIsThere)
{
    services.file(u"Library/Logs/file"_s);
    services.scan();
    services.file(u".Trash/file"_s);
    cleanup.scan();
    EXPECT_EQ(services.ids(), QStringList(u"logs"_s));
    test.settle();
    EXPECT_EQ(services.ids(), (QStringList{u"logs"_s, u"trash"_s}));
}

TEST_F(CleanupViewModelScanTest, emptiesAllChoicesAtItsStart)
{
    services.file(u"Library/Logs/file"_s);
    services.scan();
    cleanup.setExpanded(u"logs"_s, true);
    test.settle();
    cleanup.setReviewed(u"logs"_s, true);
    cleanup.setPreviewVisibleCount(u"logs"_s, 150);
    cleanup.toggle(u"logs"_s);
    ASSERT_FALSE(cleanup.selectedFilePaths().isEmpty());
    QSignalSpy emptied(&cleanup, &CleanupViewModel::choicesEmptied);
    cleanup.scan();
    EXPECT_EQ(emptied.size(), 1);
    EXPECT_TRUE(cleanup.reviewedUnsafe().isEmpty());
    EXPECT_TRUE(cleanup.expandedPreviews().isEmpty());
    EXPECT_TRUE(cleanup.previewFiles().isEmpty());
    EXPECT_TRUE(cleanup.selectedFilePaths().isEmpty());
    EXPECT_TRUE(cleanup.previewVisibleCount().isEmpty());
    EXPECT_TRUE(services.category(u"logs"_s)->checked) << "the old list keeps its tick";
    test.settle();
    EXPECT_FALSE(services.category(u"logs"_s)->checked);
}

TEST_F(CleanupViewModelScanTest, reportsWhetherProtectedFoldersCouldBeRead)
{
    services.scan();
    EXPECT_TRUE(test.access.shouldShowBanner(u"Smart Cleanup"_s));
    services.folder(u"Library/Safari"_s);
    test.access.recheck();
    services.scan();
    EXPECT_FALSE(test.access.shouldShowBanner(u"Smart Cleanup"_s));
}

TEST_F(CleanupViewModelScanTest, stopKeepsTheListAndItsDateAndLeavesTheChoicesEmpty)
{
    services.file(u"Library/Logs/file"_s);
    services.scan();
    const auto scanned = cleanup.lastScanTime();
    cleanup.setReviewed(u"logs"_s, true);
    services.file(u".Trash/file"_s);
    test.clock.advance(60);
    cleanup.scan();
    cleanup.stopScan();
    EXPECT_TRUE(cleanup.cancelRequested());
    EXPECT_TRUE(cleanup.isScanning()) << "until the result is there";
    test.settle();
    EXPECT_FALSE(cleanup.isScanning());
    EXPECT_EQ(services.ids(), QStringList(u"logs"_s));
    EXPECT_EQ(cleanup.lastScanTime(), scanned);
    EXPECT_TRUE(cleanup.reviewedUnsafe().isEmpty());
}

TEST_F(CleanupViewModelScanTest, stopCountsUntilTheResultIsThere)
{
    services.file(u"Library/Logs/file"_s);
    cleanup.scan();
    test.workQueue.run();
    cleanup.stopScan();
    test.settle();
    EXPECT_TRUE(cleanup.categories().empty());
    services.scan();
    EXPECT_EQ(services.ids(), QStringList(u"logs"_s)) << "the next scan is not stopped";
}

TEST_F(CleanupViewModelScanTest, stopEndsTheProbesOfEveryTool)
{
    services.file(u"Library/Logs/file"_s);
    const ObservedDu du(test, ObservedDu::hang);
    cleanup.scan();
    std::thread job([this] { test.workQueue.run(); });
    std::thread other([this] { test.probes.probeSize(test.home, ProbeContext::storage); });
    du.awaitBegin();
    du.awaitBegin();
    cleanup.stopScan();
    job.join();
    other.join();
    test.settle();
    EXPECT_FALSE(cleanup.isScanning());
    EXPECT_TRUE(cleanup.categories().empty());
}

TEST_F(CleanupViewModelScanTest, stopInTheSearchForEmptyFoldersDropsTheResult)
{
    services.folder(u"Downloads/empty"_s);
    const InjectedFaults step([this](files::Operation operation, const QString &path) {
        if (operation == files::Operation::list && path == services.inHome(u"Downloads/empty"_s))
            cleanup.stopScan();
        return 0;
    });
    services.scan();
    EXPECT_TRUE(cleanup.cancelRequested());
    EXPECT_FALSE(cleanup.isScanning());
    EXPECT_TRUE(cleanup.categories().empty());
}

TEST_F(CleanupViewModelScanTest, stopWhileFilesAreCountedDropsTheResult)
{
    services.file(u"Library/Logs/file"_s);
    const FifoLine begun(test.temp.at(u"begun"_s));
    const FifoLine goOn(test.temp.at(u"go on"_s));
    test.platform.programs.sh =
        test.temp.script(u"sh"_s, "echo begun >'" + paths::toBytes(begun.path()) + "'\nread -r line <'"
                                      + paths::toBytes(goOn.path()) + "'\necho 7\n");
    cleanup.scan();
    std::thread job([this] { test.workQueue.run(); });
    EXPECT_EQ(begun.read(), "begun");
    cleanup.stopScan();
    EXPECT_TRUE(cleanup.isScanning());
    EXPECT_TRUE(ChildProcess::launchDetached(u"/bin/sh"_s, {u"-c"_s, u"echo on >'%1'"_s.arg(goOn.path())}));
    job.join();
    test.settle();
    EXPECT_FALSE(cleanup.isScanning());
    EXPECT_TRUE(cleanup.categories().empty());
}

TEST_F(CleanupViewModelScanTest, stopIsNoMatterForAPreview)
{
    services.file(u"Library/Logs/file"_s);
    services.scan();
    cleanup.loadPreview(*services.category(u"logs"_s));
    cleanup.stopScan();
    test.settle();
    EXPECT_EQ(cleanup.previewFiles().value(u"logs"_s).size(), 1U);
}

TEST_F(CleanupViewModelScanTest, stopIsNoMatterForACleaning)
{
    services.file(u"Library/Logs/file"_s);
    services.scan();
    services.tickWhole(u"logs"_s);
    cleanup.clean();
    cleanup.stopScan();
    test.settle();
    EXPECT_EQ(services.names(u"Library/Logs"_s), QStringList());
    EXPECT_EQ(services.ids(), QStringList(u"trash"_s)) << "the scan that follows is not stopped";
}

TEST_F(CleanupViewModelScanTest, resultOfAnEarlierScanIsDropped)
{
    services.file(u"Library/Logs/file"_s);
    cleanup.scan();
    test.workQueue.run(); // its result is on its way
    cleanup.stopScan();
    services.file(u".Trash/file"_s);
    cleanup.scan();
    test.mainQueue.run();
    EXPECT_TRUE(cleanup.isScanning());
    EXPECT_TRUE(cleanup.categories().empty());
    test.settle();
    EXPECT_FALSE(cleanup.isScanning());
    EXPECT_EQ(services.ids().size(), 2);
}

TEST_F(CleanupViewModelScanTest, endsQuietlyWithItsService)
{
    services.file(u"Library/Logs/file"_s);
    test.useDu("echo x >>" + paths::toBytes(test.temp.at(u"asked"_s)) + "\n");
    cleanup.scan();
    services.cleanup.reset();
    test.settle();
    EXPECT_FALSE(files::exists(test.temp.at(u"asked"_s))) << "a job whose service is gone does nothing";
}

TEST_F(CleanupViewModelScanTest, resultFindsAServiceThatHasGone)
{
    services.file(u"Library/Logs/file"_s);
    cleanup.scan();
    cleanup.loadPreview({});
    test.workQueue.run();
    services.cleanup.reset();
    test.settle();
}

TEST_F(CleanupViewModelScanTest, isFreshForItsLifetime)
{
    services.file(u"Library/Logs/file"_s);
    test.defaults.set(settings::diskCacheLifetimeMinutes, qint64(2));
    services.scan();
    EXPECT_TRUE(cleanup.isCacheFresh());
    test.clock.advance(119.9);
    EXPECT_TRUE(cleanup.isCacheFresh());
    test.clock.advance(0.1);
    EXPECT_FALSE(cleanup.isCacheFresh()) << "at exactly the lifetime it is stale";
}

TEST_F(CleanupViewModelScanTest, takesALifetimeBelowOneForFiveMinutes)
{
    services.file(u"Library/Logs/file"_s);
    services.scan();
    for (const qint64 minutes : {0, -7}) {
        test.defaults.set(settings::diskCacheLifetimeMinutes, minutes);
        EXPECT_TRUE(cleanup.isCacheFresh());
    }
    test.clock.advance(299);
    EXPECT_TRUE(cleanup.isCacheFresh());
    test.clock.advance(1);
    EXPECT_FALSE(cleanup.isCacheFresh());
}

TEST_F(CleanupViewModelScanTest, isNeverFreshWithoutAnyCategory)
{
    services.scan();
    EXPECT_TRUE(cleanup.lastScanTime());
    EXPECT_FALSE(cleanup.isCacheFresh());
}
