#include "apps/screen/AppManagerHome.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {

/// The removal of one application as the App Manager's screen asks for, starts and tells it.
struct AppUninstallTest : public AppManagerHome
{
    void SetUp() override
    {
        AppManagerHome::SetUp();
        appear();
    }

    ResultBanner *banner() const { return view->banner(); }

    /// Gamma, whose bundle belongs to another user, gets as many files that can go.
    void makeFilesOfGamma(int count)
    {
        const QStringList places = {u"Caches/net.third.gamma"_s, u"WebKit/net.third.gamma"_s};
        for (const QString &place : places.first(count))
            home.file(place + u"/data"_s);
        view->rescan();
        test.settle();
    }
};

} // namespace

TEST_F(AppUninstallTest, asksFirst)
{
    EXPECT_FALSE(view->canUninstall());
    view->askToUninstall();
    EXPECT_FALSE(view->sheet()->isUp());
    view->select(0);
    EXPECT_TRUE(view->canUninstall());
    view->askToUninstall();
    EXPECT_TRUE(view->sheet()->isUp());
    EXPECT_EQ(view->sheet()->title(), u"Uninstall Alpha?");
    EXPECT_EQ(view->texts().sheetMessage, u"The app and selected associated files will be moved to Trash.");
    EXPECT_EQ(view->sheet()->totalText(), u"113 KB");
    EXPECT_EQ(view->sheet()->confirmText(), u"Uninstall");
    EXPECT_EQ(columnTexts(view->sheet()->files(), "path"),
              QStringList(
                  {u"~/Library/Caches/net.first.alpha"_s, u"~/Library/Preferences/net.first.alpha.plist"_s}));
    EXPECT_EQ(columnTexts(view->sheet()->files(), "symbol"),
              QStringList({u"archivebox.fill"_s, u"gearshape.fill"_s}));
    EXPECT_EQ(columnTexts(view->sheet()->files(), "sizeText"), QStringList({u"10 KB"_s, u"2.9 KB"_s}));
    view->sheet()->cancel();
    EXPECT_FALSE(view->sheet()->isUp());
    view->sheet()->confirm();
    test.settle();
    EXPECT_TRUE(test.recycler.recycled.isEmpty());
}

TEST_F(AppUninstallTest, movesTheAppAndItsFiles)
{
    startUninstall(u"Alpha"_s);
    EXPECT_TRUE(view->sheet()->isBusy());
    EXPECT_EQ(view->sheet()->confirmText(), u"Removing...");
    EXPECT_EQ(test.workQueue.lastPriority(), WorkPriority::userInitiated);
    test.settle();
    EXPECT_FALSE(view->sheet()->isUp());
    EXPECT_FALSE(view->sheet()->isBusy());
    EXPECT_FALSE(isThere(at(u"Alpha"_s)));
    EXPECT_EQ(test.recycler.recycled.size(), 3);
    EXPECT_EQ(banner()->title(), u"Alpha cleaned");
    EXPECT_EQ(banner()->detail(), u"3 items moved to Trash · 113 KB freed");
    EXPECT_EQ(view->appDetail()->app(), std::nullopt);
    EXPECT_EQ(installed(), QStringList({u"Beta"_s, u"Gamma"_s})); // it has scanned again
    test.mainQueue.advance(3.1);
    EXPECT_FALSE(banner()->isUp());
}

TEST_F(AppUninstallTest, spareWhatIsNotTicked)
{
    view->select(0);
    view->askToUninstall();
    view->sheet()->toggle(1);
    EXPECT_EQ(view->sheet()->totalText(), u"110 KB");
    view->sheet()->selectNone();
    EXPECT_EQ(view->sheet()->totalText(), u"100 KB");
    view->sheet()->selectAll();
    view->sheet()->toggle(0);
    view->sheet()->toggle(-1);
    view->sheet()->toggle(2);
    EXPECT_TRUE(service->apps()[0].associatedFiles[0].selected) << "the ticks are the question's own";
    view->sheet()->confirm();
    view->sheet()->toggle(0); // too late
    test.settle();
    EXPECT_TRUE(isThere(home.inLibrary(u"Caches/net.first.alpha"_s)));
    EXPECT_FALSE(isThere(home.inLibrary(u"Preferences/net.first.alpha.plist"_s)));
}

TEST_F(AppUninstallTest, beginsWithAllTicksAgain)
{
    view->select(0);
    view->askToUninstall();
    view->sheet()->selectNone();
    view->sheet()->cancel();
    view->askToUninstall();
    EXPECT_EQ(view->sheet()->totalText(), u"113 KB");
}

