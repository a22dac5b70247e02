#include "apps/screen/AppManagerHome.h"
#include "common/NotificationNames.h"
#include "support/ObservedDu.h"
#include "support/RunningProbe.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {

/// The two lists of the App Manager, their tabs and their scans.
using AppManagerListTest = AppManagerHome;

} // namespace

TEST_F(AppManagerListTest, scansOnceItHasBeenSeen)
{
    EXPECT_FALSE(view->isScanning());
    EXPECT_TRUE(view->isSearching());
    EXPECT_EQ(view->emptyText(), QString());
    view->appear();
    EXPECT_TRUE(view->isScanning());
    EXPECT_EQ(view->tabTexts().scanning, u"Scanning applications...");
    test.settle();
    EXPECT_FALSE(view->isScanning());
    EXPECT_FALSE(view->isSearching());
    EXPECT_EQ(installed(), QStringList({u"Alpha"_s, u"Beta"_s, u"Gamma"_s}));
    EXPECT_EQ(service->hasScannedGhosts(), false);
}

TEST_F(AppManagerListTest, doesNotScanAgainWithAListOrDuringAScan)
{
    appear();
    make();
    EXPECT_FALSE(view->isSearching());
    view->appear();
    EXPECT_FALSE(view->isScanning());
    service->scanInstalledApps();
    make();
    const QSignalSpy starts(service.get(), &AppService::isLoadingChanged);
    view->appear();
    EXPECT_EQ(starts.count(), 0);
}

TEST_F(AppManagerListTest, tellsOfEachApp)
{
    appear();
    EXPECT_EQ(ofApp(u"Alpha"_s, "versionText"), u"1.0");
    EXPECT_EQ(ofApp(u"Alpha"_s, "bundleID"), u"net.first.alpha");
    EXPECT_EQ(ofApp(u"Alpha"_s, "sizeText"), u"100 KB");
    EXPECT_EQ(ofApp(u"Alpha"_s, "totalText"), u"113 KB");
    EXPECT_EQ(ofApp(u"Alpha"_s, "lastUsedText"), u"Today");
    EXPECT_EQ(ofApp(u"Alpha"_s, "spokenText"), u"1.0, 100 KB, Today");
    EXPECT_EQ(view->lists()->installedFigure(), u"3");
    EXPECT_EQ(view->lists()->totalFigure(), u"183 KB");
    EXPECT_EQ(view->lists()->ghostFigure(), u"0");
}

TEST_F(AppManagerListTest, showsHostileNamesInOneLine)
{
    bundle(u"Line\nFeed"_s, u"a\u202Eb"_s);
    appear();
    EXPECT_TRUE(installed().contains(u"Line↵Feed"_s));
    EXPECT_EQ(ofApp(u"Line↵Feed"_s, "bundleID"), u"a\uFFFDb");
}

TEST_F(AppManagerListTest, leavesWhatTheSearchFinds)
{
    appear();
    view->lists()->setSearchText(u"ALPH"_s);
    EXPECT_EQ(installed(), QStringList{u"Alpha"_s});
    EXPECT_EQ(view->lists()->installedFigure(), u"3");
    view->lists()->setSearchText(u"net.first"_s); // identifiers are not searched here
    EXPECT_EQ(installed(), QStringList());
    EXPECT_EQ(view->emptyText(), u"No matches");
    view->lists()->setSearchText({});
    EXPECT_EQ(installed().size(), 3);
}

TEST_F(AppManagerListTest, findsGhostsByNameAndIdentifier)
{
    appearWithGhosts();
    view->lists()->setSearchText(u"TOOL"_s);
    EXPECT_EQ(ghosts(), QStringList{u"org.vanished.tool"_s});
    view->lists()->setSearchText(u"org.Departed"_s);
    EXPECT_EQ(ghosts(), QStringList{u"org.departed.thing"_s});
}

TEST_F(AppManagerListTest, sortsAsTheReaderChooses)
{
    bundle(u"Aaa"_s, u"net.fourth.aaa"_s); // the smallest
    appear();
    EXPECT_EQ(installed(), QStringList({u"Alpha"_s, u"Beta"_s, u"Gamma"_s, u"Aaa"_s}));
    EXPECT_EQ(view->lists()->sortLabels(), QStringList({u"Name"_s, u"Size"_s, u"Last Used"_s}));
    EXPECT_EQ(view->lists()->sortBy(), 1);
    const QSignalSpy others(view->lists(), &AppLists::rowsWillChange);
    view->lists()->chooseSort(0);
    view->lists()->chooseSort(0);
    view->lists()->chooseSort(3);
    EXPECT_EQ(others.count(), 1);
    EXPECT_EQ(installed(), QStringList({u"Aaa"_s, u"Alpha"_s, u"Beta"_s, u"Gamma"_s}));
}

