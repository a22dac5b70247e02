#include "CleanupServices.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class CleanupViewModelChoiceTest : public testing::Test
{
protected:
    CleanupViewModelChoiceTest()
    {
        services.test.useDu("printf '100\\t'\n");
        services.file(u"Library/Logs/one"_s, "1");
        services.file(u"Library/Logs/two"_s, "22");
        services.file(u".Trash/three"_s, "333");
        services.scan();
    }

    QSet<QString> picked(const QString &id) const { return cleanup.selectedFilePaths().value(id); }
    QString at(const QString &relative) const { return services.inHome(relative); }

    CleanupServices services;
    TestPlatform &test = services.test;
    CleanupViewModel &cleanup = *services.cleanup;
};

} // namespace

TEST_F(CleanupViewModelChoiceTest, loadsAPreviewOnceForAScan)
{
    services.loadPreview(u"logs"_s);
    ASSERT_EQ(cleanup.previewFiles().value(u"logs"_s).size(), 2U);
    EXPECT_EQ(cleanup.previewFiles().value(u"logs"_s).front().name, u"two");
    services.file(u"Library/Logs/later"_s);
    services.loadPreview(u"logs"_s);
    EXPECT_EQ(cleanup.previewFiles().value(u"logs"_s).size(), 2U);
    services.scan();
    services.loadPreview(u"logs"_s);
    EXPECT_EQ(cleanup.previewFiles().value(u"logs"_s).size(), 3U);
}

TEST_F(CleanupViewModelChoiceTest, keepsAnEmptyPreviewToo)
{
    files::removeTree(at(u"Library/Logs"_s));
    services.loadPreview(u"logs"_s);
    EXPECT_TRUE(cleanup.previewFiles().contains(u"logs"_s));
    services.file(u"Library/Logs/later"_s);
    cleanup.loadPreview(*services.category(u"logs"_s));
    EXPECT_EQ(test.workQueue.waiting(), 0U) << "it is there";
}

TEST_F(CleanupViewModelChoiceTest, loadsThePreviewOfARowThatOpens)
{
    cleanup.setExpanded(u"logs"_s, true);
    EXPECT_TRUE(cleanup.expandedPreviews().value(u"logs"_s));
    EXPECT_FALSE(cleanup.previewFiles().contains(u"logs"_s));
    test.settle();
    EXPECT_TRUE(cleanup.previewFiles().contains(u"logs"_s));
    EXPECT_TRUE(picked(u"logs"_s).isEmpty()) << "looking picks nothing";
    cleanup.setExpanded(u"trash"_s, false);
    EXPECT_EQ(test.workQueue.waiting(), 0U);
}

TEST_F(CleanupViewModelChoiceTest, tickLoadsThePreviewAndPicksAllOfIt)
{
    cleanup.toggle(u"logs"_s);
    EXPECT_TRUE(services.category(u"logs"_s)->checked);
    EXPECT_EQ(cleanup.selectedSize(), 102400);
    test.settle();
    EXPECT_EQ(picked(u"logs"_s), (QSet<QString>{at(u"Library/Logs/one"_s), at(u"Library/Logs/two"_s)}));
    EXPECT_EQ(cleanup.selectedSize(), 3);
}

TEST_F(CleanupViewModelChoiceTest, tickOfAPreviewThatIsOpenPicksAllOfIt)
{
    cleanup.setExpanded(u"logs"_s, true);
    test.settle();
    cleanup.toggle(u"logs"_s);
    EXPECT_EQ(picked(u"logs"_s).size(), 2);
    EXPECT_EQ(test.workQueue.waiting(), 0U);
}

TEST_F(CleanupViewModelChoiceTest, untickingWhileThePreviewLoadsPicksNothing)
{
    cleanup.toggle(u"logs"_s);
    cleanup.toggle(u"logs"_s);
    test.settle();
    EXPECT_TRUE(picked(u"logs"_s).isEmpty());
    EXPECT_FALSE(services.category(u"logs"_s)->checked);
}

TEST_F(CleanupViewModelChoiceTest, aLockedRowDoesNotReact)
{
    EXPECT_TRUE(cleanup.isLocked(*services.category(u"trash"_s)));
    cleanup.toggle(u"trash"_s);
    EXPECT_FALSE(services.category(u"trash"_s)->checked);
    EXPECT_EQ(test.workQueue.waiting(), 0U);
    cleanup.setReviewed(u"trash"_s, true);
    cleanup.toggle(u"trash"_s);
    EXPECT_TRUE(services.category(u"trash"_s)->checked);
}

TEST_F(CleanupViewModelChoiceTest, locksWhateverTheSettingsSay)
{
    test.defaults.set(u"settings.cleanupRequireReview"_s, false);
    EXPECT_TRUE(cleanup.isLocked(*services.category(u"trash"_s)));
}

TEST_F(CleanupViewModelChoiceTest, dropsAPreviewThatAScanHasOvertaken)
{
    cleanup.loadPreview(*services.category(u"logs"_s));
    test.workQueue.run();
    cleanup.scan();
    test.settle();
    EXPECT_FALSE(cleanup.previewFiles().contains(u"logs"_s));
}

TEST_F(CleanupViewModelChoiceTest, tellsOfEveryChange)
{
    QSignalSpy one(&cleanup, &CleanupViewModel::categoryChanged);
    QSignalSpy all(&cleanup, &CleanupViewModel::ticksChanged);
    QSignalSpy question(&cleanup, &CleanupViewModel::showConfirmCleanChanged);
    cleanup.toggle(u"logs"_s);
    test.settle(); // the preview
    cleanup.toggleFile(u"logs"_s, at(u"Library/Logs/one"_s));
    cleanup.selectNoFiles(u"logs"_s);
    cleanup.selectAllFiles(u"logs"_s);
    cleanup.setReviewed(u"logs"_s, true);
    cleanup.setExpanded(u"logs"_s, true);
    cleanup.setPreviewVisibleCount(u"logs"_s, 150);
    EXPECT_EQ(one.size(), 8);
    cleanup.selectAll();
    cleanup.selectNone();
    EXPECT_EQ(all.size(), 2);
    cleanup.setShowConfirmClean(true);
    EXPECT_EQ(question.size(), 1);
    EXPECT_TRUE(cleanup.showConfirmClean());
}

TEST_F(CleanupViewModelChoiceTest, passesOverACategoryThatIsNotThere)
{
    cleanup.toggle(u"missing"_s);
    cleanup.setExpanded(u"missing"_s, true);
    EXPECT_EQ(test.workQueue.waiting(), 0U);
}
