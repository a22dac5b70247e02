#include "duplicates/screen/DeleteNote.h"

#include "duplicates/screen/DuplicateFinderHome.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// The second paragraph of the question before a delete run.
struct DeleteNoteTest : public DuplicateFinderHome
{
    /// "a" again by another way, so that each of its files is listed twice.
    void scanAlsoThroughALink(const QStringList &folders)
    {
        test.temp.link(u"home/way"_s, path(u"a"_s));
        services.useScanPaths(folders);
        scan();
    }

    QString noteAfterAsking()
    {
        view->askToDelete();
        test.settle();
        return view->confirmation()->note();
    }
};

} // namespace

TEST(DeleteNote, hasASentenceForEachCountAboveZero)
{
    EXPECT_EQ(DeleteNote().text(), QString());
    EXPECT_EQ((DeleteNote{1, 0, 0}.text()), u"1 of the files that go are hidden by the filter."_s);
    EXPECT_EQ((DeleteNote{0, 2, 0}.text()), u"In 2 groups no copy stays."_s);
    EXPECT_EQ((DeleteNote{0, 0, 3}.text()),
              u"3 of them are the very file that is kept, reached another way."_s);
    EXPECT_EQ((DeleteNote{1200, 2, 3}.text()),
              u"1200 of the files that go are hidden by the filter. In 2 groups no copy stays. 3 of them are "
              "the very file that is kept, reached another way."_s);
}

TEST_F(DeleteNoteTest, isEmptyWhereAllIsAsTheFiguresTell)
{
    scan();
    EXPECT_EQ(noteAfterAsking(), QString());
    EXPECT_TRUE(view->showDeleteConfirm());
}

TEST_F(DeleteNoteTest, tellsAtOnceWhatTheFilterHides)
{
    scan();
    choose(u"images"_s);
    view->askToDelete();
    EXPECT_EQ(view->confirmation()->text(),
              u"Move 1 files (2.9 KB) to Trash? This can be undone from the Trash."_s);
    EXPECT_EQ(view->confirmation()->note(), u"4 of the files that go are hidden by the filter."_s);
    test.settle();
    EXPECT_EQ(view->confirmation()->note(), u"4 of the files that go are hidden by the filter."_s);
}

TEST_F(DeleteNoteTest, countsTheGroupsOfWhichNothingStaysThoseHiddenToo)
{
    scan();
    view->toggleKeep(photoHead + 1);
    view->toggleKeep(songHead + 1);
    EXPECT_EQ(noteAfterAsking(), u"In 2 groups no copy stays."_s);
    view->confirmation()->cancel();
    choose(u"images"_s);
    EXPECT_EQ(noteAfterAsking(),
              u"5 of the files that go are hidden by the filter. In 2 groups no copy stays."_s);
}

TEST_F(DeleteNoteTest, countsTheFilesThatAreTheOneThatIsKept)
{
    scanAlsoThroughALink({u"a"_s, u"way"_s});
    ASSERT_EQ(services.shown(),
              QStringList({u"3000: a/photo.JPG way/photo.JPG-"_s, u"1000: a/report.pdf way/report.pdf-"_s,
                           u"500: a/pack.zip way/pack.zip-"_s, u"200: a/song way/song-"_s}));
    view->askToDelete();
    EXPECT_EQ(view->confirmation()->note(), QString()); // the question waits for no disk
    EXPECT_TRUE(view->showDeleteConfirm());
    test.settle();
    EXPECT_EQ(view->confirmation()->note(),
              u"4 of them are the very file that is kept, reached another way."_s);
}

TEST_F(DeleteNoteTest, countsNoFileOfAGroupOfWhichNothingIsKept)
{
    scanAlsoThroughALink({u"a"_s, u"way"_s});
    view->toggleKeep(1);
    EXPECT_EQ(noteAfterAsking(), u"In 1 groups no copy stays. 3 of them are the very file that is kept, "
                                 "reached another way."_s);
}

TEST_F(DeleteNoteTest, isDroppedWithItsQuestion)
{
    scanAlsoThroughALink({u"a"_s, u"way"_s});
    view->askToDelete();
    view->confirmation()->cancel();
    test.settle();
    EXPECT_EQ(view->confirmation()->note(), QString());
    EXPECT_FALSE(view->showDeleteConfirm());
}

TEST_F(DeleteNoteTest, ofAnEarlierQuestionIsNotTakenByTheNext)
{
    scanAlsoThroughALink({u"a"_s, u"way"_s});
    view->askToDelete();
    test.workQueue.run(); // looked up, and on its way
    view->confirmation()->cancel();
    view->selectNone();
    view->toggleKeep(photoHead + 2);
    view->askToDelete();
    test.mainQueue.run();
    EXPECT_EQ(view->confirmation()->note(), QString());
    test.settle();
    EXPECT_EQ(view->confirmation()->note(),
              u"1 of them are the very file that is kept, reached another way."_s);
}

TEST_F(DeleteNoteTest, isNotWaitedForByTheRun)
{
    scanAlsoThroughALink({u"a"_s, u"way"_s});
    view->askToDelete();
    view->confirmation()->confirm();
    test.mainQueue.run();
    EXPECT_EQ(test.recycler.recycled.size(), 4);
    test.settle();
    EXPECT_EQ(view->confirmation()->note(), QString());
}

TEST_F(DeleteNoteTest, goesWithTheScreen)
{
    scanAlsoThroughALink({u"a"_s, u"way"_s});
    view->askToDelete();
    test.workQueue.run();
    close();
    EXPECT_EQ(test.mainQueue.run(), 1);
    EXPECT_TRUE(test.recycler.recycled.isEmpty());
}

TEST_F(DeleteNoteTest, tellsOfSameFilesOnTheHeadsOfTheGroups)
{
    scanAlsoThroughALink({u"a"_s, u"way"_s, u"b"_s});
    EXPECT_EQ(text(0, "sameMark"), u"SAME FILE"_s);
    EXPECT_EQ(text(0, "lossMark"), QString());
    open();                                  // another screen model over the same result
    EXPECT_EQ(test.workQueue.waiting(), 0U); // the disk is not asked before the screen has been seen
    view->appear();
    EXPECT_EQ(text(0, "sameMark"), QString());
    test.settle();
    EXPECT_EQ(text(0, "sameMark"), u"SAME FILE"_s);
    view->toggleKeep(1);
    EXPECT_EQ(text(0, "lossMark"), u"NOTHING KEPT"_s);
}

TEST_F(DeleteNoteTest, marksAGroupAsOneFileNoLongerThanItsOtherWayIsListed)
{
    scanAlsoThroughALink({u"a"_s, u"way"_s, u"b"_s});
    ASSERT_EQ(text(0, "sameMark"), u"SAME FILE"_s);
    view->selectNone();
    view->toggleKeep(2);
    ASSERT_EQ(text(2, "detail"), u"~/way/photo.JPG"_s);
    deleteMarked();
    EXPECT_EQ(text(0, "sameMark"), QString()); // before the disk was asked again
    test.settle();
    EXPECT_EQ(text(0, "sameMark"), QString());
}
