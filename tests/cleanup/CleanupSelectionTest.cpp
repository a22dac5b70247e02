#include "cleanup/CleanupSelection.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

CleanupCategory category(const QString &id, bool isSafe, qint64 size)
{
    CleanupCategory made;
    made.id = id;
    made.size = size;
    made.safe = isSafe;
    return made;
}

/// Logs, which are safe, and the Trash, which is not; each has a preview of three files.
class CleanupSelectionTest : public testing::Test
{
protected:
    CleanupSelectionTest()
    {
        for (const QString &id : {logs, trash}) {
            for (int number = 1; number <= 3; ++number)
                selection.previewFiles[id].push_back({QString::number(number), number * qint64(10),
                                                      u'/' + id + u'/' + QString::number(number)});
        }
    }

    bool toggle(const QString &id) { return cleanupselection::toggle(id, categories, selection); }
    void toggleFile(const QString &id, int number)
    {
        cleanupselection::toggleFile(id, file(id, number), categories, selection);
    }
    void review(const QString &id, bool isReviewed)
    {
        cleanupselection::setReviewed(id, isReviewed, categories, selection);
    }
    static QString file(const QString &id, int number) { return u'/' + id + u'/' + QString::number(number); }
    QSet<QString> picked(const QString &id) const { return cleanupselection::picked(id, selection); }
    qint64 size() const { return cleanupselection::selectedSize(categories, selection); }
    bool isTicked(size_t index) const { return categories[index].checked; }

    const QString logs = u"logs"_s;
    const QString trash = u"trash"_s;
    std::vector<CleanupCategory> categories{category(logs, true, 1000), category(trash, false, 500)};
    CleanupSelection selection;
};

} // namespace

TEST_F(CleanupSelectionTest, locksWhatIsUnsafeUntilItIsReviewed)
{
    EXPECT_FALSE(cleanupselection::isLocked(categories[0], selection));
    EXPECT_TRUE(cleanupselection::isLocked(categories[1], selection));
    review(trash, true);
    EXPECT_FALSE(cleanupselection::isLocked(categories[1], selection));
    review(trash, false);
    EXPECT_TRUE(cleanupselection::isLocked(categories[1], selection));
}

TEST_F(CleanupSelectionTest, togglesNoLockedCategory)
{
    EXPECT_FALSE(toggle(trash));
    EXPECT_FALSE(isTicked(1));
    EXPECT_TRUE(picked(trash).isEmpty());
}

TEST_F(CleanupSelectionTest, tickPicksAllFilesOfTheView)
{
    EXPECT_FALSE(toggle(logs)) << "the preview is there";
    EXPECT_TRUE(isTicked(0));
    EXPECT_EQ(picked(logs), (QSet<QString>{file(logs, 1), file(logs, 2), file(logs, 3)}));
}

TEST_F(CleanupSelectionTest, tickAsksForAPreviewThatIsNotLoadedOrEmpty)
{
    selection.previewFiles[logs].clear();
    EXPECT_TRUE(toggle(logs));
    EXPECT_TRUE(isTicked(0));
    EXPECT_TRUE(picked(logs).isEmpty());
    selection.previewFiles.remove(logs);
    toggle(logs);
    EXPECT_TRUE(toggle(logs));
}

TEST_F(CleanupSelectionTest, untickingClearsThePicksAndTickingAgainPicksAll)
{
    toggle(logs);
    toggleFile(logs, 1);
    EXPECT_EQ(picked(logs).size(), 2);
    EXPECT_FALSE(toggle(logs));
    EXPECT_FALSE(isTicked(0));
    EXPECT_TRUE(picked(logs).isEmpty());
    toggle(logs);
    EXPECT_EQ(picked(logs).size(), 3);
}

TEST_F(CleanupSelectionTest, pickingAFileTicksItsCategory)
{
    toggleFile(logs, 2);
    EXPECT_TRUE(isTicked(0));
    EXPECT_EQ(picked(logs), QSet<QString>{file(logs, 2)});
}

TEST_F(CleanupSelectionTest, droppingTheLastPickedFileUnticksTheCategory)
{
    toggleFile(logs, 2);
    toggleFile(logs, 2);
    EXPECT_FALSE(isTicked(0));
    review(trash, true);
    toggle(trash);
    for (int number = 1; number <= 3; ++number)
        toggleFile(trash, number);
    EXPECT_FALSE(isTicked(1));
}

TEST_F(CleanupSelectionTest, pickingAFileOfALockedCategoryDoesNotTickIt)
{
    toggleFile(trash, 1);
    EXPECT_FALSE(isTicked(1));
    EXPECT_EQ(picked(trash).size(), 1);
    cleanupselection::selectAllFiles(trash, categories, selection);
    EXPECT_FALSE(isTicked(1));
    EXPECT_EQ(picked(trash).size(), 3);
}

