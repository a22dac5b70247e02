#include "base/Files.h"
#include "base/Paths.h"
#include "filesystem/InjectedFaults.h"
#include "LoopVolume.h"
#include "platform/linux/TrashRemoval.h"
#include "RecyclerTest.h"
#include "support/OrdinaryUser.h"
#include "support/TempHome.h"
#include "ToolRun.h"

#include <cerrno>
#include <filesystem>
#include <thread>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/mount.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

const QString itemsBelowHome = u".local/share/Trash/files"_s;
const QString notesBelowHome = u".local/share/Trash/info"_s;

int failureOf(const QStringList &items, const QString &trash)
{
    try {
        trashremoval::remove(items, trash);
        return 0;
    } catch (const Error &error) {
        return error.code;
    }
}

/// A Trash that others meddle with, or that holds what can't go.
class EmptyingGuardsTest : public RecyclerTest
{
protected:
    static QString items() { return at(itemsBelowHome); }
    static QString notes() { return at(notesBelowHome); }
    static QString item(const QString &name) { return paths::join(items(), name); }
    static QString noteOf(const QString &name) { return paths::join(notes(), name + u".trashinfo"_s); }

    /// An item with its note, which is as old as `hours`.
    static QString trash(const QString &name, int hours = 0)
    {
        makeNote(name, hours);
        return makeFile(itemsBelowHome + u'/' + name);
    }

    static void makeNote(const QString &name, int hours = 0)
    {
        const std::filesystem::path note =
            paths::toBytes(makeFile(notesBelowHome + u'/' + name + u".trashinfo"_s, "[Trash Info]\n"))
                .toStdString();
        std::filesystem::last_write_time(note,
                                         std::filesystem::last_write_time(note) - std::chrono::hours(hours));
    }

    /// Removes everything that lies there, and does `happening` as it comes to one item, right before that is removed.
    static int removeAll(const QString &trigger, const std::function<void()> &happening)
    {
        QStringList all;
        for (const QString &name : names(items()))
            all << item(name);
        return remove(all, trigger, happening);
    }

    static int remove(const QStringList &all, const QString &trigger, const std::function<void()> &happening)
    {
        const InjectedFaults faults([&](files::Operation operation, const QString &path) {
            if (operation == files::Operation::remove && path == trigger)
                happening();
            return 0;
        });
        return failureOf(all, items());
    }

    static void run(const QStringList &command)
    {
        const ToolRun tool = runTool(command);
        EXPECT_EQ(tool.exitCode, 0) << tool.errors.constData();
    }
};

} // namespace

// Notes.

TEST_F(EmptyingGuardsTest, takesEachNoteRightAfterItsItem)
{
    for (const QString &name : {u"a"_s, u"b"_s, u"c"_s})
        trash(name);
    EXPECT_EQ(removeAll(item(u"b"_s),
                        [] {
                            EXPECT_EQ(names(items()), (QStringList{u"b"_s, u"c"_s}));
                            EXPECT_EQ(names(notes()), (QStringList{u"b.trashinfo"_s, u"c.trashinfo"_s}));
                        }),
              0);
    EXPECT_EQ(names(notes()), QStringList());
}

TEST_F(EmptyingGuardsTest, takesAnOldNoteWhoseItemHasGone)
{
    trash(u"stays"_s);
    makeNote(u"gone"_s, 1);
    EXPECT_EQ(failureOf({item(u"gone"_s)}, items()), ENOENT);
    EXPECT_EQ(names(notes()), QStringList(u"stays.trashinfo"_s));
}

TEST_F(EmptyingGuardsTest, leavesTheNoteOfAnItemThatIsOnItsWayMeanwhile)
{
    trash(u"a"_s, 2);
    trash(u"b"_s, 2);
    trash(u"stays"_s, 2);
    // Somebody takes an item back and moves another one of its name to the Trash, whose note comes first.
    EXPECT_EQ(remove({item(u"a"_s), item(u"b"_s)}, item(u"a"_s),
                     [] {
                         files::move(item(u"b"_s), at(u"taken back"_s));
                         unlink(paths::toBytes(noteOf(u"b"_s)).constData());
                         makeNote(u"b"_s);
                     }),
              ENOENT);
    EXPECT_EQ(names(notes()), (QStringList{u"b.trashinfo"_s, u"stays.trashinfo"_s}));
}

