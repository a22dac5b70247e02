#include "base/Files.h"
#include "base/Paths.h"
#include "DesktopTrash.h"
#include "NamedBytes.h"
#include "RecyclerTest.h"

#include <cerrno>
#include <filesystem>

#include <fcntl.h>

using namespace Qt::StringLiterals;

namespace {

class RemoveForGoodTest : public RecyclerTest
{
protected:
    static QString items() { return TrashHome::trash() + u"/files"_s; }
    static QString notes() { return TrashHome::trash() + u"/info"_s; }
    static QString item(const QString &name) { return paths::join(items(), name); }

    /// The code of the error of a removal; 0 when there was none.
    int failureOf(const QStringList &paths)
    {
        try {
            recycler_.removeForGood(paths, items());
            return 0;
        } catch (const Error &error) {
            return error.code;
        }
    }

    /// A note in the Trash that is `hours` old.
    static QString makeNote(const QString &name, int hours)
    {
        const QString note =
            makeFile(u".local/share/Trash/info/"_s + name + u".trashinfo"_s, "[Trash Info]\n");
        const std::filesystem::path native = paths::toBytes(note).toStdString();
        std::filesystem::last_write_time(native, std::filesystem::last_write_time(native)
                                                     - std::chrono::hours(hours));
        return note;
    }
};

class RemoveForGoodNameTest : public RemoveForGoodTest, public ::testing::WithParamInterface<NamedBytes>
{
};

} // namespace

TEST_P(RemoveForGoodNameTest, takesTheItemAndItsNote)
{
    const QString path = makeFile(paths::fromBytes(GetParam().bytes));
    expectRecycled(path);
    expectRecycled(makeFile(u"stays"_s));
    QStringList doomed = names(items());
    ASSERT_TRUE(doomed.removeOne(u"stays"_s));
    ASSERT_EQ(doomed.size(), 1);
    EXPECT_EQ(failureOf({item(doomed.constFirst())}), 0);
    EXPECT_EQ(names(items()), QStringList(u"stays"_s));
    EXPECT_EQ(names(notes()), QStringList(u"stays.trashinfo"_s));
    EXPECT_EQ(desktoptrash::list().size(), 1);
    EXPECT_TRUE(desktoptrash::restorePath(at(u"stays"_s)));
}

INSTANTIATE_TEST_SUITE_P(
    RemoveForGoodTest, RemoveForGoodNameTest,
    ::testing::Values(NamedBytes{"plain", "plain.txt"}, NamedBytes{"percentSigns", "100% %41 %"},
                      NamedBytes{"newlines", "two\nlines\n"}, NamedBytes{"notUtf8", "bytes \xFF\xFE.\xC3"},
                      NamedBytes{"aNote", "name.trashinfo"}, NamedBytes{"longest", QByteArray(255, 'e')},
                      NamedBytes{"anOption", "-rf"}));

TEST_F(RemoveForGoodTest, takesAFolderAndLinksThemselves)
{
    const QString kept = makeFile(u"kept/file"_s);
    makeFile(u"folder/deep/file"_s);
    makeLink(u"folder/link"_s, at(u"kept"_s));
    expectRecycled(at(u"folder"_s));
    expectRecycled(makeLink(u"link"_s, at(u"kept"_s)));
    EXPECT_EQ(failureOf({item(u"folder"_s), item(u"link"_s)}), 0);
    EXPECT_EQ(names(items()), QStringList());
    EXPECT_EQ(names(notes()), QStringList());
    EXPECT_TRUE(isThere(kept));
    EXPECT_EQ(desktoptrash::list().size(), 0);
}

TEST_F(RemoveForGoodTest, takesNoNoteWithAFileInsideAnItem)
{
    // An item that looks like a Trash itself, with a note of the inner file's name both inside and outside.
    makeFile(u"project/files/name"_s);
    makeFile(u"project/files/stays"_s);
    makeFile(u"project/info/name.trashinfo"_s);
    expectRecycled(at(u"project"_s));
    expectRecycled(makeFile(u"name"_s));
    EXPECT_EQ(failureOf({item(u"project/files/name"_s)}), 0);
    EXPECT_EQ(names(item(u"project/files"_s)), QStringList(u"stays"_s));
    EXPECT_EQ(names(item(u"project/info"_s)), QStringList(u"name.trashinfo"_s));
    EXPECT_EQ(names(notes()), (QStringList{u"name.trashinfo"_s, u"project.trashinfo"_s}));
    EXPECT_EQ(desktoptrash::list().size(), 2);
}

