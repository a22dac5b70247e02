#include "common/NotificationNames.h"
#include "duplicates/screen/DuplicateFinderHome.h"
#include "duplicates/screen/DuplicateFinderView.h"
#include "filesystem/InjectedFaults.h"

#include <QSignalSpy>

#include <functional>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// The scan as the Duplicate Finder's screen starts, shows and stops it.
struct DuplicateFinderScanTest : public DuplicateFinderHome
{
    /// A scan that finds nothing.
    void scanNothing()
    {
        services.useScanPaths({"c"});
        scan();
    }

    /// A scan during which the user clicks on "Stop" as the disk is first asked for that.
    void scanStoppedAt(files::Operation stop)
    {
        const InjectedFaults click([this, stop](files::Operation operation, const QString &) {
            if (operation == stop)
                view->stop();
            return 0;
        });
        scan();
    }

    /// What the screen shows after each block of a scan, a text only where it is another than before.
    QStringList shownDuringAScan(const std::function<QString()> &shown)
    {
        QStringList texts;
        const auto take = [&] {
            if (texts.isEmpty() || texts.constLast() != shown())
                texts << shown();
        };
        view->scan();
        take();
        test.workQueue.run();
        while (test.mainQueue.step())
            take();
        return texts;
    }
};

} // namespace

TEST_F(DuplicateFinderScanTest, startsAndEndsByItself)
{
    const QSignalSpy states(view.get(), &DuplicateFinderView::stateChanged);
    view->scan();
    EXPECT_TRUE(view->isScanning());
    EXPECT_FALSE(view->canScan());
    EXPECT_TRUE(view->canStop());
    EXPECT_EQ(test.workQueue.waiting(), 1U);
    const qsizetype begun = states.count();
    EXPECT_GE(begun, 1);
    test.settle();
    EXPECT_FALSE(view->isScanning());
    EXPECT_TRUE(view->canScan());
    EXPECT_FALSE(view->canStop());
    EXPECT_GT(states.count(), begun);
    EXPECT_EQ(services.shown(), asScanned);
}

TEST_F(DuplicateFinderScanTest, isCalledARescanOnceThereAreGroups)
{
    EXPECT_EQ(view->scanText(), u"Start Scan"_s);
    scan();
    EXPECT_EQ(view->scanText(), u"Rescan"_s);
    view->scan(); // the old groups are gone
    EXPECT_EQ(view->scanText(), u"Start Scan"_s);
    EXPECT_FALSE(view->canScan());
    test.settle();
    EXPECT_EQ(view->scanText(), u"Rescan"_s);
}

TEST_F(DuplicateFinderScanTest, thatFindsNothingOffersTheStartAgain)
{
    scan();
    scanNothing();
    EXPECT_EQ(view->scanText(), u"Start Scan"_s);
    EXPECT_EQ(view->emptyText(), u"Configure scan directories above and click Start Scan"_s);
    EXPECT_EQ(view->endText(), QString());
    EXPECT_TRUE(view->canScan());
    EXPECT_FALSE(view->hasFigures());
    EXPECT_EQ(view->rows()->rowCount(), 0);
}

TEST_F(DuplicateFinderScanTest, isNotStartedASecondTimeWhileOneRuns)
{
    view->scan();
    view->scan();
    EXPECT_EQ(test.workQueue.waiting(), 1U);
    test.settle();
    view->scan();
    EXPECT_EQ(test.workQueue.waiting(), 1U);
}

TEST_F(DuplicateFinderScanTest, startsAtTheNotification)
{
    test.notifications.post(notifications::rescan);
    EXPECT_TRUE(view->isScanning());
    test.notifications.post(notifications::rescan);
    EXPECT_EQ(test.workQueue.waiting(), 1U);
    test.settle();
    EXPECT_EQ(services.shown(), asScanned);
}

TEST_F(DuplicateFinderScanTest, startsAtTheNotificationWithoutScanPathsToo)
{
    scan();
    services.useScanPaths({});
    EXPECT_FALSE(view->canScan());
    test.notifications.post(notifications::rescan);
    EXPECT_TRUE(view->isScanning());
    test.settle();
    EXPECT_TRUE(duplicates.groups().empty());
}

TEST_F(DuplicateFinderScanTest, doesNotStartAtANotificationOnceTheScreenIsGone)
{
    close();
    test.notifications.post(notifications::rescan);
    EXPECT_FALSE(duplicates.isScanning());
    EXPECT_EQ(test.workQueue.waiting(), 0U);
}

