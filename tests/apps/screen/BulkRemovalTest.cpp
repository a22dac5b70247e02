#include "apps/screen/AppManagerHome.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {

/// The removal of several applications or ghosts at once.
struct BulkRemovalTest : public AppManagerHome
{
    void SetUp() override
    {
        AppManagerHome::SetUp();
        appear();
    }

    ResultBanner *banner() const { return view->banner(); }

    /// Runs `block` within the move of what lies at that path.
    void during(const QString &path, const std::function<void()> &block)
    {
        test.recycler.answers = [path, block, moves = test.recycler.answers](
                                    const QStringList &paths, const Recycler::Completion &done) {
            if (paths.constFirst() == path)
                block();
            moves(paths, done);
        };
    }
};

} // namespace

TEST_F(BulkRemovalTest, tellsWhatIsTicked)
{
    EXPECT_FALSE(view->hasSelection());
    EXPECT_FALSE(view->canRemoveSelected());
    view->askToRemoveSelected();
    EXPECT_FALSE(view->bulkQuestion()->isUp());
    view->toggleTick(0);
    view->toggleTick(1);
    EXPECT_EQ(view->selectionText(), u"2 apps selected");
    EXPECT_EQ(view->selectionAction(), u"Uninstall 2 apps (163 KB)");
    EXPECT_EQ(view->pane(), u"bulk");
    view->clearSelection();
    EXPECT_FALSE(view->hasSelection());
    EXPECT_EQ(view->pane(), u"empty");
}

TEST_F(BulkRemovalTest, asksFirst)
{
    view->toggleTick(0);
    view->toggleTick(1);
    view->askToRemoveSelected();
    EXPECT_EQ(view->bulkTitle(), u"Uninstall 2 Apps?");
    EXPECT_EQ(view->bulkQuestion()->text(),
              u"This will move 2 apps and their associated files to Trash, freeing approximately 163 KB.");
    view->bulkQuestion()->cancel();
    test.settle();
    EXPECT_TRUE(test.recycler.recycled.isEmpty());
}

TEST_F(BulkRemovalTest, beginsInALaterTurnOfTheMainLoop)
{
    view->toggleTick(1);
    view->askToRemoveSelected();
    view->bulkQuestion()->confirm();
    EXPECT_TRUE(test.recycler.recycled.isEmpty());
    test.mainQueue.step();
    EXPECT_EQ(test.recycler.recycled, QStringList{at(u"Beta"_s)});
}

TEST_F(BulkRemovalTest, takesAppsOutWithoutAScan)
{
    view->select(0);
    const QSignalSpy scans(service.get(), &AppService::isLoadingChanged);
    removeSelected({u"Alpha"_s, u"Beta"_s});
    EXPECT_EQ(installed(), QStringList{u"Gamma"_s});
    EXPECT_EQ(scans.count(), 0);
    EXPECT_EQ(view->appDetail()->app(), std::nullopt);
    EXPECT_EQ(banner()->title(), u"2 apps cleaned");
    EXPECT_EQ(banner()->detail(), u"4 items moved to Trash · 163 KB freed");
    test.mainQueue.advance(3.1);
    EXPECT_FALSE(banner()->isUp());
    EXPECT_EQ(home.madeHistory->entries().size(), 2U);
}

TEST_F(BulkRemovalTest, asksAnAdministratorOffTheMainThreadWhileItWaits)
{
    bool hasPainted = false;
    test.recycler.administrator = [&, moves = test.recycler.administrator](const QString &path) {
        hasPainted = !view->canChoose();
        return moves(path);
    };
    removeSelected({u"Beta"_s, u"Gamma"_s});
    EXPECT_TRUE(hasPainted);
    EXPECT_EQ(test.recycler.moved, QStringList{at(u"Gamma"_s)});
    EXPECT_EQ(installed(), QStringList{u"Alpha"_s});
    EXPECT_EQ(banner()->title(), u"2 apps cleaned");
}

TEST_F(BulkRemovalTest, tellsOfAppsThatStayed)
{
    home.administratorFails = UninstallHome::cancel();
    removeSelected({u"Beta"_s, u"Gamma"_s});
    EXPECT_EQ(installed(), QStringList({u"Alpha"_s, u"Gamma"_s}));
    EXPECT_EQ(banner()->title(), u"Failed: 1 of 2 apps");
    EXPECT_EQ(banner()->detail(), u"Some apps could not be uninstalled.");
    EXPECT_FALSE(banner()->hasRetry());
    test.mainQueue.advance(4.9);
    EXPECT_TRUE(banner()->isUp());
    test.mainQueue.advance(0.2);
    EXPECT_FALSE(banner()->isUp());
}

TEST_F(BulkRemovalTest, restsTheCommandsMeanwhile)
{
    during(at(u"Alpha"_s), [this] {
        EXPECT_FALSE(view->canChoose());
        EXPECT_FALSE(view->canRescan());
        EXPECT_FALSE(view->canRemoveSelected());
        view->toggleTick(1);
        view->rescan();
        view->askToRemoveSelected();
        EXPECT_FALSE(view->bulkQuestion()->isUp());
    });
    removeSelected({u"Alpha"_s});
    EXPECT_EQ(test.recycler.recycled.size(), 3);
    EXPECT_EQ(installed(), QStringList({u"Beta"_s, u"Gamma"_s}));
    EXPECT_TRUE(view->canRescan());
}

TEST_F(BulkRemovalTest, takesAppsOutOfAListThatAScanFromWithinHasMade)
{
    during(at(u"Alpha"_s), [this] {
        service->scanInstalledApps();
        test.workQueue.run();
        while (test.mainQueue.step()) {}
    });
    removeSelected({u"Alpha"_s, u"Beta"_s});
    EXPECT_EQ(installed(), QStringList{u"Gamma"_s});
}

