#include "disk/DiskAnalyzerHome.h"
#include "disk/DiskAnalyzerView.h"

#include <QAbstractItemModelTester>

#include <filesystem>
#include <limits>

namespace {
using DiskAnalyzerNavigationTest = DiskAnalyzerHome;
} // namespace

TEST_F(DiskAnalyzerNavigationTest, opensAListedFolderByItsRowAtOnce)
{
    makeScanned();
    const QAbstractItemModelTester tester(view->breadcrumbs(),
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    open("Documents");
    EXPECT_FALSE(view->isScanningDeeper());
    EXPECT_EQ(test.workQueue.waiting(), 0U);
    EXPECT_EQ(crumbs(), QStringLiteral("Documents"));
    EXPECT_EQ(view->location(), path("Documents"));
    EXPECT_EQ(view->mapSummary(), QStringLiteral("2 items · 1000 KB"));
    EXPECT_EQ(view->contentsHeader(), QStringLiteral("CONTENTS (2 items)"));
    EXPECT_TRUE(view->canGoBack());
    view->goHome();
    EXPECT_EQ(crumbs(), QString());
}

TEST_F(DiskAnalyzerNavigationTest, opensAFolderByItsTile)
{
    makeScanned();
    view->treemap()->resize(400, 300);
    tapTile("Documents");
    EXPECT_EQ(crumbs(), QStringLiteral("Documents"));
    EXPECT_EQ(columnTexts(view->treemap()->tiles(), "tileName").join(u','),
              QStringLiteral("report.pdf,Deep"));
}

TEST_F(DiskAnalyzerNavigationTest, opensNoFileByItsRowOrItsTile)
{
    makeScanned();
    view->treemap()->resize(400, 300);
    open("notes.txt");
    tapTile("notes.txt");
    EXPECT_EQ(crumbs(), QString());
    EXPECT_FALSE(view->isScanningDeeper());
    EXPECT_EQ(test.workspace.calls, QStringList());
}

TEST_F(DiskAnalyzerNavigationTest, doesNothingOnTheTileOfAllOthers)
{
    for (int i = 0; i < 20; ++i)
        test.temp.sparseFile(QStringLiteral("equal/folder%1/file").arg(i), 100);
    disk.setAnalyzerScanPath(test.temp.at(QStringLiteral("equal")));
    makeScanned();
    view->treemap()->resize(400, 300);
    ASSERT_EQ(view->treemap()->tiles()->rowCount(), 13);
    ASSERT_NE(rowOf(view->treemap()->tiles(), "tileName", "8 others"), -1);
    tapTile("8 others");
    EXPECT_FALSE(view->canGoBack());
    EXPECT_FALSE(view->isScanningDeeper());
    EXPECT_EQ(test.workQueue.waiting(), 0U);
}

TEST_F(DiskAnalyzerNavigationTest, hasAParentRowBelowTheTop)
{
    makeScanned();
    EXPECT_EQ(view->parentRowText(), QString());
    open("Documents");
    EXPECT_EQ(view->parentRowText(), QStringLiteral("..  Home"));
    open("Deep");
    test.settle();
    EXPECT_EQ(view->parentRowText(), QStringLiteral("..  Documents"));
    view->goBack();
    EXPECT_EQ(crumbs(), QStringLiteral("Documents"));
    view->goBack();
    EXPECT_EQ(crumbs(), QString());
    EXPECT_EQ(view->location(), test.home);
    view->goBack();
    EXPECT_EQ(view->location(), test.home);
}

TEST_F(DiskAnalyzerNavigationTest, cutsTheWayInBackToAnEntryOfIt)
{
    makeScanned();
    open("Documents");
    open("Deep");
    test.settle();
    ASSERT_EQ(crumbs(), QStringLiteral("Documents/Deep"));
    view->goTo(5);
    view->goTo(-2);
    view->goTo(std::numeric_limits<int>::max());
    view->goTo(1);
    EXPECT_EQ(crumbs(), QStringLiteral("Documents/Deep"));
    view->goTo(0);
    EXPECT_EQ(crumbs(), QStringLiteral("Documents"));
}

TEST_F(DiskAnalyzerNavigationTest, listsAFolderAtTheDepthLimitOneLevelOnAClick)
{
    test.temp.sparseFile(QStringLiteral("home/Documents/Deep/below/file"), 1);
    makeScanned();
    open("Documents");
    useDuThatSays("*/below", "70");
    std::filesystem::remove(paths::toBytes(test.temp.at("probed")).toStdString());
    open("Deep");
    EXPECT_TRUE(view->isScanningDeeper());
    EXPECT_TRUE(view->isListAwaited());
    EXPECT_EQ(crumbs(), QStringLiteral("Documents"));
    EXPECT_EQ(test.workQueue.lastPriority(), WorkPriority::userInitiated);
    test.workQueue.run();
    EXPECT_TRUE(view->isScanningDeeper());
    test.mainQueue.run();
    EXPECT_FALSE(view->isScanningDeeper());
    EXPECT_EQ(crumbs(), QStringLiteral("Documents/Deep"));
    EXPECT_EQ(names(), QStringLiteral("inside.txt,below"));
    EXPECT_EQ(view->mapSummary(), QStringLiteral("2 items · 320 KB")); // measured anew
    EXPECT_EQ(probed(), QStringList{path("Documents/Deep/below")});
}

TEST_F(DiskAnalyzerNavigationTest, undoesACancelByAClickIntoTheDepth)
{
    makeScanned();
    open("Documents");
    fileSystem.scanCancelled = true;
    open("Deep");
    test.settle();
    EXPECT_FALSE(fileSystem.scanCancelled);
    EXPECT_EQ(names(), QStringLiteral("inside.txt"));
}

TEST_F(DiskAnalyzerNavigationTest, takesNoSecondClickWhileALevelLoads)
{
    makeScanned();
    view->treemap()->resize(400, 300);
    open("Documents");
    open("Deep");
    open("Deep");
    tapTile("Deep");
    EXPECT_EQ(test.workQueue.waiting(), 1U);
    test.settle();
    EXPECT_EQ(crumbs(), QStringLiteral("Documents/Deep"));
}

TEST_F(DiskAnalyzerNavigationTest, opensFoldersWhoseContentIsThereWhileALevelLoads)
{
    inHome("Music/Albums/song.mp3", 100);
    test.temp.folder(QStringLiteral("home/Music/Empty"));
    makeScanned();
    open("Documents");
    open("Deep");
    view->goHome();
    open("Music");
    EXPECT_EQ(crumbs(), QStringLiteral("Music"));
    EXPECT_TRUE(view->isScanningDeeper());
    open("Empty"); // would be a second level on its way
    EXPECT_EQ(test.workQueue.waiting(), 1U);
    test.settle();
    EXPECT_EQ(crumbs(), QStringLiteral("Music/Deep"));
}

TEST_F(DiskAnalyzerNavigationTest, appendsALevelThatArrivesAfterHome)
{
    makeScanned();
    open("Documents");
    open("Deep");
    view->goHome();
    EXPECT_EQ(crumbs(), QString());
    test.settle();
    EXPECT_EQ(crumbs(), QStringLiteral("Deep"));
    EXPECT_EQ(view->parentRowText(), QStringLiteral("..  Home"));
    EXPECT_EQ(names(), QStringLiteral("inside.txt"));
}

TEST_F(DiskAnalyzerNavigationTest, appendsALevelThatArrivesAfterARescan)
{
    makeScanned();
    open("Documents");
    open("Deep");
    test.workQueue.run(); // the level is on its way to the main thread
    view->rescan();
    EXPECT_EQ(crumbs(), QString());
    test.settle();
    EXPECT_EQ(crumbs(), QStringLiteral("Deep"));
    view->goHome();
    EXPECT_EQ(names(), QStringLiteral("Documents,notes.txt"));
}

TEST_F(DiskAnalyzerNavigationTest, showsAFolderThatHasVanishedAsEmpty)
{
    makeScanned();
    open("Documents");
    std::filesystem::remove_all(paths::toBytes(path("Documents/Deep")).toStdString());
    open("Deep");
    EXPECT_FALSE(view->isEmptyDirectory());
    test.settle();
    EXPECT_EQ(crumbs(), QStringLiteral("Documents/Deep"));
    EXPECT_TRUE(view->isEmptyDirectory());
    EXPECT_TRUE(view->isMapEmpty());
    EXPECT_EQ(view->mapSummary(), QStringLiteral("0 items · 0 B"));
    EXPECT_EQ(view->contentsHeader(), QStringLiteral("CONTENTS (0 items)"));
    view->goBack();
    EXPECT_EQ(names(), QStringLiteral("report.pdf,Deep"));
}

TEST_F(DiskAnalyzerNavigationTest, showsAnEmptyFolderAsEmptyOnlyOnceItIsLoaded)
{
    test.temp.folder(QStringLiteral("home/Nothing"));
    makeScanned();
    open("Nothing"); // listed and empty, so it is listed again
    EXPECT_TRUE(view->isScanningDeeper());
    EXPECT_FALSE(view->isEmptyDirectory());
    test.settle();
    EXPECT_EQ(crumbs(), QStringLiteral("Nothing"));
    EXPECT_TRUE(view->isEmptyDirectory());
}

TEST_F(DiskAnalyzerNavigationTest, survivesTheScreensEndWhileALevelLoads)
{
    for (const bool isJobDone : {false, true}) {
        makeScanned();
        open("Documents");
        open("Deep");
        if (isJobDone)
            test.workQueue.run();
        view.reset();
        test.settle();
        EXPECT_NE(disk.analyzerRoot(), nullptr);
    }
}

TEST_F(DiskAnalyzerNavigationTest, survivesTheScreensEndDuringAScan)
{
    make();
    view->appear();
    test.mainQueue.run();
    view.reset();
    test.settle();
    test.mainQueue.advance(60); // its timer has gone with it
    EXPECT_EQ(test.mainQueue.waiting(), 0U);
    EXPECT_NE(disk.analyzerRoot(), nullptr);
}

TEST_F(DiskAnalyzerNavigationTest, actsOnARow)
{
    makeScanned();
    const int folder = rowOf(view->contents(), "entryName", "Documents");
    const int file = rowOf(view->contents(), "entryName", "notes.txt");
    EXPECT_EQ(view->openText(folder), QStringLiteral("Drill Into"));
    EXPECT_EQ(view->openText(file), QStringLiteral("Open"));
    view->revealRow(folder);
    view->openTerminal(folder);
    view->openTerminal(file); // in the folder that holds it
    view->activateRow(file);
    EXPECT_EQ(test.workspace.calls, (QStringList{QStringLiteral("reveal ") + path("Documents"),
                                                 QStringLiteral("terminal ") + path("Documents"),
                                                 QStringLiteral("terminal ") + test.home,
                                                 QStringLiteral("open ") + path("notes.txt")}));
    view->copyPath(file);
    EXPECT_EQ(test.workspace.clipboard, path("notes.txt"));
    view->activateRow(folder);
    EXPECT_EQ(crumbs(), QStringLiteral("Documents"));
}

TEST_F(DiskAnalyzerNavigationTest, doesNothingForARowThatIsNotThere)
{
    makeScanned();
    for (const int row : {-1, 2, 99}) {
        view->openRow(row);
        view->activateRow(row);
        view->revealRow(row);
        view->copyPath(row);
        view->openTerminal(row);
    }
    EXPECT_EQ(test.workspace.calls, QStringList());
    EXPECT_EQ(test.workspace.clipboard, QString());
    EXPECT_FALSE(view->canGoBack());
}

TEST_F(DiskAnalyzerNavigationTest, showsTheEntryOnViewInTheFileViewer)
{
    makeScanned();
    view->openInFinder();
    open("Documents");
    view->openInFinder();
    EXPECT_EQ(test.workspace.calls, (QStringList{QStringLiteral("show ") + test.home,
                                                 QStringLiteral("show ") + path("Documents")}));
}

TEST_F(DiskAnalyzerNavigationTest, showsBytesThatAreNoTextAndUsesThemInPaths)
{
    const QString name = paths::fromBytes("caf\xe9");
    test.temp.sparseFile(
        paths::join(QStringLiteral("hostile"), name + QStringLiteral("/") + name + QStringLiteral("/f")), 9);
    const QString root = test.temp.at(QStringLiteral("hostile"));
    useDuThatSays("*", "9");
    disk.setAnalyzerScanPath(root);
    makeScanned();
    const QString folder = paths::join(root, name);
    EXPECT_EQ(probed(), QStringList{paths::join(folder, name)});
    EXPECT_EQ(names(), QStringLiteral("caf\uFFFD"));
    view->revealRow(0);
    EXPECT_EQ(test.workspace.calls, QStringList{QStringLiteral("reveal ") + folder});

    view->treemap()->resize(400, 300);
    tapTile("caf\uFFFD");
    EXPECT_EQ(crumbs(), QStringLiteral("caf\uFFFD"));
    EXPECT_EQ(view->location(), root + QStringLiteral("/caf\uFFFD"));
    view->openRow(0);
    test.settle();
    EXPECT_EQ(view->parentRowText(), QStringLiteral("..  caf\uFFFD"));
    EXPECT_EQ(names(), QStringLiteral("f"));
    EXPECT_EQ(view->breadcrumb().back()->path, paths::join(folder, name));

    test.workspace.chosenFolder = folder;
    view->changeFolder();
    EXPECT_EQ(view->progressText(), QStringLiteral("Scanning ") + root + QStringLiteral("/caf\uFFFD"));
}

TEST_F(DiskAnalyzerNavigationTest, tellsApartNamesThatLookTheSame)
{
    test.temp.sparseFile(paths::fromBytes("twins/a\xe8/eight"), 20);
    test.temp.sparseFile(paths::fromBytes("twins/a\xe9/nine"), 10);
    disk.setAnalyzerScanPath(test.temp.at(QStringLiteral("twins")));
    makeScanned();
    ASSERT_EQ(names(), QStringLiteral("a\uFFFD,a\uFFFD"));
    view->treemap()->resize(400, 300);
    view->treemap()->tap(1);
    EXPECT_EQ(names(), QStringLiteral("nine"));
}

TEST_F(DiskAnalyzerNavigationTest, takesNamesAsTheyStandAndShowsThemInOneLine)
{
    const QString name = QStringLiteral("100%1 &\n<b>%2");
    test.temp.sparseFile(QStringLiteral("odd/") + name + QStringLiteral("/f"), 9);
    disk.setAnalyzerScanPath(test.temp.at(QStringLiteral("odd")));
    makeScanned();
    const QString shown = QStringLiteral("100%1 &↵<b>%2");
    EXPECT_EQ(names(), shown);
    view->openRow(0);
    EXPECT_EQ(view->location(), test.temp.at(QStringLiteral("odd/")) + shown);
    EXPECT_EQ(view->currentEntry()->name, name);
}
