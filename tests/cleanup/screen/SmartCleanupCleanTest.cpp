#include "common/NotificationNames.h"
#include "SmartCleanupHome.h"

using namespace Qt::StringLiterals;

namespace {

struct SmartCleanupCleanTest : public SmartCleanupHome
{
    void SetUp() override
    {
        SmartCleanupHome::SetUp();
        appear();
    }

    void tick(const QString &name) const
    {
        unlock(name);
        view->toggleTick(rowOf(name));
        test.settle();
    }

    /// Ticks a category without its files, as a cleaning finds it whose preview is not there yet.
    void tickWhole(const QString &name) const
    {
        unlock(name);
        view->toggleTick(rowOf(name));
        test.workQueue.drop();
    }

    void confirm() const
    {
        view->askToClean();
        view->confirmation()->confirm();
    }
};

} // namespace

TEST_F(SmartCleanupCleanTest, nothingIsOfferedWhileNothingIsSelected)
{
    EXPECT_FALSE(view->hasSelected());
    EXPECT_FALSE(view->canClean());
    EXPECT_EQ(view->cleanText(), u"Clean");
    view->askToClean();
    EXPECT_FALSE(view->confirmation()->isUp());
}

TEST_F(SmartCleanupCleanTest, footCountsCategoriesAndBytes)
{
    tick(u"Log Files"_s);
    EXPECT_EQ(view->footText(), u"1 categories selected · 3.0 B to clean");
    EXPECT_EQ(view->cleanText(), u"Clean 3.0 B");
    tick(u"Trash"_s);
    EXPECT_EQ(view->footText(), u"2 categories selected · 6.0 B to clean");
    EXPECT_EQ(view->selectedFigure(), u"6.0 B");
}

TEST_F(SmartCleanupCleanTest, wholeEmptyFoldersCountAByteEach)
{
    tickWhole(u"Empty Folders"_s);
    EXPECT_EQ(view->cleanText(), u"Clean 2.0 B");
    EXPECT_EQ(view->footText(), u"1 categories selected · 2.0 B to clean");
}

TEST_F(SmartCleanupCleanTest, itemsAreCountedWhereTheyTakeNothing)
{
    tick(u"Empty Folders"_s);
    EXPECT_EQ(view->cleanText(), u"Clean 2 items");
    openPreview(u"Empty Folders"_s);
    view->toggleFile(rowOf(u"Hollow"_s));
    EXPECT_EQ(view->cleanText(), u"Clean 1 item");
    EXPECT_EQ(view->confirmText(), u"Clean 0 B");
}

TEST_F(SmartCleanupCleanTest, questionNamesWhatGoes)
{
    tick(u"Log Files"_s);
    tick(u"Old Downloads"_s);
    view->askToClean();
    EXPECT_TRUE(view->confirmation()->isUp());
    EXPECT_TRUE(cleanup.showConfirmClean());
    EXPECT_EQ(view->confirmation()->text(), u"Cleaning:\n  • Log Files\n  • Old Downloads\n\nTotal: 13 "
                                            u"B\n\nFiles will be moved to Trash. You can "
                                            "restore them if needed."_s);
    EXPECT_EQ(view->confirmText(), u"Clean 13 B");
    view->confirmation()->cancel();
    EXPECT_FALSE(cleanup.showConfirmClean());
    EXPECT_EQ(services.names(u"Library/Logs"_s).size(), 2);
}

TEST_F(SmartCleanupCleanTest, questionWarnsOfTheTrash)
{
    tick(u"Trash"_s);
    view->askToClean();
    EXPECT_EQ(view->confirmation()->text(),
              u"Cleaning:\n  • Trash\n\nTotal: 3.0 B\n\n⚠️ Trash items will be "
              u"permanently deleted and cannot be "
              "recovered."_s);
}

TEST_F(SmartCleanupCleanTest, questionFollowsAPreviewThatArrives)
{
    view->toggleTick(rowOf(u"Log Files"_s));
    view->askToClean();
    EXPECT_TRUE(view->confirmation()->text().contains(u"Total: 100 KB"));
    test.settle();
    EXPECT_TRUE(view->confirmation()->text().contains(u"Total: 3.0 B"));
    EXPECT_EQ(view->confirmText(), u"Clean 3.0 B");
}

TEST_F(SmartCleanupCleanTest, scanTakesTheQuestionDown)
{
    tick(u"Log Files"_s);
    view->askToClean();
    test.notifications.post(notifications::rescan);
    EXPECT_FALSE(view->confirmation()->isUp());
    EXPECT_FALSE(cleanup.showConfirmClean());
    EXPECT_FALSE(view->canClean()) << "the files that were picked are forgotten";
    view->askToClean();
    EXPECT_FALSE(view->confirmation()->isUp());
}

TEST_F(SmartCleanupCleanTest, questionGoesWithItsScreen)
{
    tick(u"Log Files"_s);
    view->askToClean();
    make();
    EXPECT_FALSE(cleanup.showConfirmClean());
    EXPECT_FALSE(view->confirmation()->isUp());
}

