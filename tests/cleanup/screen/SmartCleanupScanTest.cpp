#include "common/NotificationNames.h"
#include "SmartCleanupHome.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {
using SmartCleanupScanTest = SmartCleanupHome;
}

TEST_F(SmartCleanupScanTest, isHeadedAsTold)
{
    EXPECT_EQ(view->title(), u"Smart Cleanup");
    EXPECT_EQ(view->texts().subtitle,
              u"Finds and removes temporary files, caches, and build artifacts that are safe to delete.");
}

TEST_F(SmartCleanupScanTest, beginsOnceTheScreenHasBeenSeen)
{
    EXPECT_FALSE(view->isScanning());
    EXPECT_TRUE(view->isSearching()) << "the first picture is that of the scan";
    EXPECT_EQ(view->emptyText(), QString());
    view->appear();
    EXPECT_TRUE(view->isScanning());
    EXPECT_TRUE(view->isSearching());
    test.settle();
    EXPECT_FALSE(view->isSearching());
    EXPECT_TRUE(view->hasList());
    EXPECT_EQ(titles(), u"Log Files|Old Downloads|Trash|Empty Folders");
}

TEST_F(SmartCleanupScanTest, freshResultIsKeptWithItsChoices)
{
    appear();
    view->toggleTick(rowOf(u"Log Files"_s));
    test.settle();
    make();
    EXPECT_TRUE(view->hasList());
    EXPECT_FALSE(view->isSearching());
    appear();
    EXPECT_TRUE(flag(u"Log Files"_s, "isTicked"));
    EXPECT_EQ(view->selectedFigure(), u"3.0 B");
    EXPECT_EQ(test.workQueue.waiting(), 0U);
}

TEST_F(SmartCleanupScanTest, staleResultIsReplaced)
{
    appear();
    test.clock.advance(5 * 60);
    services.folder(u"Desktop/Void"_s);
    make();
    appear();
    EXPECT_EQ(text(u"Empty Folders"_s, "trailing"), u"3.0 B");
}

TEST_F(SmartCleanupScanTest, appearingDuringAScanStartsNoOther)
{
    view->appear();
    make();
    EXPECT_TRUE(view->isSearching());
    view->appear();
    EXPECT_EQ(test.workQueue.waiting(), 1U);
}

TEST_F(SmartCleanupScanTest, oldListStaysDuringAnother)
{
    appear();
    view->rescan();
    EXPECT_TRUE(view->isScanning());
    EXPECT_FALSE(view->isSearching());
    EXPECT_EQ(view->rows()->rowCount(), 4);
    services.file(u".npm/_cacache/pack"_s);
    test.settle();
    EXPECT_EQ(view->rows()->rowCount(), 5);
}

TEST_F(SmartCleanupScanTest, notificationAndButtonStartOneScanBetweenThem)
{
    appear();
    EXPECT_TRUE(view->canScan());
    test.notifications.post(notifications::rescan);
    EXPECT_TRUE(view->isScanning());
    EXPECT_FALSE(view->canScan());
    view->rescan();
    test.notifications.post(notifications::rescan);
    EXPECT_EQ(test.workQueue.waiting(), 1U);
}

TEST_F(SmartCleanupScanTest, stopIsOfferedWhileItCanStopAndThenRests)
{
    EXPECT_FALSE(view->canStop());
    view->appear();
    EXPECT_TRUE(view->canStop());
    EXPECT_EQ(view->stopText(), u"Cancel");
    QSignalSpy told(view.get(), &SmartCleanupView::stateChanged);
    view->stop();
    EXPECT_GE(told.size(), 1);
    EXPECT_TRUE(view->isScanning()) << "until its result is there";
    EXPECT_FALSE(view->canStop());
    EXPECT_EQ(view->stopText(), u"Stopping…");
    EXPECT_TRUE(view->stopLabels().contains(view->stopText()));
    test.settle();
    EXPECT_FALSE(view->isScanning());
    EXPECT_EQ(view->stopText(), u"Cancel");
    EXPECT_FALSE(view->pill()->isShown()) << "no scan is done";
}