TEST_F(AppUninstallTest, refusesARunningApp)
{
    test.applications.running = {at(u"Alpha"_s) + u"/Contents/MacOS/Alpha"_s};
    uninstall(u"Alpha"_s);
    EXPECT_FALSE(view->sheet()->isUp());
    EXPECT_TRUE(isThere(at(u"Alpha"_s)));
    EXPECT_TRUE(test.recycler.recycled.isEmpty());
    EXPECT_EQ(banner()->title(), u"Failed: Alpha");
    EXPECT_EQ(banner()->detail(), u"Alpha is currently running. Quit it first, then try again.");
    EXPECT_FALSE(banner()->hasRetry());
    EXPECT_EQ(banner()->result()->removedCount, 0);
    EXPECT_EQ(banner()->result()->freedSize, 0);
    EXPECT_NE(view->appDetail()->app(), std::nullopt);
    test.mainQueue.advance(4.9);
    EXPECT_TRUE(banner()->isUp());
    test.mainQueue.advance(0.2);
    EXPECT_FALSE(banner()->isUp());
}

TEST_F(AppUninstallTest, countsAProgramInsideTheBundleAsTheApp)
{
    test.applications.running = {at(u"Alpha"_s) + u"/Contents/Library/Helper.app"_s};
    uninstall(u"Alpha"_s);
    EXPECT_TRUE(isThere(at(u"Alpha"_s)));
}

TEST_F(AppUninstallTest, looksWhereAnAppReallyLies)
{
    // The system tells of running programs without a link on the way.
    test.temp.file(u"elsewhere/Linked.app/Contents/MacOS/Linked"_s);
    test.temp.link(u"Applications/Linked.app"_s, test.temp.at(u"elsewhere/Linked.app"_s));
    view->rescan();
    test.settle();
    test.applications.running = {test.temp.at(u"elsewhere/Linked.app/Contents/MacOS/Linked"_s)};
    uninstall(u"Linked"_s);
    EXPECT_TRUE(isThere(at(u"Linked"_s)));
    EXPECT_EQ(banner()->title(), u"Failed: Linked");
}

TEST_F(AppUninstallTest, asksAnAdministratorAtOnceWhereTheBundleHasToStay)
{
    uninstall(u"Gamma"_s);
    EXPECT_EQ(test.recycler.moved, QStringList{at(u"Gamma"_s)});
    EXPECT_FALSE(isThere(at(u"Gamma"_s)));
    EXPECT_EQ(banner()->title(), u"Gamma cleaned");
    EXPECT_EQ(banner()->detail(), u"1 items moved to Trash · 20 KB freed");
    EXPECT_EQ(view->appDetail()->app(), std::nullopt);
    EXPECT_EQ(installed(), QStringList({u"Alpha"_s, u"Beta"_s}));
    test.mainQueue.advance(3.1);
    EXPECT_FALSE(banner()->isUp());
}

TEST_F(AppUninstallTest, showsNothingAfterACancelWithNothingRemoved)
{
    home.administratorFails = UninstallHome::cancel();
    uninstall(u"Gamma"_s);
    EXPECT_FALSE(banner()->isUp());
    EXPECT_TRUE(view->canUninstall());
    EXPECT_TRUE(isThere(at(u"Gamma"_s)));
    EXPECT_NE(view->appDetail()->app(), std::nullopt);
}

TEST_F(AppUninstallTest, tellsWhatHasGoneBeforeACancel)
{
    home.administratorFails = UninstallHome::cancel();
    makeFilesOfGamma(2);
    uninstall(u"Gamma"_s);
    EXPECT_EQ(banner()->title(), u"Failed: Gamma");
    EXPECT_EQ(banner()->detail(),
              u"Admin auth cancelled. Removed 2 leftover files (13 KB); the app itself is still in "
              u"/Applications.");
    EXPECT_TRUE(banner()->hasRetry());
    EXPECT_EQ(banner()->result()->failedPath, at(u"Gamma"_s));
    EXPECT_EQ(banner()->result()->removedCount, 2);
    test.mainQueue.advance(1000);
    EXPECT_TRUE(banner()->isUp()) << "what may be tried again stays";
}

TEST_F(AppUninstallTest, tellsOfOneFileInTheSingular)
{
    home.administratorFails = UninstallHome::cancel();
    makeFilesOfGamma(1);
    uninstall(u"Gamma"_s);
    EXPECT_EQ(banner()->detail(),
              u"Admin auth cancelled. Removed 1 leftover file (8.0 KB); the app itself is still in "
              u"/Applications.");
}