TEST_F(EmptyingGuardsTest, leavesNothingWhereTwoProgramsEmptyOneTrash)
{
    QStringList all;
    for (int number = 0; number < 20; ++number) {
        const QString name = u"folder %1"_s.arg(number);
        for (int inner = 0; inner < 10; ++inner)
            makeFile(itemsBelowHome + u"/%1/deep %2/deeper/file"_s.arg(name).arg(inner));
        makeNote(name, 1);
        all << item(name);
    }
    std::thread other([&all] { failureOf(all, items()); });
    failureOf(all, items());
    other.join();
    EXPECT_EQ(names(items()), QStringList());
    EXPECT_EQ(names(notes()), QStringList());
}

TEST_F(EmptyingGuardsTest, leavesANoteThatIsNotTheOneThatItsItemHad)
{
    trash(u"a"_s, 2);
    EXPECT_EQ(removeAll(item(u"a"_s),
                        [] {
                            files::move(noteOf(u"a"_s), at(u"old note"_s));
                            makeNote(u"a"_s);
                        }),
              0);
    EXPECT_EQ(names(notes()), QStringList(u"a.trashinfo"_s));
}

TEST_F(EmptyingGuardsTest, takesNothingWhereThereIsNothingToTake)
{
    makeFolder(itemsBelowHome);
    makeNote(u"without an item"_s, 2);
    const QString sizes = makeFile(u".local/share/Trash/directorysizes"_s, "4096 1700000000000 gone\n");
    EXPECT_EQ(failureOf({}, items()), 0);
    EXPECT_EQ(names(notes()).size(), 1);
    EXPECT_TRUE(isThere(sizes));
}

TEST(EmptyingGuards, leaveTheNotesOfItemsThatCannotBeReached)
{
    EXPECT_TRUE(holdsForOrdinaryUser([] {
        const TempHome temp;
        const QByteArray sizes = "4096 1700000000000 a\n4096 1700000000000 b\n";
        QStringList all;
        for (const QString &name : {u"a"_s, u"b"_s}) {
            all << temp.folder(u"Trash/files/"_s + name);
            temp.file(u"Trash/info/"_s + name + u".trashinfo"_s);
        }
        const QString file = temp.file(u"Trash/directorysizes"_s, sizes);
        temp.setMode(u"Trash/files"_s, 0400); // can be listed, yet nothing in it can be asked
        EXPECT_EQ(failureOf(all, temp.at(u"Trash/files"_s)), EACCES);
        temp.setMode(u"Trash/files"_s, 0700);
        EXPECT_EQ(files::list(temp.at(u"Trash/files"_s))->size(), 2U);
        EXPECT_EQ(files::list(temp.at(u"Trash/info"_s))->size(), 2U);
        EXPECT_EQ(files::readAll(file, 1000), sizes);
    }));
}

TEST(EmptyingGuards, leaveItemsWhoseNotesCannotBeReached)
{
    EXPECT_TRUE(holdsForOrdinaryUser([] {
        const TempHome temp;
        const QString item = temp.file(u"Trash/files/item"_s);
        temp.file(u"Trash/info/item.trashinfo"_s);
        temp.setMode(u"Trash/info"_s, 0);
        EXPECT_EQ(failureOf({item}, temp.at(u"Trash/files"_s)), EACCES);
        temp.setMode(u"Trash/info"_s, 0700);
        EXPECT_TRUE(files::exists(item));
        EXPECT_EQ(files::list(temp.at(u"Trash/info"_s))->size(), 1U);
    }));
}

// Links.

TEST_F(EmptyingGuardsTest, leavesATrashThatIsALinkAlone)
{
    const QString kept = makeFile(u"elsewhere/files/item"_s);
    const QString note = makeFile(u"elsewhere/info/item.trashinfo"_s);
    makeLink(u".local/share/Trash"_s, at(u"elsewhere"_s));
    EXPECT_EQ(failureOf({item(u"item"_s)}, items()), ENOTDIR);
    EXPECT_TRUE(isThere(kept));
    EXPECT_TRUE(isThere(note));
}

