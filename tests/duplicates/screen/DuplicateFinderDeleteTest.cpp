#include "base/Files.h"
#include "common/NotificationNames.h"
#include "duplicates/screen/DuplicateFinderHome.h"
#include "duplicates/screen/DuplicateFinderView.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// The delete run as the Duplicate Finder's screen asks for, starts and shows it. After the scan "b/photo.png",
/// "b/report.pdf", "c/report.pdf", "b/pack.txt" and "b/song.mp3" are set to go.
struct DuplicateFinderDeleteTest : public DuplicateFinderHome
{
    void SetUp() override
    {
        DuplicateFinderHome::SetUp();
        scan();
    }

    /// A Trash that refuses these files.
    void refuse(const QStringList &relative)
    {
        QStringList refused;
        for (const QString &file : relative)
            refused << path(file);
        services.useTrash(refused);
    }
};

} // namespace

TEST_F(DuplicateFinderDeleteTest, isAskedForFirst)
{
    const QSignalSpy changes(view->confirmation(), &Confirmation::changed);
    EXPECT_TRUE(view->canDelete());
    view->askToDelete();
    EXPECT_TRUE(view->showDeleteConfirm());
    EXPECT_EQ(view->confirmation()->text(),
              u"Move 5 files (5.6 KB) to Trash? This can be undone from the Trash."_s);
    view->confirmation()->cancel();
    EXPECT_FALSE(view->showDeleteConfirm());
    EXPECT_EQ(changes.count(), 2);
    test.settle();
    EXPECT_TRUE(test.recycler.recycled.isEmpty());
    EXPECT_EQ(services.shown(), asScanned);
}

TEST_F(DuplicateFinderDeleteTest, isNotOfferedWithNothingSetToGo)
{
    view->selectNone();
    EXPECT_FALSE(view->canDelete());
    view->askToDelete();
    EXPECT_FALSE(view->showDeleteConfirm());
    view->confirmation()->confirm();
    test.settle();
    EXPECT_EQ(view->deleteResult(), std::nullopt);
    EXPECT_EQ(services.madeHistory, nullptr); // nothing was recorded
}

TEST_F(DuplicateFinderDeleteTest, beginsInALaterTurnOfTheMainLoop)
{
    view->askToDelete();
    view->confirmation()->confirm();
    EXPECT_FALSE(view->showDeleteConfirm());
    EXPECT_FALSE(view->isDeleting());
    EXPECT_TRUE(test.recycler.recycled.isEmpty());
    EXPECT_TRUE(test.mainQueue.step());
    EXPECT_EQ(test.recycler.recycled,
              QStringList({path(u"b/photo.png"_s), path(u"b/report.pdf"_s), path(u"c/report.pdf"_s),
                           path(u"b/pack.txt"_s), path(u"b/song.mp3"_s)}));
    EXPECT_FALSE(view->isDeleting());
}

TEST_F(DuplicateFinderDeleteTest, givesTheBytesThatItFreed)
{
    EXPECT_EQ(view->deleteResult(), std::nullopt);
    deleteMarked();
    EXPECT_EQ(view->deleteResult(), 5700);
    EXPECT_EQ(services.records().at(0).title, u"Removed 5 duplicate files"_s);
}

TEST_F(DuplicateFinderDeleteTest, givesNothingAfterAPartialFailure)
{
    view->toggleKeep(reportHead + 2);
    view->toggleKeep(packHead + 2);
    view->toggleKeep(songHead + 2);
    refuse({u"c/report.pdf"_s});
    deleteMarked();
    EXPECT_EQ(view->deleteResult(), std::nullopt);
    EXPECT_EQ(test.recycler.recycled.size(), 2);
    EXPECT_EQ(services.shown(), QStringList({u"1000: a/report.pdf b/report.pdf c/report.pdf-"_s,
                                             asScanned[2].chopped(1), asScanned[3].chopped(1)}));
    EXPECT_TRUE(view->canDelete()); // the next run tries it again
    EXPECT_FALSE(view->isDeleting());
    EXPECT_EQ(services.records().at(0).title, u"Removed 1 duplicates · 1 failed"_s);
}

TEST_F(DuplicateFinderDeleteTest, forgetsTheBytesOfTheRunBeforeOnAFailure)
{
    view->selectNone();
    view->toggleKeep(photoHead + 2);
    deleteMarked();
    EXPECT_EQ(view->deleteResult(), 3000);
    view->selectAllDuplicates();
    refuse({u"b/song.mp3"_s});
    deleteMarked();
    EXPECT_EQ(view->deleteResult(), std::nullopt);
    refuse({});
    deleteMarked();
    EXPECT_EQ(view->deleteResult(), 200);
}