TEST_F(SmartCleanupCleanTest, beginsOutsideTheClickAndScansAfterwards)
{
    openPreview(u"Log Files"_s);
    view->toggleFile(rowOf(u"one"_s));
    confirm();
    EXPECT_FALSE(view->isCleaning());
    test.mainQueue.run();
    EXPECT_TRUE(view->isCleaning());
    EXPECT_EQ(view->cleanText(), u"Cleaning…");
    test.workQueue.run();
    test.mainQueue.run();
    EXPECT_FALSE(view->isCleaning());
    EXPECT_TRUE(view->isScanning());
    test.settle();
    EXPECT_EQ(services.names(u"Library/Logs"_s), QStringList(u"two"_s));
    EXPECT_EQ(services.names(u".Trash"_s), QStringList({u"one"_s, u"three"_s}));
    EXPECT_FALSE(view->hasSelected());
    EXPECT_EQ(services.madeHistory->entries().front().title, u"Cleaned 1 category"_s);
    EXPECT_EQ(services.madeHistory->entries().front().detail, u"Log Files"_s);
}

TEST_F(SmartCleanupCleanTest, commandsRestDuringARun)
{
    openPreview(u"Log Files"_s);
    openPreview(u"Trash"_s);
    view->toggleTick(0);
    confirm();
    test.mainQueue.run();
    ASSERT_TRUE(view->isCleaning());
    EXPECT_FALSE(view->canScan());
    EXPECT_FALSE(view->canChoose());
    EXPECT_FALSE(view->canSelect());
    EXPECT_FALSE(view->canClean());
    const QSet<QString> picked = cleanup.selectedFilePaths().value(u"logs"_s);
    const size_t waiting = test.workQueue.waiting();
    view->rescan();
    test.notifications.post(notifications::rescan);
    view->toggleTick(0);
    view->toggleFile(rowOf(u"one"_s));
    view->selectAllFiles(kindAt(u"guide"_s));
    view->selectNoFiles(kindAt(u"guide"_s));
    view->toggleReviewed(kindAt(u"note"_s, rowOf(u"Trash"_s)));
    view->selectNone();
    view->selectAll();
    view->askToClean();
    EXPECT_FALSE(view->confirmation()->isUp());
    EXPECT_TRUE(flag(u"Log Files"_s, "isTicked"));
    EXPECT_EQ(cleanup.selectedFilePaths().value(u"logs"_s), picked);
    EXPECT_TRUE(flag(u"Trash"_s, "isLocked"));
    EXPECT_EQ(test.workQueue.waiting(), waiting);
    EXPECT_FALSE(view->isScanning());
}

TEST_F(SmartCleanupCleanTest, previewsMayBeLookedAtDuringARun)
{
    tick(u"Log Files"_s);
    confirm();
    test.mainQueue.run();
    view->togglePreview(rowOf(u"Trash"_s));
    EXPECT_TRUE(flag(u"Trash"_s, "isExpanded"));
}

TEST_F(SmartCleanupCleanTest, appearingDuringARunStartsNoScan)
{
    tick(u"Log Files"_s);
    confirm();
    test.mainQueue.run();
    test.clock.advance(3600);
    make();
    const size_t waiting = test.workQueue.waiting();
    view->appear();
    EXPECT_FALSE(view->isScanning());
    EXPECT_EQ(test.workQueue.waiting(), waiting);
    EXPECT_EQ(view->cleanText(), u"Cleaning…");
}

TEST_F(SmartCleanupCleanTest, runGoesOnWithoutItsScreen)
{
    tick(u"Log Files"_s);
    confirm();
    test.mainQueue.run();
    close();
    test.settle();
    EXPECT_TRUE(services.names(u"Library/Logs"_s).isEmpty());
}

TEST_F(SmartCleanupCleanTest, downloadsWithoutAPreviewStay)
{
    tickWhole(u"Old Downloads"_s);
    confirm();
    test.mainQueue.run();
    test.settle();
    EXPECT_TRUE(services.names(u"Downloads"_s).contains(u"old"));
    EXPECT_EQ(services.madeHistory->entries().front().detail, u"Old Downloads"_s);
}

TEST_F(SmartCleanupCleanTest, runToTheEndLeavesACleanSystem)
{
    for (const QString &name : {u"Log Files"_s, u"Old Downloads"_s, u"Empty Folders"_s})
        tick(name);
    confirm();
    test.settle();
    EXPECT_EQ(titles(), u"Trash");
    tick(u"Trash"_s);
    confirm();
    test.settle();
    EXPECT_EQ(services.names(u".Trash"_s), QStringList({u"Bare"_s, u"Hollow"_s}))
        << "a preview lists files alone";
    tick(u"Trash"_s); // without any file it goes as a whole
    confirm();
    test.settle();
    EXPECT_EQ(view->emptyText(), u"Your system is clean!");
    EXPECT_TRUE(services.names(u".Trash"_s).isEmpty());
}
