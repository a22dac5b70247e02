#include "shell/SidebarView.h"

#include "base/Paths.h"
#include "common/NotificationNames.h"
#include "filesystem/FileSystemService.h"
#include "support/Rows.h"
#include "support/TestPlatform.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace {

constexpr qint64 giga = qint64(1) << 30;

class SidebarViewTest : public ::testing::Test
{
protected:
    void fill(qint64 total, qint64 available)
    {
        test.systemInfo.volume = SystemInfo::Volume{total, available, QStringLiteral("Disk")};
    }
    void make() { view = std::make_unique<SidebarView>(test.platform, disk, content); }
    int queries() const { return test.systemInfo.volumeQueries; }

    TestPlatform test;
    FileSystemService fileSystem{test.platform, test.probes};
    DiskService disk{test.platform, test.probes, [this]() -> FileSystemService & { return fileSystem; },
                     [this]() -> FDAService & { return test.access; }};
    ContentView content{test.platform, {}};
    std::unique_ptr<SidebarView> view;
};

} // namespace

TEST_F(SidebarViewTest, listsTheScreensInTheirSections)
{
    make();
    QStringList sections;
    QStringList titles;
    QStringList symbols;
    for (const sidebar::Row &row : sidebar::rows) {
        sections << sidebar::title(row.section).toUpper();
        titles << QString::fromLatin1(row.title);
        symbols << QString::fromLatin1(row.symbol);
    }
    EXPECT_EQ(columnTexts(view->items(), "sectionTitle"), sections);
    EXPECT_EQ(columnTexts(view->items(), "itemTitle"), titles);
    EXPECT_EQ(columnTexts(view->items(), "symbol"), symbols);
}

TEST_F(SidebarViewTest, carriesItsBadgeOnTheDuplicatesRowAndNoOtherInEveryState)
{
    make();
    QStringList badges;
    for (const sidebar::Row &row : sidebar::rows)
        badges << (row.item == SidebarItem::duplicates ? QStringLiteral("1,247") : QString());
    EXPECT_EQ(columnTexts(view->items(), "badge"), badges);
    content.setSelectedItem(SidebarItem::duplicates);
    EXPECT_EQ(columnTexts(view->items(), "badge"), badges);
    view->refreshDiskUsage();
    EXPECT_EQ(columnTexts(view->items(), "badge"), badges);
}