TEST_F(AppManagerListTest, takesARowAsItIsShown)
{
    bundle(u"Aaa"_s, u"net.fourth.aaa"_s);
    appear();
    view->lists()->chooseSort(0);
    view->select(0);
    EXPECT_EQ(view->appDetail()->name(), u"Aaa");
    view->lists()->setSearchText(u"gam"_s);
    view->toggleTick(0);
    EXPECT_TRUE(service->apps()[2].selected);
    EXPECT_EQ(view->selectionText(), u"1 apps selected");
    view->lists()->setSearchText(u"beta"_s); // hides the ticked one, which counts all the same
    EXPECT_EQ(installed(), QStringList{u"Beta"_s});
    EXPECT_EQ(view->selectionText(), u"1 apps selected");
    view->openApp(0);
    EXPECT_EQ(test.workspace.calls, QStringList{u"open "_s + at(u"Beta"_s)});
    view->clearSelection();
    EXPECT_FALSE(service->apps()[2].selected);
}

TEST_F(AppManagerListTest, takesARowOfTheGhostsAsItIsShown)
{
    appearWithGhosts();
    view->lists()->setSearchText(u"departed"_s);
    view->toggleTick(0);
    EXPECT_TRUE(service->ghosts()[0].selected);
    EXPECT_FALSE(service->ghosts()[1].selected);
    view->select(0);
    EXPECT_EQ(view->ghostDetail()->bundleID(), u"org.departed.thing");
}

TEST_F(AppManagerListTest, emptiesTheSearchOnAChangeOfTab)
{
    appear();
    view->select(0);
    view->lists()->setSearchText(u"beta"_s);
    view->chooseTab(1);
    EXPECT_EQ(view->lists()->searchText(), QString());
    EXPECT_EQ(view->appDetail()->app(), std::nullopt);
    test.settle();
    view->select(0);
    view->lists()->setSearchText(u"tool"_s);
    view->chooseTab(0);
    EXPECT_EQ(view->lists()->searchText(), QString());
    EXPECT_EQ(view->ghostDetail()->ghost(), std::nullopt);
    EXPECT_EQ(installed().size(), 3);
    view->chooseTab(7);
    view->chooseTab(-1);
    EXPECT_EQ(view->activeTab(), 0);
}

TEST_F(AppManagerListTest, scansForGhostsWhenTheirTabIsOpened)
{
    appear();
    view->chooseTab(1);
    EXPECT_TRUE(view->isScanning());
    EXPECT_TRUE(view->isSearching());
    EXPECT_EQ(view->tabTexts().scanning, u"Scanning for ghost files...");
    test.settle();
    EXPECT_EQ(ghosts(), QStringList({u"org.vanished.tool"_s, u"org.departed.thing"_s}));
    EXPECT_EQ(view->lists()->ghostFigure(), u"2");
    view->chooseTab(0);
    view->chooseTab(1);
    EXPECT_FALSE(view->isScanning()); // they are there
}

TEST_F(AppManagerListTest, scansForGhostsAgainWhereNoneWereFound)
{
    std::filesystem::remove_all(home.inLibrary({}).toStdString());
    appearWithGhosts();
    EXPECT_EQ(view->emptyText(), u"No ghost files found");
    EXPECT_EQ(view->emptyDetail(), u"Your system is clean of leftover app files.");
    view->chooseTab(0);
    view->chooseTab(1);
    EXPECT_TRUE(view->isScanning());
    EXPECT_EQ(view->emptyText(), QString());
}

TEST_F(AppManagerListTest, tellsOfEachGhost)
{
    appearWithGhosts();
    const QString key = u"org.vanished.tool"_s;
    EXPECT_EQ(ofGhost(key, "appName"), u"Tool");
    EXPECT_EQ(ofGhost(key, "filesText"), u"2 files");
    EXPECT_EQ(ofGhost(key, "totalText"), u"35 KB");
    EXPECT_EQ(ofGhost(key, "badgeText"), u"ORPHAN");
    EXPECT_EQ(ofGhost(key, "spokenText"), u"ORPHAN, 2 files, 35 KB");
    EXPECT_EQ(ofGhost(key, "isTicked"), u"true");
    EXPECT_EQ(ofGhost(u"org.departed.thing"_s, "filesText"), u"1 file");
}

TEST_F(AppManagerListTest, opensOnTheGhostsTabForOnce)
{
    appear();
    service->setOpenOnGhostsTab(true);
    make();
    EXPECT_TRUE(view->isGhostTab());
    view->appear();
    EXPECT_TRUE(view->isGhostTab());
    EXPECT_FALSE(service->openOnGhostsTab());
    EXPECT_FALSE(view->isScanning());        // whoever asked for the tab has seen to the scan
    EXPECT_EQ(view->emptyText(), QString()); // nothing is known yet
    make();
    EXPECT_FALSE(view->isGhostTab());
}