TEST_F(DuplicateFinderDeleteTest, namesTheFilesOnViewAndTakesThoseThatTheFilterHidesToo)
{
    choose(u"images"_s);
    view->askToDelete();
    EXPECT_EQ(view->confirmation()->text(),
              u"Move 1 files (2.9 KB) to Trash? This can be undone from the Trash."_s);
    view->confirmation()->confirm();
    test.settle();
    EXPECT_EQ(test.recycler.recycled.size(), 5);
    EXPECT_EQ(view->deleteResult(), 5700);
    EXPECT_TRUE(duplicates.groups().empty());
}

TEST_F(DuplicateFinderDeleteTest, takesTheLastFileWhenTheUserWantsIt)
{
    view->selectNone();
    view->toggleKeep(packHead + 1);
    view->toggleKeep(packHead + 2);
    deleteMarked();
    EXPECT_FALSE(files::exists(path(u"a/pack.zip"_s)));
    EXPECT_FALSE(files::exists(path(u"b/pack.txt"_s)));
    EXPECT_EQ(view->groupsFigure(), u"3"_s);
}

TEST_F(DuplicateFinderDeleteTest, leavesTheRowsOfWhatStaysWhereTheyAre)
{
    view->toggleKeep(reportHead + 2);
    view->toggleKeep(songHead + 2);
    const QSignalSpy removals(view->rows(), &QAbstractItemModel::rowsRemoved);
    const QSignalSpy resets(view->rows(), &QAbstractItemModel::modelReset);
    const QSignalSpy lists(view.get(), &DuplicateFinderView::rowsWillChange);
    deleteMarked();
    EXPECT_EQ(titles(), u"report.pdf report.pdf report.pdf song song song.mp3"_s);
    EXPECT_EQ(text(0, "detail"), u"2 copies · 1000 B each · 1000 B wasted"_s);
    EXPECT_EQ(text(1, "detail") + text(2, "detail"), u"~/a/report.pdf~/b/report.pdf"_s);
    EXPECT_EQ(view->filesFigure(), u"4"_s);
    EXPECT_EQ(view->toDeleteFigure(), QString());
    EXPECT_EQ(removals.count(), 2); // the photos; the last report with the packs behind it
    EXPECT_EQ(resets.count(), 0);
    EXPECT_EQ(lists.count(), 0);
    view->toggleKeep(4); // the rows stand for where their files are now
    EXPECT_EQ(services.shown()[1], u"200: a/song- b/song.mp3"_s);
}

TEST_F(DuplicateFinderDeleteTest, ofAllGroupsOffersTheStartAgain)
{
    view->toggleKeep(reportHead + 1);
    deleteMarked();
    EXPECT_EQ(view->rows()->rowCount(), 0);
    EXPECT_EQ(view->scanText(), u"Start Scan"_s);
    EXPECT_EQ(view->emptyText(), u"Configure scan directories above and click Start Scan"_s);
}

TEST_F(DuplicateFinderDeleteTest, showsAGroupThatPassesTheFilterByItsNewFirstFile)
{
    make(u"a/mixed"_s, 700, 100);
    make(u"b/mixed.zip"_s, 700, 200);
    make(u"c/mixed.zip"_s, 700, 200);
    scan();
    view->selectNone();
    choose(u"archives"_s);
    ASSERT_EQ(titles(), u"pack.zip pack.zip pack.txt"_s);
    duplicates.keepNewest(duplicates.groups().at(2).id); // lets "a/mixed" go
    view->toggleKeep(2);
    const QSignalSpy resets(view->rows(), &QAbstractItemModel::modelReset);
    deleteMarked();
    EXPECT_EQ(titles(), u"mixed.zip mixed.zip mixed.zip"_s);
    EXPECT_EQ(resets.count(), 1);
    EXPECT_EQ(view->groupsFigure(), u"1"_s);
}

TEST_F(DuplicateFinderDeleteTest, tellsHowFarItIs)
{
    QStringList shown;
    const QSignalSpy changes(view.get(), &DuplicateFinderView::deletingChanged);
    duringTheRun([&] {
        EXPECT_TRUE(view->isDeleting());
        shown << view->deletingText();
    });
    deleteMarked();
    EXPECT_EQ(shown,
              QStringList({u"Moving files to the Trash: 0 of 5"_s, u"Moving files to the Trash: 1 of 5"_s,
                           u"Moving files to the Trash: 2 of 5"_s, u"Moving files to the Trash: 3 of 5"_s,
                           u"Moving files to the Trash: 4 of 5"_s}));
    EXPECT_EQ(changes.count(), 7); // its beginning, five files, its end
}

TEST_F(DuplicateFinderDeleteTest, disablesItsCommandsUntilItEnds)
{
    duringTheRun([this] {
        EXPECT_FALSE(view->canScan());
        EXPECT_FALSE(view->canChoose());
        EXPECT_FALSE(view->canDelete());
        view->selectAllDuplicates();
        view->selectNone();
        view->keepNewest();
        view->keepOldest();
        view->keepNewestOf(reportHead);
        view->keepOldestOf(photoHead);
        view->toggleKeep(photoHead + 2);
        view->keepOnly(photoHead + 2);
        view->askToDelete();
        EXPECT_FALSE(view->showDeleteConfirm());
        EXPECT_EQ(services.shown(), asScanned);
    });
    deleteMarked();
    EXPECT_EQ(test.recycler.recycled.size(), 5);
    EXPECT_TRUE(duplicates.markedForDeletion().isEmpty());
}

