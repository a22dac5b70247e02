#include "disk/DiskAnalyzerView.h"

#include "common/SettingsKeys.h"
#include "disk/DiskAnalyzerHome.h"
#include "filesystem/InjectedFaults.h"

#include <QSignalSpy>

namespace {
using DiskAnalyzerViewTest = DiskAnalyzerHome;
} // namespace

TEST_F(DiskAnalyzerViewTest, hasItsFixedTexts)
{
    make();
    EXPECT_EQ(view->title(), QStringLiteral("Disk Analyzer"));
    EXPECT_EQ(view->symbol(), QStringLiteral("internaldrive"));
    EXPECT_EQ(view->refreshSequence(), QStringLiteral("Ctrl+R"));
    const AnalyzerTexts texts = view->texts();
    EXPECT_EQ(texts.rescan, QStringLiteral("Rescan"));
    EXPECT_EQ(texts.changeFolder, QStringLiteral("Change Folder"));
    EXPECT_EQ(texts.scanning, QStringLiteral("Scanning..."));
    EXPECT_EQ(texts.cancel, QStringLiteral("Cancel"));
    EXPECT_EQ(texts.cancelTip, QStringLiteral("Stop scanning"));
    EXPECT_EQ(texts.analyzing, QStringLiteral("Analyzing disk usage..."));
    EXPECT_EQ(texts.goBack, QStringLiteral("Go back"));
    EXPECT_EQ(texts.home, QStringLiteral("Home"));
    EXPECT_EQ(texts.openInFinder, QStringLiteral("Open in Finder"));
    EXPECT_EQ(texts.visualMap, QStringLiteral("VISUAL MAP"));
    EXPECT_EQ(texts.nameColumn, QStringLiteral("Name"));
    EXPECT_EQ(texts.sizeColumn, QStringLiteral("Size"));
    EXPECT_EQ(texts.shareColumn, QStringLiteral("% of Parent"));
    EXPECT_EQ(texts.loadingContents, QStringLiteral("Loading contents..."));
    EXPECT_EQ(texts.emptyDirectory, QStringLiteral("Empty directory"));
    EXPECT_EQ(texts.reveal, QStringLiteral("Reveal in Finder"));
    EXPECT_EQ(texts.copyPath, QStringLiteral("Copy Path"));
    EXPECT_EQ(texts.openInTerminal, QStringLiteral("Open in Terminal"));
}

TEST_F(DiskAnalyzerViewTest, hasNothingToShowBeforeTheFirstScan)
{
    make();
    EXPECT_FALSE(view->hasEntry());
    EXPECT_FALSE(view->isScanning());
    EXPECT_FALSE(view->isAnalyzing());
    EXPECT_FALSE(view->pill()->isShown());
    EXPECT_FALSE(view->isEmptyDirectory());
    EXPECT_TRUE(view->isMapEmpty());
    EXPECT_EQ(view->pill()->text() + view->pill()->tooltip() + view->mapSummary() + view->location(),
              QString());
    EXPECT_EQ(view->contentsHeader(), QStringLiteral("CONTENTS (0 items)"));
    view->openInFinder();
    view->openRow(0);
    view->goBack();
    EXPECT_EQ(test.workspace.calls, QStringList());
    EXPECT_EQ(test.workQueue.waiting(), 0U);
}

TEST_F(DiskAnalyzerViewTest, scansItsFolderWhenItAppears)
{
    makeScanned();
    EXPECT_TRUE(view->hasEntry());
    EXPECT_EQ(view->location(), test.home);
    EXPECT_EQ(view->mapSummary(), QStringLiteral("2 items · 1.2 MB"));
    EXPECT_EQ(view->contentsHeader(), QStringLiteral("CONTENTS (2 items)"));
    EXPECT_EQ(names(), QStringLiteral("Documents,notes.txt"));
}