TEST_F(DuplicateFinderScanTest, doesNotStartWhileADeleteRunIsOnItsWay)
{
    scan();
    duringTheRun([this] {
        EXPECT_FALSE(view->canScan());
        view->scan();
        test.notifications.post(notifications::rescan);
        EXPECT_FALSE(view->isScanning());
    });
    deleteMarked();
    EXPECT_EQ(test.recycler.recycled.size(), 5);
    EXPECT_FALSE(view->isScanning());
    EXPECT_TRUE(view->canScan());
}

TEST_F(DuplicateFinderScanTest, isAskedOnceToStop)
{
    view->scan();
    EXPECT_EQ(view->stopText(), u"Stop"_s);
    const QSignalSpy states(view.get(), &DuplicateFinderView::stateChanged);
    view->stop();
    EXPECT_EQ(states.count(), 1);
    EXPECT_TRUE(duplicates.cancelRequested());
    EXPECT_EQ(view->stopText(), u"Stopping…"_s);
    EXPECT_FALSE(view->canStop());
    EXPECT_TRUE(view->isScanning()); // until the disk has answered
    test.settle();
    EXPECT_FALSE(view->isScanning());
    view->scan();
    EXPECT_EQ(view->stopText(), u"Stop"_s);
    EXPECT_TRUE(view->canStop());
}

TEST_F(DuplicateFinderScanTest, thatWasStoppedInTheWalkEndsWithoutAWord)
{
    scanStoppedAt(files::Operation::list);
    EXPECT_TRUE(duplicates.groups().empty());
    EXPECT_EQ(view->endText(), QString());
    EXPECT_EQ(view->scanText(), u"Start Scan"_s);
    EXPECT_EQ(view->percentText(), u"0%"_s);
}

TEST_F(DuplicateFinderScanTest, thatWasStoppedInTheComparisonSaysSo)
{
    scanStoppedAt(files::Operation::read);
    ASSERT_TRUE(duplicates.groups().empty());
    EXPECT_EQ(view->endText(), u"Cancelled"_s);
    EXPECT_EQ(view->emptyText(), u"Configure scan directories above and click Start Scan"_s);
    EXPECT_EQ(view->scanText(), u"Start Scan"_s);
    view->scan();
    EXPECT_EQ(view->endText(), QString());
    test.settle();
    EXPECT_EQ(view->endText(), QString());
    EXPECT_EQ(services.shown(), asScanned);
}

TEST_F(DuplicateFinderScanTest, showsItsFoldersAsTheyStand)
{
    test.temp.folder(u"home/a/deep"_s);
    const QStringList shown = shownDuringAScan([this] { return view->currentPathText(); });
    EXPECT_EQ(shown, QStringList({u""_s, test.home + u"/a"_s, test.home + u"/a/deep"_s, test.home + u"/b"_s,
                                  test.home + u"/c"_s, u"Comparing file hashes..."_s, u""_s}));
}

TEST_F(DuplicateFinderScanTest, showsAFolderWhoseNameIsNoTextWithReplacementCharacters)
{
    test.temp.folder(u"home/a/"_s + paths::fromBytes("d\xFF"));
    const QStringList shown = shownDuringAScan([this] { return view->currentPathText(); });
    EXPECT_TRUE(shown.contains(test.home + u"/a/d\uFFFD"_s)) << shown.join(u' ').toStdString();
}

TEST_F(DuplicateFinderScanTest, showsItsProgressInWholePercentCutOff)
{
    for (int size = 10; size < 13; ++size) { // with these there are seven sizes to compare
        make(u"a/%1"_s.arg(size), size, 100);
        make(u"b/%1"_s.arg(size), size, 100);
    }
    const QStringList shown = shownDuringAScan([this] { return view->percentText(); });
    EXPECT_EQ(shown.join(u' '), u"0% 40% 48% 57% 65% 74% 82% 91% 100%"_s); // 82.86 % is the sixth
    EXPECT_EQ(view->progress(), 1);
}

TEST_F(DuplicateFinderScanTest, shows40PercentAfterTheWalk)
{
    view->scan();
    test.workQueue.run();
    while (view->progress() == 0)
        ASSERT_TRUE(test.mainQueue.step());
    EXPECT_EQ(view->progress(), 0.4);
    EXPECT_EQ(view->percentText(), u"40%"_s);
}