TEST_F(AppManagerListTest, scansForApplicationsAlsoWhereItOpensOnTheGhostsTab)
{
    service->setOpenOnGhostsTab(true);
    make();
    view->appear();
    EXPECT_TRUE(service->isLoading());
    EXPECT_FALSE(service->isScanningGhosts()) << "whoever asked for the tab has seen to that";
    test.settle();
    EXPECT_EQ(service->apps().size(), 3U);
    EXPECT_FALSE(service->hasScannedGhosts());
}

TEST_F(AppManagerListTest, rescansTheListOnView)
{
    appear();
    EXPECT_EQ(view->texts().rescan, u"Refresh");
    EXPECT_EQ(view->tabTexts().rescanTip, u"Re-scan installed apps (Ctrl+R)");
    test.platform.notifications.post(notifications::rescan);
    EXPECT_TRUE(service->isLoading());
    EXPECT_FALSE(view->canRescan());
    const QSignalSpy starts(service.get(), &AppService::isLoadingChanged);
    view->rescan();
    EXPECT_EQ(starts.count(), 0);
    view->chooseTab(1);
    test.settle();
    EXPECT_EQ(view->tabTexts().rescanTip, u"Re-scan ghost files (Ctrl+R)");
    view->rescan();
    EXPECT_TRUE(service->isScanningGhosts());
    EXPECT_FALSE(service->isLoading());
}

TEST_F(AppManagerListTest, stopsTheScanOnView)
{
    view->appear();
    EXPECT_TRUE(view->canStop());
    EXPECT_EQ(view->stopText(), u"Cancel");
    EXPECT_EQ(view->texts().stopTip, u"Stop scanning");
    view->stop();
    EXPECT_TRUE(service->cancelInstalled());
    EXPECT_FALSE(service->cancelGhosts());
    EXPECT_FALSE(view->canStop());
    EXPECT_TRUE(view->stopLabels().contains(view->stopText()));
    test.settle();
    EXPECT_EQ(installed(), QStringList());
    EXPECT_EQ(view->emptyText(), u"No applications found");
    EXPECT_TRUE(view->canRescan());
    view->chooseTab(1);
    view->stop();
    EXPECT_TRUE(service->cancelGhosts());
}

TEST_F(AppManagerListTest, endsEveryLiveProbeWhenItStops)
{
    const ObservedDu du(test, ObservedDu::hang);
    view->appear();
    const RunningProbe storage(test.probes, u"/storage"_s, ProbeContext::storage);
    const RunningProbe generic(test.probes, u"/generic"_s, ProbeContext::generic);
    du.awaitBegin();
    du.awaitBegin();
    view->stop();
    const auto live = test.probes.liveSizeProbes();
    test.probes.cancelProbes(); // or a failure would hang
    EXPECT_TRUE(live.empty());
}

TEST_F(AppManagerListTest, doesNotStopWhatDoesNotRun)
{
    appear();
    view->stop();
    EXPECT_FALSE(service->cancelInstalled());
}

TEST_F(AppManagerListTest, keepsRowsInTheirPlaceWhenOneGoes)
{
    appear();
    const QSignalSpy resets(view->lists()->installed(), &QAbstractItemModel::modelReset);
    const QSignalSpy removals(view->lists()->installed(), &QAbstractItemModel::rowsRemoved);
    service->takeOut(std::vector<RealInstalledApp>{service->apps()[1]});
    EXPECT_EQ(installed(), QStringList({u"Alpha"_s, u"Gamma"_s}));
    EXPECT_EQ(resets.count(), 0);
    EXPECT_EQ(removals.count(), 1);
}

TEST_F(AppManagerListTest, changesOneRowAtATick)
{
    appear();
    const QSignalSpy changes(view->lists()->installed(), &QAbstractItemModel::dataChanged);
    view->toggleTick(1);
    ASSERT_EQ(changes.count(), 1);
    EXPECT_EQ(changes[0][0].toModelIndex().row(), 1);
    EXPECT_EQ(changes[0][1].toModelIndex().row(), 1);
    EXPECT_EQ(ofApp(u"Beta"_s, "isTicked"), u"true");
}

TEST_F(AppManagerListTest, opensShowsAndCopiesAnApp)
{
    appear();
    view->openApp(0);
    view->revealApp(1);
    view->copyBundleID(0);
    EXPECT_EQ(test.workspace.clipboard, u"net.first.alpha");
    view->copyPath(0);
    EXPECT_EQ(test.workspace.clipboard, at(u"Alpha"_s));
    EXPECT_EQ(test.workspace.calls, QStringList({u"open "_s + at(u"Alpha"_s), u"reveal "_s + at(u"Beta"_s)}));
    for (const int none : {-1, 3}) {
        view->openApp(none);
        view->revealApp(none);
        view->copyPath(none);
        view->select(none);
        view->toggleTick(none);
    }
    EXPECT_EQ(test.workspace.calls.size(), 2);
}