TEST_F(DiskAnalyzerViewTest, showsProgressInThePlaceOfATreeDuringAScan)
{
    makeScanned();
    view->rescan();
    EXPECT_TRUE(view->hasEntry()); // the flag is set in the next turn
    test.mainQueue.run();
    EXPECT_EQ(disk.analyzerRoot(), nullptr);
    EXPECT_TRUE(view->isScanning());
    EXPECT_TRUE(view->isAnalyzing());
    EXPECT_FALSE(view->hasEntry());
    EXPECT_FALSE(view->isEmptyDirectory());
    EXPECT_EQ(view->progressText(), QStringLiteral("Scanning ") + test.home);
    EXPECT_EQ(view->contents()->rowCount(), 0);
    EXPECT_FALSE(view->pill()->isShown());
    test.settle();
    EXPECT_TRUE(view->pill()->isShown());
    EXPECT_FALSE(view->isScanning());
    EXPECT_FALSE(view->isAnalyzing());
    EXPECT_EQ(names(), QStringLiteral("Documents,notes.txt"));
}

TEST_F(DiskAnalyzerViewTest, tellsThatACancelledScanIsStoppingUntilItsTreeComes)
{
    makeScanned();
    view->rescan();
    test.mainQueue.run();
    EXPECT_FALSE(view->canScan());
    EXPECT_EQ(view->stoppedText(), QString());
    view->cancelScan();
    test.mainQueue.run();
    EXPECT_TRUE(view->canScan());
    EXPECT_FALSE(view->hasEntry());
    EXPECT_EQ(view->stoppedText(), QStringLiteral("Stopping…"));
    EXPECT_FALSE(view->hasStopped());
    EXPECT_TRUE(view->isListAwaited());
    EXPECT_FALSE(view->pill()->isShown()); // what it tells of is no longer there
    test.settle();
    EXPECT_TRUE(view->pill()->isShown());
    EXPECT_TRUE(view->hasEntry());
    EXPECT_FALSE(view->isListAwaited());
    EXPECT_EQ(view->stoppedText(), QString());
    test.mainQueue.advance(60);
    EXPECT_EQ(view->stoppedText(), QString());
    EXPECT_FALSE(view->hasStopped());
}

TEST_F(DiskAnalyzerViewTest, tellsThatAScanHasStoppedWhereNoTreeComes)
{
    makeScanned();
    view->rescan();
    test.mainQueue.run();
    view->cancelScan();
    test.mainQueue.run();
    const QSignalSpy changes(view.get(), &DiskAnalyzerView::contentChanged);
    test.mainQueue.advance(2.9);
    EXPECT_EQ(view->stoppedText(), QStringLiteral("Stopping…"));
    test.mainQueue.advance(0.2);
    EXPECT_EQ(changes.count(), 1);
    EXPECT_EQ(view->stoppedText(), QStringLiteral("Scan stopped"));
    EXPECT_TRUE(view->hasStopped());
    EXPECT_FALSE(view->isListAwaited());
    test.settle(); // the disk answers after all
    EXPECT_EQ(view->stoppedText(), QString());
    EXPECT_EQ(names(), QStringLiteral("Documents,notes.txt"));
}

TEST_F(DiskAnalyzerViewTest, newScanEndsTheWaitForTheOneBefore)
{
    makeScanned();
    view->rescan();
    test.mainQueue.run();
    view->cancelScan();
    test.mainQueue.run();
    test.mainQueue.advance(1.5);
    view->rescan();
    test.mainQueue.run();
    EXPECT_EQ(view->stoppedText(), QString());
    view->cancelScan();
    test.mainQueue.run();
    test.mainQueue.advance(2);
    EXPECT_EQ(view->stoppedText(), QStringLiteral("Stopping…"));
    test.mainQueue.advance(1.1);
    EXPECT_EQ(view->stoppedText(), QStringLiteral("Scan stopped"));
}

TEST_F(DiskAnalyzerViewTest, keepsWhatIsOnViewWhenAnotherScreensScanIsCancelled)
{
    makeScanned();
    open("Documents");
    disk.scanAnalyzer(test.home, true);
    test.mainQueue.run();
    view->cancelScan();
    test.mainQueue.run();
    EXPECT_TRUE(view->hasEntry());
    EXPECT_EQ(view->stoppedText(), QString());
    test.mainQueue.advance(4);
    EXPECT_FALSE(view->hasStopped());
    view->goHome();
    EXPECT_EQ(view->stoppedText(), QStringLiteral("Scan stopped"));
    test.settle();
    EXPECT_EQ(view->stoppedText(), QString());
}