TEST_F(DuplicateFinderScanTest, showsNoEmptyTextWhileItRuns)
{
    const QStringList shown = shownDuringAScan([this] { return view->emptyText() + view->endText(); });
    EXPECT_EQ(shown, QStringList{QString()});
}

TEST_F(DuplicateFinderScanTest, tellsOfItsProgressNoMoreOftenThanEveryTwentiethOfASecond)
{
    const QSignalSpy told(view.get(), &DuplicateFinderView::progressChanged);
    for (int folder = 0; folder < 1000; ++folder)
        emit duplicates.currentPathChanged();
    EXPECT_EQ(told.count(), 0);
    test.mainQueue.advance(0.04);
    EXPECT_EQ(told.count(), 0);
    test.mainQueue.advance(0.02);
    EXPECT_EQ(told.count(), 1);
    test.mainQueue.advance(10); // nothing new to tell
    EXPECT_EQ(told.count(), 1);
    for (int folder = 0; folder < 100; ++folder) { // a second's worth
        emit duplicates.currentPathChanged();
        emit duplicates.progressChanged();
        test.mainQueue.advance(0.01);
    }
    EXPECT_GE(told.count(), 1 + 16);
    EXPECT_LE(told.count(), 1 + 20);
}

TEST_F(DuplicateFinderScanTest, tellsOfItsBeginningAndItsEndAtOnce)
{
    for (int folder = 0; folder < 100; ++folder)
        test.temp.folder(u"home/a/%1"_s.arg(folder));
    const QSignalSpy told(view.get(), &DuplicateFinderView::progressChanged);
    view->scan();
    EXPECT_EQ(told.count(), 1);
    test.workQueue.run();
    qsizetype before = 0;
    while (view->isScanning()) {
        before = told.count();
        ASSERT_TRUE(test.mainQueue.step());
    }
    EXPECT_EQ(before, 1); // no time has passed
    EXPECT_EQ(told.count(), 2);
    EXPECT_EQ(view->percentText(), u"100%"_s);
}

TEST_F(DuplicateFinderScanTest, tellsNothingToAScreenThatIsGone)
{
    view->scan();
    test.workQueue.run();
    close();
    test.settle();
    test.mainQueue.advance(1);
    EXPECT_EQ(services.shown(), asScanned);
}

TEST_F(DuplicateFinderScanTest, isShownByAScreenThatIsMadeMeanwhile)
{
    view->scan();
    open();
    EXPECT_TRUE(view->isScanning());
    EXPECT_TRUE(view->canStop());
    EXPECT_FALSE(view->canScan());
    EXPECT_EQ(view->emptyText(), QString());
    test.settle();
    EXPECT_EQ(view->rows()->rowCount(), 13);
}

TEST_F(DuplicateFinderScanTest, takesTheListAwayAndItsCommandsWithIt)
{
    scan();
    QSignalSpy lists(view.get(), &DuplicateFinderView::rowsWillChange);
    view->scan();
    EXPECT_EQ(lists.count(), 1);
    EXPECT_EQ(view->rows()->rowCount(), 0);
    EXPECT_FALSE(view->hasFigures());
    EXPECT_FALSE(view->canChoose());
    EXPECT_FALSE(view->canDelete());
    view->selectAllDuplicates();
    view->selectNone();
    view->keepNewest();
    view->keepOldest();
    view->toggleKeep(1);
    view->keepOnly(1);
    view->keepNewestOf(0);
    view->askToDelete();
    EXPECT_FALSE(view->showDeleteConfirm());
    test.settle();
    EXPECT_EQ(services.shown(), asScanned);
    EXPECT_TRUE(duplicates.markedForDeletion().isEmpty());
}

TEST_F(DuplicateFinderScanTest, thatIsRepeatedLosesBulkChoicesAndKeepsSingleMarks)
{
    scan();
    view->keepNewest();
    view->keepOnly(songHead + 2);
    view->toggleKeep(reportHead + 2); // the newest one, which the command before had kept
    EXPECT_EQ(services.shown()[1], u"1000: a/report.pdf- b/report.pdf- c/report.pdf-"_s);
    scan();
    QStringList expected = asScanned;
    expected[1] = u"1000: a/report.pdf b/report.pdf- c/report.pdf"_s; // the mark decides for the whole group
    EXPECT_EQ(services.shown(), expected);
    EXPECT_EQ(view->toDeleteFigure(), u"4 files (4.6 KB)"_s);
}