TEST_F(EmptyingGuardsTest, stopsWhereTheTrashBecomesALinkOnTheWay)
{
    trash(u"a"_s);
    trash(u"b"_s);
    const QString kept = makeFile(u"kept/files/b"_s);
    const QString note = makeFile(u"kept/info/b.trashinfo"_s);
    EXPECT_EQ(removeAll(item(u"a"_s),
                        [] {
                            files::move(at(u".local/share/Trash"_s), at(u"moved"_s));
                            makeLink(u".local/share/Trash"_s, at(u"kept"_s));
                        }),
              ENOTDIR);
    EXPECT_TRUE(isThere(kept));
    EXPECT_TRUE(isThere(note));
    EXPECT_EQ(names(at(u"moved/files"_s)), QStringList(u"b"_s));
    EXPECT_EQ(names(at(u"moved/info"_s)), QStringList(u"b.trashinfo"_s));
}

TEST_F(EmptyingGuardsTest, leavesTheSizesOfAFolderThatHasTakenTheTrashsPlace)
{
    const QByteArray content = "4096 1700000000000 mine\n4096 1700000000000 stays\n";
    const QString kept = makeFile(u"kept/directorysizes"_s, content);
    trash(u"a"_s);
    trash(u"stays"_s);
    const QString sizes = makeFile(u".local/share/Trash/directorysizes"_s, content);
    const InjectedFaults faults([&](files::Operation operation, const QString &path) {
        if (operation == files::Operation::open && path == sizes && !isThere(at(u"moved"_s))) {
            files::move(at(u".local/share/Trash"_s), at(u"moved"_s));
            makeLink(u".local/share/Trash"_s, at(u"kept"_s));
        }
        return 0;
    });
    EXPECT_EQ(failureOf({item(u"a"_s)}, items()), 0);
    EXPECT_TRUE(isThere(at(u"moved"_s)));
    EXPECT_EQ(files::readAll(kept, 1000), content);
}

TEST_F(EmptyingGuardsTest, followsNoLinkThatIsPutAboveAPickedFile)
{
    makeFile(itemsBelowHome + u"/folder/a"_s);
    makeFile(itemsBelowHome + u"/folder/b"_s);
    const QString kept = makeFile(u"kept/b"_s);
    EXPECT_EQ(remove({item(u"folder/a"_s), item(u"folder/b"_s)}, item(u"folder/a"_s),
                     [] {
                         files::move(item(u"folder"_s), at(u"moved"_s));
                         makeLink(itemsBelowHome + u"/folder"_s, at(u"kept"_s));
                     }),
              ENOTDIR);
    EXPECT_TRUE(isThere(kept));
    EXPECT_EQ(names(at(u"moved"_s)), QStringList(u"b"_s));
}

// What can't go, and what goes all the same.

TEST_F(EmptyingGuardsTest, leavesAVolumeThatIsMountedAtAnItem)
{
    trash(u"goes"_s);
    makeNote(u"mounted"_s);
    const LoopVolume volume(makeFolder(itemsBelowHome + u"/mounted"_s), 2);
    if (!volume.whyNot().isEmpty())
        GTEST_SKIP() << volume.whyNot().constData();
    const QString kept = makeFile(itemsBelowHome + u"/mounted/folder/kept"_s);
    EXPECT_EQ(failureOf({item(u"mounted"_s), item(u"goes"_s)}, items()), EBUSY);
    EXPECT_EQ(failureOf({item(u"mounted/folder"_s)}, items()), EXDEV);
    EXPECT_TRUE(isThere(kept));
    EXPECT_EQ(names(items()), QStringList(u"mounted"_s));
    EXPECT_EQ(names(notes()), QStringList(u"mounted.trashinfo"_s));
}