TEST_F(BulkRemovalTest, outlivesItsScreen)
{
    during(at(u"Alpha"_s), [this] { close(); });
    view->toggleTick(0);
    view->toggleTick(1);
    view->askToRemoveSelected();
    view->bulkQuestion()->confirm();
    test.mainQueue.run();
    EXPECT_EQ(view, nullptr);
    EXPECT_EQ(service->apps().size(), 1U);
    EXPECT_FALSE(service->isRemoving());
}

TEST_F(BulkRemovalTest, itsQuestionGoesWithTheListThatItAsksAbout)
{
    view->toggleTick(0);
    view->askToRemoveSelected();
    service->scanInstalledApps();
    EXPECT_FALSE(view->bulkQuestion()->isUp());
    EXPECT_FALSE(view->canRemoveSelected());
    test.settle();
    view->bulkQuestion()->confirm();
    test.settle();
    EXPECT_TRUE(test.recycler.recycled.isEmpty());
}

TEST_F(BulkRemovalTest, itsQuestionGoesWithItsTab)
{
    view->toggleTick(0);
    view->askToRemoveSelected();
    ASSERT_TRUE(view->bulkQuestion()->isUp());
    view->chooseTab(1);
    EXPECT_FALSE(view->bulkQuestion()->isUp());
    test.settle();
    view->askToRemoveSelected();
    ASSERT_TRUE(view->ghostQuestion()->isUp());
    view->chooseTab(0);
    EXPECT_FALSE(view->ghostQuestion()->isUp());
    view->select(0);
    view->askToUninstall();
    ASSERT_TRUE(view->sheet()->isUp());
    view->chooseTab(1);
    EXPECT_FALSE(view->sheet()->isUp());
}

TEST_F(BulkRemovalTest, takesAppsOutOfAListThatAScanFromBeforeHasYetToDeliver)
{
    view->toggleTick(1);
    view->askToRemoveSelected();
    view->bulkQuestion()->confirm();
    view->rescan(); // in the turn before the removal's
    test.workQueue.run();
    EXPECT_TRUE(isThere(at(u"Beta"_s)));
    test.settle();
    EXPECT_EQ(test.recycler.recycled, QStringList{at(u"Beta"_s)});
    EXPECT_FALSE(view->isScanning());
    EXPECT_EQ(installed(), QStringList({u"Alpha"_s, u"Gamma"_s}));
}

TEST_F(BulkRemovalTest, takesGhostsOutOfAListThatAScanFromBeforeHasYetToDeliver)
{
    appearWithGhosts();
    view->toggleTick(0);
    view->askToRemoveSelected();
    view->ghostQuestion()->confirm();
    view->rescan();
    test.workQueue.run();
    test.settle();
    EXPECT_EQ(test.recycler.recycled, QStringList{home.inLibrary(u"Caches/org.departed.thing"_s)});
    EXPECT_EQ(ghosts(), QStringList{u"org.vanished.tool"_s});
}

TEST_F(BulkRemovalTest, tellsWhichGhostsAreTicked)
{
    appearWithGhosts();
    EXPECT_EQ(view->selectionText(), u"2 selected (43 KB)");
    EXPECT_EQ(view->selectionAction(), u"Remove 2 (43 KB)");
    view->selectAllGhosts(false);
    EXPECT_FALSE(view->hasSelection());
    view->toggleTick(1);
    EXPECT_EQ(view->selectionAction(), u"Remove 1 (8.0 KB)");
    view->selectAllGhosts(true);
    EXPECT_EQ(view->selectionText(), u"2 selected (43 KB)");
}

TEST_F(BulkRemovalTest, asksBeforeGhostsGo)
{
    appearWithGhosts();
    view->askToRemoveSelected();
    EXPECT_EQ(view->ghostTitle(), u"Move 2 ghost groups to Trash?");
    EXPECT_EQ(view->ghostQuestion()->text(), u"This will free roughly 43 KB. Items go to Trash with Put "
                                             u"Back, so anything you remove by mistake can "
                                             u"be restored.");
    view->ghostQuestion()->cancel();
    view->toggleTick(0);
    view->askToRemoveSelected();
    EXPECT_EQ(view->ghostTitle(), u"Move 1 ghost group to Trash?");
}

TEST_F(BulkRemovalTest, removesTickedGhosts)
{
    appearWithGhosts();
    view->select(1);
    home.refused << home.inLibrary(u"WebKit/org.vanished.tool"_s);
    removeSelected({u"org.departed.thing"_s}); // which unticks it
    EXPECT_EQ(test.recycler.recycled, QStringList({home.inLibrary(u"Caches/org.vanished.tool"_s),
                                                   home.inLibrary(u"WebKit/org.vanished.tool"_s)}));
    EXPECT_EQ(ghosts(), QStringList{u"org.departed.thing"_s});
    EXPECT_EQ(view->ghostDetail()->ghost(), std::nullopt);
    EXPECT_FALSE(banner()->isUp());
    EXPECT_EQ(home.madeHistory, nullptr);
    EXPECT_TRUE(test.systemLog.lines.isEmpty());
}

TEST_F(BulkRemovalTest, removesNoGhostThatAScanFromWithinHasFound)
{
    appearWithGhosts();
    during(home.inLibrary(u"Caches/org.vanished.tool"_s), [this] {
        home.file(u"Caches/org.another.party/data"_s);
        service->scanGhosts();
        test.workQueue.run();
        while (test.mainQueue.step()) {}
    });
    removeSelected({});
    EXPECT_EQ(ghosts(), QStringList{u"org.another.party"_s});
    EXPECT_TRUE(isThere(home.inLibrary(u"Caches/org.another.party"_s)));
}
