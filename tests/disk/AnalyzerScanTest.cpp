#include "disk/DiskServices.h"
#include "filesystem/InjectedFaults.h"

#include <cmath>

#include <gtest/gtest.h>

namespace {

struct AnalyzerScanTest : testing::Test
{
    DiskServices services;
    TestPlatform &test = services.test;
    DiskService &disk = services.disk;
    QString root = test.temp.folder("root");

    void scan(const QString &path, bool force = true)
    {
        disk.scanAnalyzer(path, force);
        test.settle();
    }

    /// Posts a scan and lets the main thread take note of it; the walk itself has not begun.
    void begin(const QString &path)
    {
        disk.scanAnalyzer(path, true);
        test.mainQueue.run();
        ASSERT_TRUE(disk.isScanningAnalyzer());
    }

    const FileEntry *childNamed(const FileEntry &entry, const QString &name) const
    {
        for (const FileEntry &child : entry.children.value()) {
            if (child.name == name)
                return &child;
        }
        return nullptr;
    }
};

} // namespace

TEST_F(AnalyzerScanTest, asksForTheServicesBesideItNoEarlierThanAtAScan)
{
    int asked = 0;
    DiskService first(
        test.platform, test.probes, [&]() -> FileSystemService & { return ++asked, services.fileSystem; },
        [&]() -> FDAService & { return ++asked, test.access; });
    first.getDiskUsage();
    first.scanStorage(true);
    first.scanLargestDirs(true);
    test.settle();
    EXPECT_EQ(asked, 0);
    first.scanAnalyzer(root, true);
    EXPECT_EQ(asked, 2);
    test.settle();
    EXPECT_TRUE(first.analyzerRoot());
}