TEST_F(SmartCleanupScanTest, stoppedScanLeavesTheListOfBefore)
{
    appear();
    services.file(u".npm/_cacache/pack"_s);
    view->rescan();
    view->stop();
    test.settle();
    EXPECT_EQ(titles(), u"Log Files|Old Downloads|Trash|Empty Folders");
    EXPECT_TRUE(view->pill()->isShown());
}

// It forgets the files and the marks: what is ticked would stand for all of its category, be it locked.
TEST_F(SmartCleanupScanTest, forgetsTheTicksAtItsStart)
{
    appear();
    unlock(u"Trash"_s);
    openPreview(u"Trash"_s);
    view->toggleFile(rowOf(u"three"_s));
    ASSERT_EQ(view->selectedFigure(), u"3.0 B");
    view->rescan();
    EXPECT_FALSE(flag(u"Trash"_s, "isTicked"));
    EXPECT_EQ(view->selectedFigure(), u"0 B");
    EXPECT_FALSE(view->hasSelected());
    view->stop();
    test.settle();
    EXPECT_FALSE(view->hasSelected()) << "the list of before stays, and nothing is to go";
    EXPECT_TRUE(flag(u"Trash"_s, "isLocked"));
    view->askToClean();
    EXPECT_FALSE(view->confirmation()->isUp());
}

TEST_F(SmartCleanupScanTest, tellsHowOldTheResultIs)
{
    EXPECT_FALSE(view->pill()->isShown());
    appear();
    EXPECT_TRUE(view->pill()->isShown());
    EXPECT_EQ(view->pill()->text(), u"Cached · just now");
    test.clock.advance(150);
    test.mainQueue.advance(30);
    EXPECT_EQ(view->pill()->text(), u"Cached · 2 min ago");
    view->rescan();
    EXPECT_FALSE(view->pill()->isShown());
}

TEST_F(SmartCleanupScanTest, figuresCountAndAddUp)
{
    EXPECT_EQ(view->categoriesFigure(), u"0");
    EXPECT_EQ(view->totalFigure(), u"0 B");
    appear();
    EXPECT_EQ(view->categoriesFigure(), u"4");
    EXPECT_EQ(view->totalFigure(), u"300 KB");
    EXPECT_EQ(view->selectedFigure(), u"0 B");
}

TEST_F(SmartCleanupScanTest, emptyHomeIsClean)
{
    for (const QString &name : {u"Library"_s, u"Downloads"_s, u".Trash"_s, u"Documents"_s})
        files::removeTree(at(name));
    appear();
    EXPECT_FALSE(view->hasList());
    EXPECT_EQ(view->emptyText(), u"Your system is clean!");
    EXPECT_EQ(view->emptyDetail(), u"No significant cache or temporary files found.");
    view->rescan();
    EXPECT_TRUE(view->isSearching());
    EXPECT_EQ(view->emptyText(), QString());
    EXPECT_EQ(view->emptyDetail(), QString());
}

TEST_F(SmartCleanupScanTest, emptiedLinuxHomeIsClean)
{
    CleanupServices linux;
    linux.test.usesLinuxLocations = true;
    for (const QString &name : {u".cache"_s, u".local/share/Trash/files"_s, u".local/share/Trash/info"_s,
                                u"Downloads"_s, u"Desktop"_s, u"Documents"_s})
        linux.folder(name);
    const auto screen = std::make_shared<SmartCleanupView>(linux.test.platform, *linux.cleanup,
                                                           linux.fileSystem, linux.test.access);
    screen->appear();
    linux.test.settle();
    EXPECT_EQ(screen->emptyText(), u"Your system is clean!");
    linux.file(u".local/share/Trash/files/old"_s);
    screen->rescan();
    linux.test.settle();
    EXPECT_EQ(columnTexts(screen->rows(), "title"), QStringList(u"Trash"_s));
}

TEST_F(SmartCleanupScanTest, deniedAccessShowsTheBanner)
{
    EXPECT_FALSE(view->banner()->isShown());
    appear();
    EXPECT_TRUE(view->banner()->isShown());
}

TEST_F(SmartCleanupScanTest, fullAccessShowsNoBanner)
{
    services.folder(u"Library/Safari"_s);
    appear();
    EXPECT_FALSE(view->banner()->isShown());
}