TEST_F(DuplicateFinderDeleteTest, isNoLongerAskedAboutOnceAScanHasReplacedTheGroups)
{
    view->askToDelete();
    test.notifications.post(notifications::rescan);
    test.settle();
    EXPECT_FALSE(view->showDeleteConfirm());
    view->confirmation()->confirm();
    test.settle();
    EXPECT_TRUE(test.recycler.recycled.isEmpty());
}

TEST_F(DuplicateFinderDeleteTest, isStartedOnceByTwoClicksOnTheDialog)
{
    view->askToDelete();
    view->confirmation()->confirm();
    view->confirmation()->confirm();
    test.settle();
    ASSERT_NE(services.madeHistory, nullptr);
    EXPECT_EQ(services.madeHistory->entries().size(), 1U);
}

TEST_F(DuplicateFinderDeleteTest, isNotStartedASecondTimeFromWithin)
{
    duringTheRun([this] {
        view->confirmation()->confirm();
        test.mainQueue.run();
    });
    deleteMarked();
    EXPECT_EQ(test.recycler.recycled.size(), 5);
    EXPECT_EQ(services.records().size(), 1U);
    EXPECT_EQ(view->deleteResult(), 5700);
}

TEST_F(DuplicateFinderDeleteTest, goesOnWhenAFilterIsChosenMeanwhile)
{
    duringTheRun([this] { choose(u"documents"_s); });
    view->toggleKeep(reportHead + 2);
    deleteMarked();
    EXPECT_EQ(view->deleteResult(), 4700);
    EXPECT_EQ(titles(), u"report.pdf report.pdf report.pdf"_s);
    EXPECT_EQ(view->groupsFigure(), u"1"_s);
}

TEST_F(DuplicateFinderDeleteTest, keepsItsScreenModelUntilItEnds)
{
    const std::weak_ptr<DuplicateFinderView> held = view;
    QString during;
    duringTheRun([&] {
        close();
        ASSERT_FALSE(held.expired());
        during = held.lock()->deletingText();
    });
    deleteMarked();
    EXPECT_EQ(during, u"Moving files to the Trash: 4 of 5"_s);
    EXPECT_TRUE(held.expired());
}

TEST_F(DuplicateFinderDeleteTest, goesOnWhenItsScreenIsGoneMeanwhile)
{
    duringTheRun([this] { close(); });
    deleteMarked();
    EXPECT_EQ(view, nullptr);
    EXPECT_EQ(test.recycler.recycled.size(), 5);
    EXPECT_FALSE(duplicates.isDeleting());
    EXPECT_TRUE(duplicates.groups().empty());
    EXPECT_EQ(services.records().at(0).bytesAffected, 5700);
}

TEST_F(DuplicateFinderDeleteTest, endsWithoutAWordWhenItFailsAndItsScreenIsGone)
{
    test.recycler.answers = [this](const QStringList &, const Recycler::Completion &done) {
        close();
        done({{}, DuplicateServices::refusal()});
    };
    deleteMarked();
    EXPECT_EQ(services.shown(), asScanned);
    EXPECT_EQ(services.records().at(0).title, u"Removed 0 duplicates · 5 failed"_s);
}

TEST_F(DuplicateFinderDeleteTest, isSeenByAScreenThatIsMadeMeanwhile)
{
    QStringList shown;
    duringTheRun([&] {
        open();
        EXPECT_TRUE(view->isDeleting());
        EXPECT_FALSE(view->canScan());
        EXPECT_FALSE(view->canChoose());
        shown << view->deletingText();
    });
    deleteMarked();
    EXPECT_EQ(shown.value(0), u"Moving files to the Trash: 0 of 5"_s);
    EXPECT_EQ(shown.value(4), u"Moving files to the Trash: 4 of 5"_s);
    EXPECT_FALSE(view->isDeleting());
    EXPECT_TRUE(view->canScan());
    EXPECT_EQ(view->deleteResult(), std::nullopt); // it is of the screen that was left
    EXPECT_EQ(view->rows()->rowCount(), 0);
}

TEST_F(DuplicateFinderDeleteTest, doesNotBeginOnceItsScreenIsGone)
{
    view->askToDelete();
    view->confirmation()->confirm();
    close();
    test.settle();
    EXPECT_TRUE(test.recycler.recycled.isEmpty());
}

TEST_F(DuplicateFinderDeleteTest, doesNotBeginWhenAScanWasQuicker)
{
    view->askToDelete();
    test.notifications.post(notifications::rescan);
    view->confirmation()->confirm();
    test.settle();
    EXPECT_TRUE(test.recycler.recycled.isEmpty());
    EXPECT_EQ(services.shown(), asScanned);
}