TEST_F(DiskAnalyzerViewTest, tellsBeginningAndEndOfAScan)
{
    make();
    std::vector<bool> states;
    QObject::connect(view.get(), &DiskAnalyzerView::scanChanged, view.get(),
                     [this, &states] { states.push_back(view->isScanning()); });
    const QSignalSpy contents(view.get(), &DiskAnalyzerView::contentChanged);
    view->appear();
    test.settle();
    EXPECT_EQ(states, (std::vector<bool>{true, false}));
    EXPECT_GE(contents.count(), 2);
}

TEST_F(DiskAnalyzerViewTest, findsAFinishedTreeWhenItIsMade)
{
    disk.scanAnalyzer(test.home, false);
    test.settle();
    make();
    EXPECT_EQ(names(), QStringLiteral("Documents,notes.txt"));
    EXPECT_TRUE(view->pill()->isShown());
}

TEST_F(DiskAnalyzerViewTest, keepsTheTreeOfTheSameFolderWithinTheLifetime)
{
    makeScanned();
    const auto tree = disk.analyzerRoot();
    make();
    test.clock.advance(299);
    view->appear();
    EXPECT_EQ(test.workQueue.waiting(), 0U);
    EXPECT_EQ(disk.analyzerRoot(), tree);
    test.clock.advance(1);
    view->appear();
    EXPECT_EQ(test.workQueue.waiting(), 1U);
}

TEST_F(DiskAnalyzerViewTest, scansAnotherFolderWhateverTheAgeOfTheTree)
{
    makeScanned();
    disk.setAnalyzerScanPath(path("Documents"));
    view->appear();
    test.settle();
    EXPECT_EQ(names(), QStringLiteral("report.pdf,Deep"));
}

TEST_F(DiskAnalyzerViewTest, rescansATreeThatIsFresh)
{
    makeScanned();
    inHome("new.bin", 5000);
    view->rescan();
    test.settle();
    EXPECT_EQ(names(), QStringLiteral("new.bin,Documents,notes.txt"));
    inHome("newer.bin", 6000);
    view->refresh();
    test.settle();
    EXPECT_EQ(names(), QStringLiteral("newer.bin,new.bin,Documents,notes.txt"));
}

TEST_F(DiskAnalyzerViewTest, leavesTheWayInOnARescan)
{
    makeScanned();
    open("Documents");
    view->rescan();
    EXPECT_FALSE(view->canGoBack());
    EXPECT_EQ(view->breadcrumbs()->rowCount(), 0);
}

TEST_F(DiskAnalyzerViewTest, startsNoSecondScanOnARescanDuringAScan)
{
    makeScanned();
    view->rescan();
    test.mainQueue.run();
    ASSERT_TRUE(view->isScanning());
    view->rescan();
    test.mainQueue.run();
    EXPECT_EQ(test.workQueue.waiting(), 1U);
}

TEST_F(DiskAnalyzerViewTest, leavesTheWayInOnARescanDuringAScanButNotByTheKey)
{
    makeScanned();
    open("Documents");
    disk.scanAnalyzer(test.home, true);
    test.mainQueue.run();
    ASSERT_TRUE(view->isScanning());
    view->refresh();
    EXPECT_EQ(crumbs(), QStringLiteral("Documents"));
    view->rescan();
    EXPECT_EQ(crumbs(), QString());
    EXPECT_EQ(test.workQueue.waiting(), 1U);
}

TEST_F(DiskAnalyzerViewTest, keepsShowingAFolderWhoseTreeTheServiceHasDropped)
{
    makeScanned();
    open("Documents");
    disk.scanAnalyzer(test.home, true);
    test.mainQueue.run();
    ASSERT_EQ(disk.analyzerRoot(), nullptr);
    EXPECT_FALSE(view->isAnalyzing());
    EXPECT_EQ(names(), QStringLiteral("report.pdf,Deep"));
    EXPECT_EQ(view->location(), path("Documents"));
}

TEST_F(DiskAnalyzerViewTest, stopsTheScanInALaterTurn)
{
    make();
    view->appear();
    test.mainQueue.run();
    view->cancelScan();
    EXPECT_TRUE(fileSystem.scanCancelled);
    EXPECT_TRUE(view->isScanning());
    test.mainQueue.run();
    EXPECT_FALSE(view->isScanning());
}