TEST_F(CleanupSelectionTest, reviewTicksACategoryWithPickedFiles)
{
    toggleFile(trash, 1);
    review(trash, true);
    EXPECT_TRUE(isTicked(1));
}

TEST_F(CleanupSelectionTest, reviewOfACategoryWithoutPickedFilesTicksNothing)
{
    review(trash, true);
    EXPECT_FALSE(isTicked(1));
}

TEST_F(CleanupSelectionTest, takingTheReviewBackUnticksAndKeepsThePicks)
{
    review(trash, true);
    toggleFile(trash, 1);
    review(trash, false);
    EXPECT_FALSE(isTicked(1));
    EXPECT_EQ(picked(trash).size(), 1);
    review(trash, true);
    EXPECT_TRUE(isTicked(1));
}

TEST_F(CleanupSelectionTest, selectAllSkipsALockedCategoryEvenWithPickedFiles)
{
    toggleFile(trash, 1);
    cleanupselection::selectAll(categories, selection);
    EXPECT_TRUE(isTicked(0));
    EXPECT_FALSE(isTicked(1));
    EXPECT_TRUE(picked(logs).isEmpty()) << "and picks no files";
}

TEST_F(CleanupSelectionTest, selectAllTakesAReviewedCategory)
{
    review(trash, true);
    cleanupselection::selectAll(categories, selection);
    EXPECT_TRUE(isTicked(1));
}

TEST_F(CleanupSelectionTest, selectNoneUnticksAllAndKeepsThePicks)
{
    toggle(logs);
    toggleFile(trash, 1);
    cleanupselection::selectNone(categories);
    EXPECT_FALSE(isTicked(0));
    EXPECT_EQ(picked(logs).size(), 3);
    EXPECT_EQ(picked(trash).size(), 1);
}

TEST_F(CleanupSelectionTest, allAndNoFilesOfAPreview)
{
    cleanupselection::selectAllFiles(logs, categories, selection);
    EXPECT_TRUE(isTicked(0));
    EXPECT_EQ(picked(logs).size(), 3);
    cleanupselection::selectNoFiles(logs, categories, selection);
    EXPECT_FALSE(isTicked(0));
    EXPECT_TRUE(picked(logs).isEmpty());
}

TEST_F(CleanupSelectionTest, allFilesOfAPreviewThatIsNotThereAreNone)
{
    selection.previewFiles.clear();
    categories[0].checked = true;
    cleanupselection::selectAllFiles(logs, categories, selection);
    EXPECT_FALSE(isTicked(0));
}

TEST_F(CleanupSelectionTest, countsPickedFilesElseTheWholeCategory)
{
    cleanupselection::selectAll(categories, selection);
    EXPECT_EQ(size(), 1000);
    toggleFile(logs, 2);
    toggleFile(logs, 3);
    EXPECT_EQ(size(), 50);
    review(trash, true);
    toggle(trash);
    EXPECT_EQ(size(), 110);
    cleanupselection::selectNone(categories);
    EXPECT_EQ(size(), 0);
}

TEST_F(CleanupSelectionTest, picksWithoutAPreviewCountNothing)
{
    toggleFile(logs, 1);
    selection.previewFiles.remove(logs);
    EXPECT_EQ(size(), 0);
}

TEST_F(CleanupSelectionTest, aPreviewThatArrivesPicksAllWhereTheTickIsSet)
{
    selection.previewFiles.clear();
    toggle(logs);
    cleanupselection::takePreview(logs, {{u"a"_s, 1, u"/a"_s}}, categories, selection);
    EXPECT_EQ(picked(logs), QSet<QString>{u"/a"_s});
    cleanupselection::takePreview(trash, {{u"b"_s, 1, u"/b"_s}}, categories, selection);
    EXPECT_TRUE(picked(trash).isEmpty());
    EXPECT_EQ(selection.previewFiles.value(trash).size(), 1U);
}

TEST_F(CleanupSelectionTest, aPreviewThatArrivesKeepsPicksAndAnEmptyOnePicksNothing)
{
    toggleFile(logs, 2);
    cleanupselection::takePreview(logs, {{u"a"_s, 1, u"/a"_s}}, categories, selection);
    EXPECT_EQ(picked(logs), QSet<QString>{file(logs, 2)});
    cleanupselection::selectNoFiles(logs, categories, selection);
    categories[0].checked = true;
    cleanupselection::takePreview(logs, {}, categories, selection);
    EXPECT_TRUE(picked(logs).isEmpty());
    EXPECT_TRUE(isTicked(0));
}

TEST_F(CleanupSelectionTest, passesOverACategoryThatIsNotThere)
{
    EXPECT_FALSE(toggle(u"missing"_s));
    toggleFile(u"missing"_s, 1);
    review(u"missing"_s, false);
    cleanupselection::selectAllFiles(u"missing"_s, categories, selection);
    EXPECT_EQ(cleanupselection::selected(categories).size(), 0U);
}
