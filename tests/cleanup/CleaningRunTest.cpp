#include "cleanup/CleaningRun.h"

#include "CleanupServices.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// A home with something of every category, each measured as large.
class CleaningRunTest : public testing::Test
{
protected:
    CleaningRunTest()
    {
        services.test.useDu("printf '100\\t'\n");
        services.file(u"Library/Logs/one.log"_s);
        services.file(u"Library/Logs/folder/two.log"_s);
        services.file(u"Library/Logs/.hidden"_s);
        services.file(u"Library/Caches/Google/Chrome/cache"_s);
        services.file(u"Library/Caches/org.mozilla.firefox/cache2"_s);
        services.file(u".Trash/old 1"_s);
        services.file(u".Trash/folder/inner 1"_s);
        services.file(u".Trash/folder/inner 2"_s);
        services.folder(u"Desktop/empty 1"_s);
        services.folder(u"Desktop/empty 2"_s);
        services.file(u"Downloads/a"_s);
        services.file(u"Downloads/b"_s);
        services.test.clock.set(std::chrono::system_clock::now() + std::chrono::days(31)); // all are old
        services.scan();
    }

    CleanupServices services;
    const QStringList trashBefore{u"folder"_s, u"old 1"_s};
    const QStringList logsBefore{u".hidden"_s, u"folder"_s, u"one.log"_s};
};

} // namespace

// The seven cases, in the order in which they are decided.

TEST_F(CleaningRunTest, leavesOldDownloadsAloneWithoutPickedFiles)
{
    services.tickWhole(u"old-downloads"_s);
    services.clean();
    EXPECT_EQ(services.names(u"Downloads"_s), (QStringList{u"a"_s, u"b"_s}));
    EXPECT_EQ(services.names(u".Trash"_s), trashBefore);
}

TEST_F(CleaningRunTest, movesPickedOldDownloadsToTheTrash)
{
    services.pick(u"old-downloads"_s, {services.inHome(u"Downloads/a"_s)});
    services.clean();
    EXPECT_EQ(services.names(u"Downloads"_s), QStringList(u"b"_s));
    EXPECT_EQ(services.names(u".Trash"_s), (QStringList{u"a"_s} + trashBefore));
}

TEST_F(CleaningRunTest, removesPickedFilesOfTheTrashForGood)
{
    services.pick(u"trash"_s,
                  {services.inHome(u".Trash/folder/inner 1"_s), services.inHome(u".Trash/old 1"_s)});
    services.clean();
    EXPECT_EQ(services.names(u".Trash"_s), QStringList(u"folder"_s));
    EXPECT_EQ(services.names(u".Trash/folder"_s), QStringList(u"inner 2"_s));
    EXPECT_TRUE(services.test.recycler.recycled.isEmpty());
}

TEST_F(CleaningRunTest, movesPickedFilesOfAnyOtherCategoryToTheTrash)
{
    services.pick(u"logs"_s, {services.inHome(u"Library/Logs/folder/two.log"_s)});
    services.clean();
    EXPECT_EQ(services.names(u"Library/Logs"_s), logsBefore);
    EXPECT_EQ(services.names(u"Library/Logs/folder"_s), QStringList());
    EXPECT_EQ(services.names(u".Trash"_s), trashBefore + QStringList{u"two.log"_s});
    EXPECT_TRUE(services.test.recycler.removed.isEmpty());
}

TEST_F(CleaningRunTest, movesEmptyFoldersToTheTrashAsAWhole)
{
    services.tickWhole(u"empty-folders"_s);
    services.clean();
    EXPECT_EQ(services.names(u"Desktop"_s), QStringList());
    EXPECT_EQ(services.names(u".Trash"_s), (QStringList{u"empty 1"_s, u"empty 2"_s} + trashBefore));
}

TEST_F(CleaningRunTest, emptiesTheTrashForGoodAndKeepsItsFolder)
{
    services.tickWhole(u"trash"_s);
    services.clean();
    EXPECT_TRUE(files::isDirectory(services.inHome(u".Trash"_s)));
    EXPECT_EQ(services.names(u".Trash"_s), QStringList());
    EXPECT_TRUE(services.test.recycler.recycled.isEmpty());
}

TEST_F(CleaningRunTest, movesTheContentOfAnyOtherCategoryToTheTrashAndKeepsItsFolders)
{
    services.tickWhole(u"logs"_s);
    services.tickWhole(u"browser-cache"_s);
    services.clean();
    for (const QString &place :
         {u"Library/Logs"_s, u"Library/Caches/Google/Chrome"_s, u"Library/Caches/org.mozilla.firefox"_s}) {
        EXPECT_TRUE(files::isDirectory(services.inHome(place)));
        EXPECT_EQ(services.names(place), QStringList());
    }
    EXPECT_EQ(services.names(u".Trash"_s), (QStringList{u".hidden"_s, u"cache"_s, u"cache2"_s, u"folder"_s,
                                                        u"folder 2"_s, u"old 1"_s, u"one.log"_s}));
    EXPECT_EQ(services.names(u".Trash/folder 2"_s), QStringList(u"two.log"_s));
    EXPECT_TRUE(services.test.recycler.removed.isEmpty());
}

// What else is told of a run.

TEST_F(CleaningRunTest, movesPickedEmptyFoldersAndKeepsTheOthers)
{
    services.pick(u"empty-folders"_s, {services.inHome(u"Desktop/empty 2"_s)});
    services.clean();
    EXPECT_EQ(services.names(u"Desktop"_s), QStringList(u"empty 1"_s));
    EXPECT_EQ(services.names(u".Trash"_s), (QStringList{u"empty 2"_s} + trashBefore));
}

