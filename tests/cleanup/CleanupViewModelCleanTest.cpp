#include "CleanupServices.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class CleanupViewModelCleanTest : public testing::Test
{
protected:
    CleanupViewModelCleanTest()
    {
        services.file(u"Library/Logs/one"_s, QByteArray(100000, '1'));
        services.file(u"Library/Logs/two"_s, QByteArray(50000, '2'));
        services.scan();
    }

    CleanupServices services;
    TestPlatform &test = services.test;
    CleanupViewModel &cleanup = *services.cleanup;
};

} // namespace

TEST_F(CleanupViewModelCleanTest, runsOffTheMainThreadAndScansAgain)
{
    services.tickWhole(u"logs"_s);
    cleanup.setPreviewVisibleCount(u"logs"_s, 150);
    QSignalSpy cleaning(&cleanup, &CleanupViewModel::isCleaningChanged);
    cleanup.clean();
    EXPECT_TRUE(cleanup.isCleaning());
    EXPECT_EQ(services.names(u"Library/Logs"_s).size(), 2) << "not in the click";
    EXPECT_EQ(test.workQueue.lastPriority(), WorkPriority::userInitiated);
    test.workQueue.run();
    EXPECT_EQ(services.names(u"Library/Logs"_s).size(), 0);
    EXPECT_TRUE(cleanup.isCleaning());
    test.mainQueue.run();
    EXPECT_FALSE(cleanup.isCleaning());
    EXPECT_TRUE(cleanup.isScanning());
    EXPECT_EQ(cleaning.size(), 2);
    EXPECT_TRUE(cleanup.reviewedUnsafe().isEmpty());
    EXPECT_TRUE(cleanup.expandedPreviews().isEmpty());
    EXPECT_TRUE(cleanup.previewFiles().isEmpty());
    EXPECT_TRUE(cleanup.previewVisibleCount().isEmpty());
    EXPECT_TRUE(cleanup.selectedFilePaths().isEmpty());
    test.settle();
    EXPECT_EQ(services.ids(), QStringList(u"trash"_s)) << "the emptied place gives no row";
}

TEST_F(CleanupViewModelCleanTest, endsWithACleanSystem)
{
    services.tickWhole(u"logs"_s);
    services.clean();
    services.tickWhole(u"trash"_s);
    services.clean();
    EXPECT_TRUE(cleanup.categories().empty());
    EXPECT_TRUE(cleanup.lastScanTime());
}

TEST_F(CleanupViewModelCleanTest, goesByTheChoicesAtItsStart)
{
    services.pick(u"logs"_s, {services.inHome(u"Library/Logs/one"_s)});
    cleanup.clean();
    cleanup.toggleFile(u"logs"_s, services.inHome(u"Library/Logs/two"_s));
    cleanup.selectNone();
    test.settle();
    EXPECT_EQ(services.names(u"Library/Logs"_s), QStringList(u"two"_s));
    EXPECT_EQ(services.madeHistory->entries().front().bytesAffected, 100000);
}

TEST_F(CleanupViewModelCleanTest, runsOnceHoweverOftenItIsAsked)
{
    services.tickWhole(u"logs"_s);
    cleanup.clean();
    cleanup.clean();
    test.workQueue.run();
    cleanup.clean();
    test.settle();
    EXPECT_EQ(services.madeHistory->entries().size(), 1U);
}

TEST_F(CleanupViewModelCleanTest, removesNoDownloadsBeforeTheirPreviewIsThere)
{
    services.file(u"Downloads/old"_s);
    test.clock.set(std::chrono::system_clock::now() + std::chrono::days(31));
    services.scan();
    cleanup.setReviewed(u"old-downloads"_s, true);
    cleanup.toggle(u"old-downloads"_s); // its preview waits on the work queue
    cleanup.clean();
    test.settle();
    EXPECT_EQ(services.names(u"Downloads"_s), QStringList(u"old"_s));
    EXPECT_EQ(services.madeHistory->entries().front().detail, u"Old Downloads"_s);
    EXPECT_FALSE(cleanup.previewFiles().contains(u"old-downloads"_s)) << "it was of the list before";
}

TEST_F(CleanupViewModelCleanTest, shrinksToTheFilesThatWerePicked)
{
    services.pick(u"logs"_s, {services.inHome(u"Library/Logs/two"_s)});
    EXPECT_EQ(cleanup.selectedSize(), 50000);
    services.clean();
    EXPECT_EQ(services.names(u"Library/Logs"_s), QStringList(u"one"_s));
    EXPECT_EQ(services.names(u".Trash"_s), QStringList(u"two"_s));
    EXPECT_EQ(services.category(u"logs"_s)->fileCount, 1);
}

TEST_F(CleanupViewModelCleanTest, doesNotBeginOnceItsServiceIsGone)
{
    services.tickWhole(u"logs"_s);
    cleanup.clean();
    services.cleanup.reset();
    test.settle();
    EXPECT_EQ(services.names(u"Library/Logs"_s).size(), 2);
    EXPECT_FALSE(services.madeHistory);
}

TEST_F(CleanupViewModelCleanTest, isRecordedThoughItsServiceGoesMeanwhile)
{
    services.tickWhole(u"logs"_s);
    const auto moves = test.recycler.answers;
    test.recycler.answers = [this, moves](const QStringList &paths, const Recycler::Completion &done) {
        services.cleanup.reset();
        moves(paths, done);
    };
    cleanup.clean();
    test.settle();
    EXPECT_EQ(services.names(u"Library/Logs"_s).size(), 0);
    EXPECT_EQ(services.madeHistory->entries().size(), 1U);
}

TEST_F(CleanupViewModelCleanTest, makesNoLogBeforeThereIsSomethingToRecord)
{
    services.tickWhole(u"logs"_s);
    cleanup.clean();
    EXPECT_FALSE(services.madeHistory);
    test.settle();
    EXPECT_TRUE(services.madeHistory);
}

TEST_F(CleanupViewModelCleanTest, bearsWithAScanDuringTheRun)
{
    services.tickWhole(u"logs"_s);
    cleanup.clean();
    cleanup.scan(); // of the list as it was before
    test.settle();
    EXPECT_FALSE(cleanup.isScanning());
    EXPECT_EQ(services.ids(), QStringList(u"trash"_s));
}