TEST_F(AnalyzerScanTest, listsTheRootAndItsFoldersAndMeasuresWhatLiesBelow)
{
    test.temp.file("root/file", QByteArray(3, 'x'));
    test.temp.file("root/sub/inner", QByteArray(5, 'x'));
    test.temp.file("root/sub/deep/far/away", QByteArray(70'000, 'x'));
    test.temp.file("root/sub/deep/.hidden", QByteArray(90'000, 'x'));
    scan(root, false);

    const FileEntry &tree = *disk.analyzerRoot();
    const FileEntry *sub = childNamed(tree, "sub");
    ASSERT_TRUE(sub);
    const FileEntry *deep = childNamed(*sub, "deep");
    ASSERT_TRUE(deep);
    EXPECT_FALSE(deep->children);
    EXPECT_EQ(deep->size, services.probes.probeSize(test.temp.at("root/sub/deep"), ProbeContext::generic));
    EXPECT_GE(deep->size, 160'000);
    EXPECT_EQ(tree.size, 3 + 5 + deep->size);
}

TEST_F(AnalyzerScanTest, theOldTreeGoesAtOnceAndThePathIsShown)
{
    scan(test.home);
    ASSERT_TRUE(disk.analyzerRoot());
    const auto date = disk.lastAnalyzerScan();
    disk.scanAnalyzer(root, true);
    EXPECT_TRUE(disk.analyzerRoot());
    EXPECT_FALSE(disk.isScanningAnalyzer());
    test.mainQueue.run();
    EXPECT_TRUE(disk.isScanningAnalyzer());
    EXPECT_FALSE(disk.analyzerRoot());
    EXPECT_EQ(disk.analyzerScanPath(), root);
    EXPECT_EQ(disk.lastAnalyzerScan(), date);
    test.settle();
    EXPECT_EQ(disk.analyzerRoot()->path, root);
}

TEST_F(AnalyzerScanTest, isOnAUserInitiatedThread)
{
    disk.scanAnalyzer(root, true);
    EXPECT_EQ(test.workQueue.lastPriority(), WorkPriority::userInitiated);
    test.settle();
}

TEST_F(AnalyzerScanTest, forcedScanDuringAScanDoesNothing)
{
    begin(root);
    disk.scanAnalyzer(root, true);
    disk.scanAnalyzer(test.home, true);
    EXPECT_EQ(test.workQueue.waiting(), 1U);
    test.settle();
    EXPECT_EQ(disk.analyzerRoot()->path, root);
    EXPECT_EQ(disk.analyzerScanPath(), root);
}

TEST_F(AnalyzerScanTest, keepsTheTreeOnTheSamePathWithinTheLifetime)
{
    scan(root, false);
    const auto tree = disk.analyzerRoot();
    test.clock.advance(299);
    scan(root, false);
    EXPECT_EQ(disk.analyzerRoot(), tree);
    test.clock.advance(1);
    scan(root, false);
    EXPECT_NE(disk.analyzerRoot(), tree);
}

TEST_F(AnalyzerScanTest, onAnotherPathAlwaysScans)
{
    scan(root, false);
    scan(test.home, false);
    EXPECT_EQ(disk.analyzerRoot()->path, test.home);
    scan(root, false);
    EXPECT_EQ(disk.analyzerRoot()->path, root);
}

TEST_F(AnalyzerScanTest, choosingAPathAloneKeepsTheTreeAndMakesTheNextUnforcedScanRun)
{
    scan(root, false);
    disk.setAnalyzerScanPath(test.home);
    EXPECT_EQ(disk.analyzerRoot()->path, root);
    scan(disk.analyzerScanPath(), false);
    EXPECT_EQ(disk.analyzerRoot()->path, test.home);
}

TEST_F(AnalyzerScanTest, forcePassesTheCacheOver)
{
    scan(root);
    const auto tree = disk.analyzerRoot();
    scan(root);
    EXPECT_NE(disk.analyzerRoot(), tree);
}

TEST_F(AnalyzerScanTest, breakdownsDateDoesNotMakeItFresh)
{
    disk.scanStorage(true);
    scan(root, false);
    EXPECT_TRUE(disk.analyzerRoot());
    test.clock.advance(400);
    disk.scanStorage(true);
    test.settle();
    const auto tree = disk.analyzerRoot();
    scan(root, false);
    EXPECT_NE(disk.analyzerRoot(), tree);
}

TEST_F(AnalyzerScanTest, cancelledScanLeavesAPartialTreeThatTheNextUnforcedCallReuses)
{
    test.temp.file("root/file", QByteArray(3, 'x'));
    test.temp.file("root/sub/file", QByteArray(1000, 'x'));
    test.temp.file("root/sub/deep/file", QByteArray(5000, 'x'));
    {
        // The cancel comes while "sub" is read: what lies directly in it still counts, "deep" no more.
        const InjectedFaults watch([this](files::Operation operation, const QString &path) {
            if (operation == files::Operation::list && path.endsWith(u"/sub"))
                disk.cancelAnalyzerScan();
            return 0;
        });
        scan(root, false);
    }
    EXPECT_TRUE(services.fileSystem.scanCancelled);
    EXPECT_FALSE(disk.isScanningAnalyzer());
    ASSERT_TRUE(disk.analyzerRoot());
    EXPECT_EQ(disk.analyzerRoot()->size, 3 + 1000);
    EXPECT_EQ(disk.lastAnalyzerScan(), test.clock.now());
    const auto partial = disk.analyzerRoot();
    scan(root, false);
    EXPECT_EQ(disk.analyzerRoot(), partial);
}

TEST_F(AnalyzerScanTest, cancelClearsTheFlagInALaterTurn)
{
    begin(root);
    disk.cancelAnalyzerScan();
    EXPECT_TRUE(disk.isScanningAnalyzer());
    EXPECT_TRUE(services.fileSystem.scanCancelled);
    test.mainQueue.run();
    EXPECT_FALSE(disk.isScanningAnalyzer());
    EXPECT_FALSE(disk.analyzerRoot());
    test.settle();
}

TEST_F(AnalyzerScanTest, newScanClearsTheCancelOfTheOneBefore)
{
    test.temp.file("root/file", QByteArray(3, 'x'));
    disk.cancelAnalyzerScan();
    scan(root);
    EXPECT_FALSE(services.fileSystem.scanCancelled);
    EXPECT_EQ(disk.analyzerRoot()->size, 3);
}

TEST_F(AnalyzerScanTest, resultOfAScanThatALaterOneHasOvertakenIsDropped)
{
    begin(root);
    disk.cancelAnalyzerScan();
    test.mainQueue.run();
    begin(test.home);

    ASSERT_TRUE(test.workQueue.step()); // the first one's walk ends now
    test.mainQueue.run();
    EXPECT_FALSE(disk.analyzerRoot());
    EXPECT_TRUE(disk.isScanningAnalyzer());
    EXPECT_FALSE(disk.lastAnalyzerScan());

    ASSERT_TRUE(test.workQueue.step());
    test.mainQueue.run();
    EXPECT_EQ(disk.analyzerRoot()->path, test.home);
    EXPECT_FALSE(disk.isScanningAnalyzer());
}

TEST_F(AnalyzerScanTest, ofTwoCallsInOneTurnOnlyTheLaterPublishes)
{
    disk.scanAnalyzer(root, false);
    disk.scanAnalyzer(test.home, false);
    EXPECT_EQ(test.workQueue.waiting(), 2U);
    test.settle();
    EXPECT_EQ(disk.analyzerRoot()->path, test.home);
    EXPECT_EQ(disk.analyzerScanPath(), test.home);
    EXPECT_FALSE(disk.isScanningAnalyzer());
}

TEST_F(AnalyzerScanTest, marksItselfDeniedWithoutFullDiskAccessAndClearsThatWithIt)
{
    scan(root); // the home folder has none of the protected folders yet
    EXPECT_TRUE(test.access.deniedContexts().contains("Disk Analyzer"));
    test.temp.folder("home/Library/Safari");
    test.access.recheck();
    scan(root);
    EXPECT_FALSE(test.access.deniedContexts().contains("Disk Analyzer"));
}

TEST_F(AnalyzerScanTest, doesNotAskForFullDiskAccessWhenItIsSkipped)
{
    test.temp.folder("home/Library/Safari");
    scan(root, false);
    test.access.markDenied("Disk Analyzer");
    scan(root, false); // cached
    EXPECT_TRUE(test.access.deniedContexts().contains("Disk Analyzer"));
}

TEST_F(AnalyzerScanTest, missingFolderGivesATreeWithoutChildren)
{
    scan(test.temp.at("missing"));
    ASSERT_TRUE(disk.analyzerRoot());
    EXPECT_EQ(disk.analyzerRoot()->size, 0);
    EXPECT_FALSE(disk.analyzerRoot()->children);
}

TEST_F(AnalyzerScanTest, fieldsAreSetBeforeAnyChangeIsNotified)
{
    disk.setAnalyzerScanPath("/before");
    QStringList seen;
    const auto note = [this, &seen](const char *signal) {
        seen << QStringLiteral("%1 %2 %3 %4 %5")
                    .arg(signal)
                    .arg(disk.isScanningAnalyzer())
                    .arg(disk.analyzerRoot() != nullptr)
                    .arg(disk.lastAnalyzerScan().has_value())
                    .arg(disk.analyzerScanPath() == root);
    };
    QObject::connect(&disk, &DiskService::isScanningAnalyzerChanged, [&] { note("flag"); });
    QObject::connect(&disk, &DiskService::analyzerRootChanged, [&] { note("tree"); });
    QObject::connect(&disk, &DiskService::lastAnalyzerScanChanged, [&] { note("date"); });
    QObject::connect(&disk, &DiskService::analyzerScanPathChanged, [&] { note("path"); });
    scan(root);
    EXPECT_EQ(seen, QStringList({"flag 1 0 0 1", "tree 1 0 0 1", "path 1 0 0 1", "tree 0 1 1 1",
                                 "date 0 1 1 1", "flag 0 1 1 1"}));
}