TEST_F(SidebarViewTest, marksTheSelectedRow)
{
    make();
    const QAbstractItemModelTester tester(view->items(),
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    const QSignalSpy changes(view->items(), &QAbstractItemModel::dataChanged);
    EXPECT_TRUE(rowValue(view->items(), 0, "isSelected").toBool());
    content.setSelectedItem(SidebarItem::search);
    EXPECT_EQ(columnTexts(view->items(), "isSelected").indexOf(QStringLiteral("true")), 2);
    EXPECT_EQ(columnTexts(view->items(), "isSelected").count(QStringLiteral("true")), 1);
    EXPECT_EQ(changes.count(), 1);
}

TEST_F(SidebarViewTest, knowsTheSelectedRow)
{
    make();
    EXPECT_EQ(view->selectedRow(), 0);
    const QSignalSpy changes(view.get(), &SidebarView::selectedRowChanged);
    content.setSelectedItem(SidebarItem::appManager);
    EXPECT_EQ(view->selectedRow(), 8);
    EXPECT_EQ(changes.count(), 1);
}

TEST_F(SidebarViewTest, selectsTheScreenOfAClickedRow)
{
    make();
    view->select(3);
    EXPECT_EQ(content.selectedItem(), SidebarItem::diskAnalyzer);
    view->select(-1);
    view->select(static_cast<int>(sidebar::rows.size()));
    EXPECT_EQ(content.selectedItem(), SidebarItem::diskAnalyzer);
}

TEST_F(SidebarViewTest, hasThreeButtonsAtItsFoot)
{
    make();
    EXPECT_EQ(columnTexts(view->footer(), "symbol"),
              (QStringList{QStringLiteral("gearshape"), QStringLiteral("clock.arrow.circlepath"),
                           QStringLiteral("questionmark.circle")}));
    EXPECT_EQ(
        columnTexts(view->footer(), "tip"),
        (QStringList{QStringLiteral("Settings (Ctrl+,)"), QStringLiteral("Activity History (Ctrl+Shift+Y)"),
                     QStringLiteral("Keyboard Shortcuts (Ctrl+?)")}));
}

TEST_F(SidebarViewTest, showsKeySignsInTipsWhereTheyAreTheStyle)
{
    test.platform.keyStyle = KeyStyle::signs;
    make();
    EXPECT_EQ(columnTexts(view->footer(), "tip"),
              (QStringList{QStringLiteral("Settings (⌘,)"), QStringLiteral("Activity History (⇧⌘Y)"),
                           QStringLiteral("Keyboard Shortcuts (⌘?)")}));
}

TEST_F(SidebarViewTest, putsUpASheetByItsButtonOnceTheSheetIsBuilt)
{
    make();
    constexpr std::array sheets = {Sheet::settings, Sheet::history, Sheet::shortcuts};
    for (int i = -1; i <= 3; ++i)
        view->openSheet(i);
    const std::array shown = {content.showSettings(), content.showHistory(), content.showShortcuts()};
    for (size_t i = 0; i < sheets.size(); ++i) {
        EXPECT_EQ(shown[i], isBuilt(sheets[i])) << i;
        EXPECT_EQ(rowValue(view->footer(), static_cast<int>(i), "isAvailable").toBool(), isBuilt(sheets[i]))
            << i;
    }
    EXPECT_FALSE(content.showOnboarding());
}

TEST_F(SidebarViewTest, knowsTheUsageFromTheBeginning)
{
    fill(500 * giga, 120 * giga);
    make();
    EXPECT_EQ(queries(), 1);
    EXPECT_EQ(test.workQueue.waiting(), 0U);
    EXPECT_EQ(view->volumeName(), QStringLiteral("Disk"));
    EXPECT_EQ(view->usedText(), QStringLiteral("380 GB used"));
    EXPECT_EQ(view->freeText(), QStringLiteral("120 GB free"));
    EXPECT_DOUBLE_EQ(view->usedShare(), 0.76);
    EXPECT_FALSE(view->isRefreshingDisk());
    EXPECT_EQ(view->refreshTip(), QStringLiteral("Refresh disk usage"));
}

TEST_F(SidebarViewTest, isNearlyFullAboveEightyFivePercent)
{
    fill(1000, 150);
    make();
    EXPECT_FALSE(view->isNearlyFull());
    fill(1000, 149);
    make();
    EXPECT_TRUE(view->isNearlyFull());
}

TEST_F(SidebarViewTest, showsZerosWhenTheVolumeCannotBeAsked)
{
    test.systemInfo.volume.reset();
    make();
    EXPECT_EQ(view->volumeName(), QStringLiteral("Unknown"));
    EXPECT_EQ(view->usedText(), QStringLiteral("0 B used"));
    EXPECT_EQ(view->freeText(), QStringLiteral("0 B free"));
    EXPECT_EQ(view->usedShare(), 0);
    EXPECT_FALSE(view->isNearlyFull());
}

TEST_F(SidebarViewTest, survivesAVolumeThatTellsNonsense)
{
    fill(100, 200); // more available than there is
    make();
    EXPECT_EQ(view->usedText(), QStringLiteral("0 B used"));
    EXPECT_EQ(view->usedShare(), 0);
    fill(std::numeric_limits<qint64>::max(), 0);
    make();
    EXPECT_EQ(view->usedText(), QStringLiteral("1024 TB used"));
    EXPECT_EQ(view->usedShare(), 1);
}

TEST_F(SidebarViewTest, showsBytesOfTheVolumesNameThatAreNoText)
{
    test.systemInfo.volume->name = paths::fromBytes("Di\xffsk");
    make();
    EXPECT_EQ(view->volumeName(), QStringLiteral("Di\uFFFDsk"));
}

TEST_F(SidebarViewTest, asksForTheUsageOnAUtilityQueue)
{
    make();
    view->refreshDiskUsage();
    EXPECT_EQ(queries(), 1);
    EXPECT_EQ(test.workQueue.waiting(), 1U);
    EXPECT_EQ(test.workQueue.lastPriority(), WorkPriority::utility);
    test.workQueue.run();
    EXPECT_EQ(queries(), 2);
}

TEST_F(SidebarViewTest, spinsForAThirdOfASecondThoughTheAnswerCameAtOnce)
{
    fill(1000, 400);
    make();
    const QSignalSpy usages(view.get(), &SidebarView::diskUsageChanged);
    view->refreshDiskUsage();
    EXPECT_TRUE(view->isRefreshingDisk());
    fill(1000, 300);
    test.clock.advance(0.05);
    test.workQueue.run();
    test.mainQueue.advance(0.29);
    EXPECT_TRUE(view->isRefreshingDisk());
    EXPECT_EQ(view->diskUsage().available, 400);
    EXPECT_EQ(usages.count(), 0);
    test.mainQueue.advance(0.02);
    EXPECT_FALSE(view->isRefreshingDisk());
    EXPECT_EQ(view->diskUsage().available, 300);
    EXPECT_EQ(usages.count(), 1);
}

TEST_F(SidebarViewTest, showsALateAnswerWithoutFurtherDelay)
{
    make();
    view->refreshDiskUsage();
    fill(1000, 300);
    test.clock.advance(2);
    test.workQueue.run();
    test.mainQueue.run();
    EXPECT_FALSE(view->isRefreshingDisk());
    EXPECT_EQ(view->diskUsage().available, 300);
}

TEST_F(SidebarViewTest, spinsNoLongerWhenTheTimeIsSetMeanwhile)
{
    make();
    for (const int hours : {-1, 1}) {
        view->refreshDiskUsage();
        test.clock.set(test.clock.now() + std::chrono::hours(hours));
        test.workQueue.run();
        test.mainQueue.advance(0.34);
        EXPECT_TRUE(view->isRefreshingDisk());
        test.mainQueue.advance(0.02);
        EXPECT_FALSE(view->isRefreshingDisk());
    }
}

TEST_F(SidebarViewTest, tellsTheSpinAtItsBeginningAndItsEnd)
{
    make();
    std::vector<bool> states;
    QObject::connect(view.get(), &SidebarView::isRefreshingDiskChanged, view.get(),
                     [this, &states] { states.push_back(view->isRefreshingDisk()); });
    view->refreshDiskUsage();
    test.workQueue.run();
    test.mainQueue.advance(1);
    EXPECT_EQ(states, (std::vector<bool>{true, false}));
}

TEST_F(SidebarViewTest, refreshesOnARescan)
{
    make();
    test.notifications.post(notifications::rescan);
    EXPECT_TRUE(view->isRefreshingDisk());
    EXPECT_EQ(test.workQueue.waiting(), 1U);
}

TEST_F(SidebarViewTest, doesNotRefreshWhenItAppears)
{
    make();
    view->appear();
    EXPECT_TRUE(view->isTimerActive());
    EXPECT_FALSE(view->isRefreshingDisk());
    EXPECT_EQ(test.workQueue.waiting(), 0U);
}

TEST_F(SidebarViewTest, refreshesEveryThirtySeconds)
{
    make();
    view->appear();
    test.mainQueue.advance(29.9);
    EXPECT_EQ(test.workQueue.waiting(), 0U);
    test.mainQueue.advance(0.2);
    EXPECT_EQ(test.workQueue.waiting(), 1U);
    test.mainQueue.advance(60);
    EXPECT_EQ(test.workQueue.waiting(), 3U);
}

TEST_F(SidebarViewTest, refreshesAtOnceOnReturnAndLeavesTheTimerAlone)
{
    make();
    view->appear();
    test.mainQueue.advance(20);
    view->sceneActivated();
    EXPECT_EQ(test.workQueue.waiting(), 1U);
    EXPECT_EQ(test.mainQueue.waiting(), 1U);
    test.mainQueue.advance(10.1);
    EXPECT_EQ(test.workQueue.waiting(), 2U);
}

TEST_F(SidebarViewTest, hasOneTimerHoweverOftenItAppears)
{
    make();
    view->appear();
    test.mainQueue.advance(10);
    view->appear();
    test.mainQueue.advance(29);
    EXPECT_EQ(test.workQueue.waiting(), 0U);
    test.mainQueue.advance(2);
    EXPECT_EQ(test.workQueue.waiting(), 1U);
}

TEST_F(SidebarViewTest, stopsItsTimerWhenItDisappears)
{
    make();
    view->appear();
    view->disappear();
    EXPECT_FALSE(view->isTimerActive());
    test.mainQueue.advance(120);
    EXPECT_EQ(test.workQueue.waiting(), 0U);
}

TEST_F(SidebarViewTest, dropsAnAnswerThatComesAfterItsEnd)
{
    make();
    view->appear();
    view->refreshDiskUsage();
    view.reset();
    test.workQueue.run();
    test.mainQueue.advance(60);
    EXPECT_EQ(queries(), 2);
    EXPECT_EQ(test.workQueue.waiting(), 0U);
}