TEST_F(EmptyingGuardsTest, leavesAPartOfTheSameVolumeThatIsMountedInTheTrash)
{
    const QString kept = makeFile(u"kept/file"_s);
    QStringList places{makeFolder(itemsBelowHome + u"/mounted"_s),
                       makeFolder(itemsBelowHome + u"/folder/deep/mounted"_s)};
    makeFile(itemsBelowHome + u"/folder/deep/goes"_s);
    for (const QString &place : places) {
        if (mount(paths::toBytes(at(u"kept"_s)).constData(), paths::toBytes(place).constData(), nullptr,
                  MS_BIND, nullptr)
            == -1)
            GTEST_SKIP() << "Nothing can be mounted here.";
    }
    EXPECT_EQ(failureOf({item(u"mounted"_s), item(u"folder"_s)}, items()), EBUSY);
    // Picked by themselves, below where something is mounted. The folder around that may have been moved to the Trash.
    EXPECT_EQ(failureOf({item(u"mounted/file"_s)}, items()), EXDEV);
    EXPECT_EQ(failureOf({item(u"folder/deep/mounted/file"_s)}, items()), EXDEV);
    for (const QString &place : places)
        EXPECT_EQ(umount2(paths::toBytes(place).constData(), MNT_DETACH), 0);
    EXPECT_TRUE(isThere(kept));
    EXPECT_EQ(names(item(u"folder/deep"_s)), QStringList(u"mounted"_s));
}

TEST_F(EmptyingGuardsTest, leavesWhatIsImmutableAndTakesTheRest)
{
    const QString file = trash(u"file"_s);
    const QString inner = makeFile(itemsBelowHome + u"/folder/inner"_s);
    makeFile(itemsBelowHome + u"/folder/goes"_s);
    const QString whole = makeFolder(itemsBelowHome + u"/whole"_s);
    makeFile(itemsBelowHome + u"/whole/stays"_s);
    makeNote(u"folder"_s);
    trash(u"goes"_s);
    if (runTool({u"chattr"_s, u"+i"_s, file, inner, whole}).exitCode != 0)
        GTEST_SKIP() << "Nothing can be made immutable here.";
    EXPECT_EQ(failureOf({item(u"file"_s), item(u"folder"_s), item(u"whole"_s), item(u"goes"_s)}, items()),
              EPERM);
    run({u"chattr"_s, u"-i"_s, file, inner, whole});
    EXPECT_EQ(names(items()), (QStringList{u"file"_s, u"folder"_s, u"whole"_s}));
    EXPECT_EQ(names(item(u"folder"_s)), QStringList(u"inner"_s));
    EXPECT_EQ(names(whole), QStringList(u"stays"_s));
    EXPECT_EQ(names(notes()), (QStringList{u"file.trashinfo"_s, u"folder.trashinfo"_s}));
}

TEST_F(EmptyingGuardsTest, takesAFileThatIsInUse)
{
    const int file = open(paths::toBytes(trash(u"file"_s)).constData(), O_RDWR | O_CLOEXEC);
    ASSERT_NE(file, -1);
    ASSERT_EQ(flock(file, LOCK_EX), 0);
    EXPECT_EQ(failureOf({item(u"file"_s)}, items()), 0);
    char content[7] = {};
    EXPECT_EQ(read(file, content, sizeof content), 7) << "who has it open has it still";
    close(file);
    EXPECT_EQ(names(items()), QStringList());
    EXPECT_EQ(names(notes()), QStringList());
}

TEST(EmptyingGuards, openUpAReadOnlyFolderOfTheUsersOwn)
{
    EXPECT_TRUE(holdsForOrdinaryUser([] {
        const TempHome temp;
        temp.file(u"Trash/files/item/read-only/file"_s);
        temp.file(u"Trash/info/item.trashinfo"_s);
        temp.setMode(u"Trash/files/item/read-only"_s, 0500);
        temp.setMode(u"Trash/files/item"_s, 0500);
        EXPECT_EQ(failureOf({temp.at(u"Trash/files/item"_s)}, temp.at(u"Trash/files"_s)), 0);
        EXPECT_TRUE(files::list(temp.at(u"Trash/files"_s))->empty());
        EXPECT_TRUE(files::list(temp.at(u"Trash/info"_s))->empty());
    }));
}