TEST_F(RemoveForGoodTest, refusesWhatIsNotInTheTrash)
{
    const QString kept = makeFile(u"kept"_s);
    makeFolder(u".local/share/Trash/files/folder"_s);
    const QStringList wrong{kept,          items(),  items() + u'/', item(u"folder/../../../../../kept"_s),
                            item(u".."_s), QString()};
    for (const QString &path : wrong)
        EXPECT_EQ(failureOf({path}), EINVAL) << path.toStdString();
    EXPECT_TRUE(isThere(kept));
    EXPECT_TRUE(isThere(item(u"folder"_s)));
}

TEST_F(RemoveForGoodTest, goesOnAfterAnItemThatCannotBeRemovedAndLeavesItsNote)
{
    const QString stays = makeFolder(u"stays"_s);
    expectRecycled(stays);
    expectRecycled(makeFile(u"goes"_s));
    files::injectFaults([](files::Operation operation, const QString &path) {
        return operation == files::Operation::remove && path == item(u"stays"_s) ? EPERM : 0;
    });
    EXPECT_EQ(failureOf({item(u"missing"_s), item(u"stays"_s), item(u"goes"_s)}), ENOENT)
        << "the first one counts";
    files::injectFaults({});
    EXPECT_EQ(names(items()), QStringList(u"stays"_s));
    EXPECT_EQ(names(notes()), QStringList(u"stays.trashinfo"_s));
    EXPECT_TRUE(desktoptrash::restorePath(stays));
}

TEST_F(RemoveForGoodTest, forgetsTheSizesOfFoldersThatWent)
{
    expectRecycled(makeFolder(u"goes now"_s));
    expectRecycled(makeFolder(u"stays ü"_s));
    const QString file =
        makeFile(u".local/share/Trash/directorysizes"_s, "4096 1700000000000 goes%20now\n8192 1700000000000 "
                                                             + u"stays ü"_s.toUtf8().toPercentEncoding()
                                                             + "\n4096 1700000000000 went%20long%20ago\n");
    EXPECT_EQ(failureOf({item(u"goes now"_s)}), 0);
    EXPECT_EQ(files::readAll(file, 1000),
              "8192 1700000000000 " + u"stays ü"_s.toUtf8().toPercentEncoding() + "\n");
    EXPECT_EQ(failureOf({item(u"stays ü"_s)}), 0);
    EXPECT_FALSE(isThere(file));
}

TEST_F(RemoveForGoodTest, leavesNoOldNoteInAnEmptiedTrash)
{
    expectRecycled(makeFile(u"one"_s));
    expectRecycled(makeFile(u"two"_s));
    makeNote(u"without an item"_s, 2);
    makeNote(u"of an item that is on its way"_s, 0);
    EXPECT_EQ(failureOf({item(u"one"_s)}), 0);
    EXPECT_EQ(names(notes()).size(), 3) << "two is there still";
    EXPECT_EQ(failureOf({item(u"two"_s)}), 0);
    EXPECT_EQ(names(notes()), QStringList(u"of an item that is on its way.trashinfo"_s));
}

TEST_F(RemoveForGoodTest, touchesNoNotesBehindALink)
{
    makeFile(u".local/share/Trash/files/item"_s);
    const QString kept = makeFile(u"elsewhere/item.trashinfo"_s);
    makeLink(u".local/share/Trash/info"_s, at(u"elsewhere"_s));
    EXPECT_EQ(failureOf({item(u"item"_s)}), 0);
    EXPECT_EQ(names(items()), QStringList());
    EXPECT_TRUE(isThere(kept));
}

TEST_F(RemoveForGoodTest, removesNothingFromATrashThatIsALink)
{
    const QString kept = makeFile(u"elsewhere/item"_s);
    makeFolder(u".local/share/Trash"_s);
    makeLink(u".local/share/Trash/files"_s, at(u"elsewhere"_s));
    EXPECT_EQ(failureOf({item(u"item"_s)}), ENOTDIR);
    EXPECT_TRUE(isThere(kept));
}

TEST_F(RemoveForGoodTest, keepsToTheFolderItselfWhereTheTrashIsPlain)
{
    const QString kept = makeFile(u"info/item.trashinfo"_s);
    const QString trash = makeFolder(u".Trash"_s);
    recycler_.removeForGood({makeFile(u".Trash/item"_s)}, trash);
    EXPECT_EQ(names(trash), QStringList());
    EXPECT_TRUE(isThere(kept));
}

TEST_F(RemoveForGoodTest, emptiesATrashOfManyItems)
{
    constexpr int count = 5000;
    QStringList all;
    for (int number = 0; number < count; ++number) {
        const QString name = u"item %1"_s.arg(number);
        all << makeFile(u".local/share/Trash/files/"_s + name, {});
        makeFile(u".local/share/Trash/info/"_s + name + u".trashinfo"_s, {});
    }
    EXPECT_EQ(failureOf(all), 0);
    EXPECT_EQ(names(items()), QStringList());
    EXPECT_EQ(names(notes()), QStringList());
}
