#include "apps/screen/AppFiles.h"
#include "apps/screen/AppManagerHome.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {

/// The pane of details beside the App Manager's lists.
struct AppPanesTest : public AppManagerHome
{
    void SetUp() override
    {
        AppManagerHome::SetUp();
        appear();
    }

    GhostDetail *ghost() const { return view->ghostDetail(); }
};

} // namespace

TEST_F(AppPanesTest, areEmptyAtFirst)
{
    EXPECT_EQ(view->pane(), u"empty");
    EXPECT_EQ(view->tabTexts().paneTitle, u"Select an app");
    EXPECT_EQ(view->tabTexts().paneText, u"Click on an app to see details and uninstall options");
    view->chooseTab(1);
    EXPECT_EQ(view->tabTexts().paneTitle, u"Select a ghost app");
    EXPECT_EQ(view->tabTexts().paneText, u"Click on a ghost app to see its leftover files");
    EXPECT_EQ(ghost()->removeText(), QString());
    EXPECT_EQ(view->appDetail()->uninstallText(), QString());
}

TEST_F(AppPanesTest, showAnApp)
{
    view->select(0);
    const AppDetail *app = view->appDetail();
    EXPECT_EQ(view->pane(), u"app");
    EXPECT_EQ(app->name(), u"Alpha");
    EXPECT_EQ(app->versionText(), u"1.0");
    EXPECT_EQ(app->bundleID(), u"net.first.alpha");
    EXPECT_EQ(app->path(), at(u"Alpha"_s));
    EXPECT_EQ(app->lastUsedText(), u"Last used: Today");
    EXPECT_EQ(app->totalText(), u"Total size: 113 KB (including associated files)");
    EXPECT_EQ(app->uninstallText(), u"Uninstall Alpha");
    view->revealSelected();
    EXPECT_EQ(test.workspace.calls, QStringList{u"reveal "_s + at(u"Alpha"_s)});
}

TEST_F(AppPanesTest, showWhatWasLastAskedFor)
{
    view->select(0);
    view->toggleTick(1);
    EXPECT_EQ(view->pane(), u"bulk");
    const QSignalSpy changes(view.get(), &AppManagerView::paneChanged);
    view->select(2);
    EXPECT_GE(changes.count(), 1);
    EXPECT_EQ(view->pane(), u"app");
    EXPECT_EQ(view->appDetail()->name(), u"Gamma");
    EXPECT_EQ(view->selectionText(), u"1 apps selected");
    view->toggleTick(0);
    EXPECT_EQ(view->pane(), u"bulk");
    view->clearSelection();
    EXPECT_EQ(view->pane(), u"app");
}

TEST_F(AppPanesTest, breakTheSizeDown)
{
    view->select(0);
    QAbstractItemModel *parts = view->appDetail()->breakdown();
    EXPECT_EQ(columnTexts(parts, "label"), QStringList({u"Application"_s, u"Caches"_s, u"Preferences"_s,
                                                        u"Support Files"_s, u"Containers"_s, u"Total"_s}));
    EXPECT_EQ(columnTexts(parts, "sizeText"),
              QStringList({u"100 KB"_s, u"10 KB"_s, u"2.9 KB"_s, u"0 B"_s, u"0 B"_s, u"113 KB"_s}));
    EXPECT_NEAR(rowValue(parts, 0, "share").toDouble(), 100 / 112.93, 0.001);
    EXPECT_EQ(columnTexts(parts, "isTotal").join(u' '), u"false false false false false true");
}

TEST_F(AppPanesTest, markTheRowOfWhatTheyShow)
{
    view->select(1);
    EXPECT_EQ(columnTexts(view->lists()->installed(), "isInPane").join(u' '), u"false true false");
    view->select(0);
    EXPECT_EQ(columnTexts(view->lists()->installed(), "isInPane").join(u' '), u"true false false");
    service->scanInstalledApps();
    test.settle(); // of another scan nothing is the same
    EXPECT_EQ(columnTexts(view->lists()->installed(), "isInPane").join(u' '), u"false false false");
    EXPECT_EQ(view->pane(), u"app");
}

TEST_F(AppPanesTest, showAGhost)
{
    appearWithGhosts();
    view->select(0);
    EXPECT_EQ(view->pane(), u"ghost");
    EXPECT_EQ(ghost()->name(), u"Tool");
    EXPECT_EQ(ghost()->bundleID(), u"org.vanished.tool");
    EXPECT_EQ(ghost()->filesFigure(), u"2");
    EXPECT_EQ(ghost()->categoriesFigure(), u"2");
    EXPECT_EQ(ghost()->totalFigure(), u"35 KB");
    EXPECT_EQ(columnTexts(ghost()->categories(), "label"), QStringList({u"Cache"_s, u"Other"_s}));
    EXPECT_EQ(columnTexts(ghost()->categories(), "symbol"),
              QStringList({u"archivebox.fill"_s, u"folder.fill"_s}));
    EXPECT_EQ(columnTexts(ghost()->categories(), "sizeText"), QStringList({u"30 KB"_s, u"5.0 KB"_s}));
    EXPECT_EQ(columnTexts(ghost()->files(), "path"), QStringList({u"~/Library/Caches/org.vanished.tool"_s,
                                                                  u"~/Library/WebKit/org.vanished.tool"_s}));
    EXPECT_EQ(columnTexts(ghost()->files(), "spokenText"),
              QStringList({u"Cache, 30 KB"_s, u"Other, 5.0 KB"_s}));
    EXPECT_EQ(ghost()->removeText(), u"Remove 2 files (35 KB)");
    view->revealFile(1);
    view->revealFile(2);
    EXPECT_EQ(test.workspace.calls,
              QStringList{u"reveal "_s + home.inLibrary(u"WebKit/org.vanished.tool"_s)});
}