TEST_F(CleaningRunTest, touchesNothingThatIsNotSelected)
{
    services.tickWhole(u"logs"_s);
    services.cleanup->toggle(u"logs"_s);
    services.clean();
    EXPECT_EQ(services.names(u"Library/Logs"_s), logsBefore);
    EXPECT_TRUE(services.test.recycler.recycled.isEmpty());
    EXPECT_TRUE(services.test.recycler.removed.isEmpty());
}

TEST_F(CleaningRunTest, goesOnAfterAnItemThatCannotBeMoved)
{
    services.refused = {services.inHome(u"Library/Logs/folder"_s), services.inHome(u".Trash/folder"_s)};
    services.tickWhole(u"logs"_s);
    services.tickWhole(u"trash"_s);
    services.clean();
    EXPECT_EQ(services.names(u"Library/Logs"_s), QStringList(u"folder"_s));
    EXPECT_EQ(services.names(u"Library/Logs/folder"_s), QStringList(u"two.log"_s));
    EXPECT_TRUE(services.names(u".Trash"_s).contains(u"folder"_s));
    EXPECT_FALSE(services.names(u".Trash"_s).contains(u"old 1"_s));
}

TEST_F(CleaningRunTest, goesOnAfterARemovalThatFails)
{
    services.test.recycler.remover = [](const QStringList &, const QString &) {
        throw Error{u"Platform"_s, 1, u"no"_s};
    };
    services.tickWhole(u"trash"_s);
    services.tickWhole(u"logs"_s);
    services.clean();
    EXPECT_EQ(services.names(u"Library/Logs"_s), QStringList());
    EXPECT_FALSE(services.cleanup->isCleaning());
}

TEST_F(CleaningRunTest, takesAPlaceThatHasVanishedForDone)
{
    services.tickWhole(u"logs"_s);
    services.tickWhole(u"empty-folders"_s);
    files::removeTree(services.inHome(u"Library/Logs"_s));
    files::removeTree(services.inHome(u"Desktop/empty 1"_s));
    services.clean();
    EXPECT_EQ(services.names(u".Trash"_s), (QStringList{u"empty 2"_s} + trashBefore));
}

TEST_F(CleaningRunTest, asksByNameSizeAndWhatBecomesOfIt)
{
    services.tickWhole(u"logs"_s);
    EXPECT_EQ(
        services.cleanup->question(),
        u"Cleaning:\n  • Log Files\n\nTotal: 100 KB\n\nFiles will be moved to Trash. You can restore them if needed."_s);
    services.tickWhole(u"trash"_s);
    EXPECT_EQ(
        services.cleanup->question(),
        u"Cleaning:\n  • Log Files\n  • Trash\n\nTotal: 200 KB\n\n⚠️ Trash items will be permanently deleted and cannot be recovered."_s);
}

TEST_F(CleaningRunTest, isRecordedByWhatWasSelected)
{
    services.tickWhole(u"logs"_s);
    services.refused = {services.inHome(u"Library/Logs/one.log"_s)};
    services.clean();
    ASSERT_EQ(services.madeHistory->entries().size(), 1U);
    const HistoryEntry &entry = services.madeHistory->entries().front();
    EXPECT_EQ(entry.kind, HistoryEntry::Kind::cleanup);
    EXPECT_EQ(entry.title, u"Cleaned 1 category"_s);
    EXPECT_EQ(entry.detail, u"Log Files"_s);
    EXPECT_EQ(entry.bytesAffected, 102400) << "what was selected, whatever was freed";
    EXPECT_TRUE(entry.success);
    EXPECT_TRUE(entry.paths.isEmpty());
    EXPECT_EQ(entry.timestamp, services.test.clock.now());
    EXPECT_FALSE(entry.id.isNull());
    EXPECT_TRUE(
        services.test.systemLog.lines.contains(u"info Cleanup: Smart Cleanup: 1 categories, 102400 bytes"_s));
}

TEST_F(CleaningRunTest, isRecordedWithAllItsCategories)
{
    services.tickWhole(u"trash"_s);
    services.tickWhole(u"logs"_s);
    services.clean();
    const HistoryEntry &entry = services.madeHistory->entries().front();
    EXPECT_EQ(entry.title, u"Cleaned 2 categories"_s);
    EXPECT_EQ(entry.detail, u"Log Files, Trash"_s) << "in the order of the list";
    EXPECT_EQ(entry.bytesAffected, 204800);
}

TEST_F(CleaningRunTest, isRecordedAsTheCleaningOfDownloadsThatItLeftAlone)
{
    services.tickWhole(u"old-downloads"_s);
    services.clean();
    EXPECT_EQ(services.madeHistory->entries().front().title, u"Cleaned 1 category"_s);
    EXPECT_EQ(services.madeHistory->entries().front().detail, u"Old Downloads"_s);
}

TEST_F(CleaningRunTest, isRecordedWithoutAnyCategoryToo)
{
    services.clean();
    EXPECT_EQ(services.madeHistory->entries().front().title, u"Cleaned 0 categories"_s);
    EXPECT_EQ(services.madeHistory->entries().front().bytesAffected, 0);
    EXPECT_TRUE(
        services.test.systemLog.lines.contains(u"info Cleanup: Smart Cleanup: 0 categories, 0 bytes"_s));
}