TEST_F(AppUninstallTest, tellsWhyAnAdministratorFailed)
{
    home.administratorFails = Recycler::AdminFailure{true, 1, u"mv: no"_s};
    uninstall(u"Gamma"_s);
    EXPECT_EQ(banner()->detail(), u"Couldn't remove the app bundle: mv: no");
    EXPECT_TRUE(banner()->hasRetry());
    view->revealFailed();
    EXPECT_EQ(test.workspace.calls, QStringList{u"reveal "_s + at(u"Gamma"_s)});
}

TEST_F(AppUninstallTest, tellsOfASuccessThatLeftTheBundle)
{
    home.administratorOnlyClaims = true;
    makeFilesOfGamma(1);
    uninstall(u"Gamma"_s);
    EXPECT_EQ(
        banner()->detail(),
        u"Couldn't remove the app bundle: Admin trash reported success but the file is still in place.");
    EXPECT_EQ(banner()->result()->removedCount, 1);
    EXPECT_EQ(banner()->result()->freedSize, 8 * 1024);
}

TEST_F(AppUninstallTest, triesAgainFromTheBanner)
{
    makeFilesOfGamma(2);
    home.administratorFails = UninstallHome::cancel();
    uninstall(u"Gamma"_s);
    home.administratorFails.reset();
    view->retry();
    EXPECT_FALSE(banner()->isUp());
    EXPECT_FALSE(view->canUninstall()) << "nothing else is removed meanwhile";
    test.settle();
    EXPECT_EQ(banner()->title(), u"Gamma cleaned");
    EXPECT_EQ(banner()->detail(), u"1 items moved to Trash · 20 KB freed") << "counted anew";
    EXPECT_FALSE(isThere(at(u"Gamma"_s)));
    view->retry(); // nothing to try again
    EXPECT_FALSE(view->sheet()->isBusy());
}

TEST_F(AppUninstallTest, asksAnAdministratorAlsoWhereOnlyFilesHadToStay)
{
    home.refused << home.inLibrary(u"Caches/net.first.alpha"_s);
    uninstall(u"Alpha"_s);
    // The bundle has gone, so the administrator is not even asked, and it is counted once more.
    EXPECT_TRUE(test.recycler.moved.isEmpty());
    EXPECT_EQ(banner()->title(), u"Alpha cleaned");
    EXPECT_EQ(banner()->result()->removedCount, 2);
    EXPECT_EQ(banner()->result()->freedSize, 2 * 100 * 1024 + 3000);
}

TEST_F(AppUninstallTest, restsTheOtherCommandsMeanwhile)
{
    startUninstall(u"Alpha"_s);
    EXPECT_FALSE(view->canChoose());
    EXPECT_FALSE(view->canRescan());
    view->toggleTick(1);
    EXPECT_FALSE(view->lists()->selectedApps().count);
    view->sheet()->cancel();
    EXPECT_TRUE(view->sheet()->isUp());
    view->sheet()->confirm();
    test.settle();
    EXPECT_EQ(test.recycler.recycled.size(), 3);
    EXPECT_TRUE(view->canChoose());
}

TEST_F(AppUninstallTest, goesWithTheListThatItAsksAbout)
{
    view->select(0);
    view->askToUninstall();
    service->scanInstalledApps();
    test.settle();
    EXPECT_FALSE(view->sheet()->isUp());
    EXPECT_EQ(view->appDetail()->name(), u"Alpha") << "the pane keeps what it shows";
    uninstall(u"Beta"_s);
    EXPECT_FALSE(isThere(at(u"Beta"_s)));
}

TEST_F(AppUninstallTest, goesOnWhenTheScreenIsLeft)
{
    startUninstall(u"Gamma"_s);
    const std::weak_ptr<AppManagerView> left = view;
    close();
    EXPECT_FALSE(left.expired());
    make(); // and comes back
    EXPECT_FALSE(view->canChoose());
    view->select(row(u"Alpha"_s));
    view->askToUninstall();
    EXPECT_FALSE(view->sheet()->isUp());
    test.settle();
    EXPECT_FALSE(isThere(at(u"Gamma"_s)));
    EXPECT_EQ(installed(), QStringList({u"Alpha"_s, u"Beta"_s}));
    EXPECT_TRUE(view->canChoose());
    EXPECT_TRUE(left.expired());
}