TEST_F(DiskAnalyzerViewTest, reusesThePartialTreeOfACancelledScan)
{
    make();
    {
        const InjectedFaults watch([this](files::Operation operation, const QString &at) {
            if (operation == files::Operation::list && at == path("Documents"))
                view->cancelScan(); // as a click in the middle of the walk
            return 0;
        });
        view->appear();
        test.settle();
    }
    ASSERT_TRUE(view->hasEntry());
    EXPECT_TRUE(view->pill()->isShown());
    const auto partial = disk.analyzerRoot();
    view->appear();
    test.settle();
    EXPECT_EQ(disk.analyzerRoot(), partial);
}

TEST_F(DiskAnalyzerViewTest, asksForAFolderAndScansIt)
{
    makeScanned();
    open("Documents");
    test.workspace.chosenFolder = path("Documents");
    view->changeFolder();
    EXPECT_EQ(test.workspace.folderRequest.message, QStringLiteral("Choose a folder to analyze"));
    EXPECT_EQ(test.workspace.folderRequest.start, test.home);
    EXPECT_FALSE(test.workspace.folderRequest.showsHidden);
    EXPECT_EQ(disk.analyzerScanPath(), path("Documents"));
    EXPECT_FALSE(view->canGoBack());
    test.mainQueue.run();
    EXPECT_EQ(view->progressText(), QStringLiteral("Scanning ") + path("Documents"));
    test.settle();
    EXPECT_EQ(view->location(), path("Documents"));
}

TEST_F(DiskAnalyzerViewTest, scansTheChosenFolderThoughItsTreeIsFresh)
{
    makeScanned();
    test.workspace.chosenFolder = test.home;
    view->changeFolder();
    EXPECT_EQ(test.workQueue.waiting(), 1U);
}

TEST_F(DiskAnalyzerViewTest, changesNothingWhenNoFolderIsChosen)
{
    makeScanned();
    open("Documents");
    test.workspace.chosenFolder.reset();
    view->changeFolder();
    EXPECT_EQ(disk.analyzerScanPath(), test.home);
    EXPECT_EQ(crumbs(), QStringLiteral("Documents"));
    EXPECT_EQ(test.workQueue.waiting(), 0U);
}

TEST_F(DiskAnalyzerViewTest, movesItsPillOnEveryThirtySeconds)
{
    makeScanned();
    EXPECT_EQ(view->pill()->text(), QStringLiteral("Cached · just now"));
    const QSignalSpy changes(view->pill(), &AgePillView::changed);
    test.clock.advance(180);
    EXPECT_EQ(view->pill()->text(), QStringLiteral("Cached · just now"));
    test.mainQueue.advance(29);
    EXPECT_EQ(changes.count(), 0);
    test.mainQueue.advance(2);
    EXPECT_EQ(changes.count(), 1);
    EXPECT_EQ(view->pill()->text(), QStringLiteral("Cached · 3 min ago"));
    EXPECT_EQ(view->pill()->tooltip(),
              QStringLiteral(
                  "Last scanned 3 min ago. Auto-refresh in 2 min 0 sec, or click Refresh to update now."));
    test.clock.advance(120);
    test.mainQueue.advance(30);
    EXPECT_EQ(view->pill()->text(), QStringLiteral("Stale · refreshing soon"));
    EXPECT_EQ(view->pill()->tooltip(),
              QStringLiteral("Cache expired — next view will re-scan automatically."));
    EXPECT_EQ(test.workQueue.waiting(), 0U); // no timer scans
}

TEST_F(DiskAnalyzerViewTest, takesThePillsLifetimeFromTheSettingsAsTheyStand)
{
    makeScanned();
    test.clock.advance(400);
    test.mainQueue.advance(30);
    EXPECT_EQ(view->pill()->text(), QStringLiteral("Stale · refreshing soon"));
    test.defaults.set(settings::diskCacheLifetimeMinutes, qint64(10));
    EXPECT_EQ(view->pill()->text(), QStringLiteral("Cached · 6 min ago"));
}