TEST_F(AppPanesTest, tagAGhost)
{
    appearWithGhosts();
    view->select(0);
    EXPECT_EQ(ghost()->badgeText(), u"ORPHAN");
    EXPECT_EQ(ghost()->badgeNote(),
              u"No installed app matches this name or bundle ID — these files appear to be "
              u"genuine leftovers from a previous install.");
    EXPECT_EQ(ghostlist::badgeText(true), u"LOOKS INSTALLED");
    EXPECT_EQ(ghostlist::badgeNote(true),
              u"This name or bundle ID matches an app you actually have installed. Removing "
              u"these files will likely break that app — review carefully.");
}

TEST_F(AppPanesTest, tickTheFilesOfAGhost)
{
    appearWithGhosts();
    view->select(0);
    view->toggleFile(0);
    view->toggleFile(9);
    EXPECT_EQ(columnTexts(ghost()->files(), "isTicked").join(u' '), u"false true");
    EXPECT_EQ(ghost()->removeText(), u"Remove 1 files (5.0 KB)");
    EXPECT_EQ(view->selectionAction(), u"Remove 2 (13 KB)") << "the list knows of it";
    view->selectAllFiles(false);
    EXPECT_FALSE(view->canRemoveFiles());
    view->removeFiles();
    test.settle();
    EXPECT_TRUE(test.recycler.recycled.isEmpty());
    view->selectAllFiles(true);
    EXPECT_TRUE(view->canRemoveFiles());
}

TEST_F(AppPanesTest, removeTheTickedFilesOfAGhost)
{
    appearWithGhosts();
    view->select(0);
    view->toggleFile(1);
    view->removeFiles();
    EXPECT_FALSE(view->canRemoveFiles());
    test.settle();
    EXPECT_EQ(test.recycler.recycled, QStringList{home.inLibrary(u"Caches/org.vanished.tool"_s)});
    EXPECT_EQ(view->banner()->title(), u"Tool cleaned");
    EXPECT_EQ(view->banner()->detail(), u"1 items moved to Trash · 30 KB freed");
    EXPECT_EQ(ghost()->ghost(), std::nullopt);
    EXPECT_EQ(ghosts(),
              QStringList({u"org.departed.thing"_s, u"org.vanished.tool"_s})); // as another scan finds them
    EXPECT_EQ(home.madeHistory, nullptr);
    test.mainQueue.advance(3.1);
    EXPECT_FALSE(view->banner()->isUp());
}

TEST_F(AppPanesTest, tellTheSymbolOfEachCategory)
{
    EXPECT_EQ(appfiles::symbol(u"Cache"_s), u"archivebox.fill");
    EXPECT_EQ(appfiles::symbol(u"Preferences"_s), u"gearshape.fill");
    EXPECT_EQ(appfiles::symbol(u"Support"_s), u"doc.fill");
    EXPECT_EQ(appfiles::symbol(u"Container"_s), u"shippingbox.fill");
    EXPECT_EQ(appfiles::symbol(u"Other"_s), u"folder.fill");
    EXPECT_EQ(appfiles::symbol(u"anything"_s), u"folder.fill");
}

TEST_F(AppPanesTest, warnBeforeGhostsGoThatLookInstalled)
{
    GhostApp plain;
    plain.files = {{{}, u"/a"_s, u"Cache"_s, 2048, true}, {{}, u"/b"_s, u"Cache"_s, 4096, false}};
    GhostApp tagged = plain;
    tagged.looksInstalled = true;
    GhostApp unticked = tagged;
    unticked.selected = false;
    const ghostlist::Pending pending = ghostlist::pending({plain, tagged, unticked});
    EXPECT_EQ(pending.count, 2);
    EXPECT_EQ(pending.size, 4096);
    EXPECT_EQ(selectiontexts::question(pending), u"This will free roughly 4.0 KB. Items go to Trash with Put "
                                                 u"Back, so anything you remove by mistake can "
                                                 u"be restored.\n\n⚠️ 1 of these are tagged \"LOOKS "
                                                 u"INSTALLED\" and may belong to apps you still use. "
                                                 u"Cancel and review them first if you're unsure.");
}
