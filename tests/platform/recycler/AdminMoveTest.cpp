#include "base/Files.h"
#include "base/Paths.h"
#include "DesktopTrash.h"
#include "NamedBytes.h"
#include "RecyclerTest.h"
#include "support/TempHome.h"

using namespace Qt::StringLiterals;

namespace {

/// The administrator's move with a script in the place of the tool that asks for the password. Its arguments
/// are the program to run and that one's own: mv, -n, -T, --, source, target.
class AdminMoveTest : public RecyclerTest
{
protected:
    std::optional<Recycler::AdminFailure> move(const QString &path, const QByteArray &tool)
    {
        LinuxRecycler recycler(temp_.script(u"pkexec"_s, tool), u"/bin/mv"_s, log_);
        return recycler.moveToTrashAsAdministrator(path);
    }

    /// Expects that nothing has changed: the item is where it was, and the Trash knows nothing of it.
    static void expectUntouched(const QString &path)
    {
        EXPECT_EQ(traits(path).content, "content");
        EXPECT_EQ(names(TrashHome::trash() + u"/info"_s), QStringList());
        EXPECT_EQ(names(TrashHome::trash() + u"/files"_s), QStringList());
    }

    TempHome temp_;
};

class AdminMoveNameTest : public AdminMoveTest, public ::testing::WithParamInterface<NamedBytes>
{
};

} // namespace

TEST_P(AdminMoveNameTest, comesBackWithContentTimesAndPermissions)
{
    const QString path = makeFile(u"folder/"_s + paths::fromBytes(GetParam().bytes));
    age(path, 0640);
    const Traits before = traits(path);
    EXPECT_FALSE(move(path, "exec \"$@\"\n"));
    EXPECT_FALSE(isThere(path));
    EXPECT_TRUE(desktoptrash::restoreOnlyOne());
    ASSERT_TRUE(isThere(path));
    EXPECT_EQ(traits(path), before);
}

INSTANTIATE_TEST_SUITE_P(
    Names, AdminMoveNameTest,
    ::testing::Values(NamedBytes{"plain", "plain.txt"}, NamedBytes{"anOption", "-n"},
                      NamedBytes{"umlautsAndPercentSigns", "100% \xC3\xBC"},
                      NamedBytes{"newline", "two\nlines"}, NamedBytes{"notUtf8", "\xFF\xFE"},
                      NamedBytes{"shellSigns", "a\"b'c$(id)\\"}, NamedBytes{"longest", QByteArray(255, 'a')},
                      NamedBytes{"longestUmlauts", QByteArray("x\xC3\xBC").repeated(85)}));

TEST_F(AdminMoveTest, runsOneCommandWithArgumentsAndNoShell)
{
    const QString path = makeFile(u"it's a \"file\".txt"_s);
    EXPECT_FALSE(move(path, "printf '%s\\0' \"$@\" >> \"$HOME/arguments\"\nexec \"$@\"\n"));
    const QString target = TrashHome::trash() + u"/files/it's a \"file\".txt"_s;
    const QByteArrayList expected{"/bin/mv", "-n", "-T", "--", paths::toBytes(path), paths::toBytes(target),
                                  ""};
    EXPECT_EQ(traits(at(u"arguments"_s)).content.split('\0'), expected);
}

TEST_F(AdminMoveTest, writesTheNoteBeforeTheMove)
{
    const QString path = makeFile(u"file"_s);
    EXPECT_FALSE(
        move(path, "cp \"$HOME/.local/share/Trash/info/file.trashinfo\" \"$HOME/seen\"\nexec \"$@\"\n"));
    EXPECT_EQ(traits(at(u"seen"_s)).content, traits(TrashHome::trash() + u"/info/file.trashinfo"_s).content);
    EXPECT_TRUE(
        traits(at(u"seen"_s)).content.startsWith("[Trash Info]\nPath=" + paths::toBytes(path) + "\n"));
}

TEST_F(AdminMoveTest, takesANameThatIsFree)
{
    expectRecycled(makeFile(u"file.txt"_s, "first"));
    makeFile(u".local/share/Trash/files/file.2.txt"_s, "orphan");
    makeFile(u".local/share/Trash/info/file.3.txt.trashinfo"_s, "reserved");
    const QString path = makeFile(u"other/file.txt"_s, "mine");
    EXPECT_FALSE(move(path, "exec \"$@\"\n"));
    EXPECT_EQ(traits(TrashHome::trash() + u"/files/file.txt"_s).content, "first");
    EXPECT_EQ(traits(TrashHome::trash() + u"/files/file.2.txt"_s).content, "orphan");
    EXPECT_EQ(traits(TrashHome::trash() + u"/files/file.4.txt"_s).content, "mine");
    EXPECT_EQ(traits(TrashHome::trash() + u"/info/file.3.txt.trashinfo"_s).content, "reserved");
    EXPECT_TRUE(desktoptrash::restorePath(path));
}

TEST_F(AdminMoveTest, takesAFolderWithAllInIt)
{
    const QString inner = makeFile(u"tree/a/b"_s);
    EXPECT_FALSE(move(at(u"tree"_s), "exec \"$@\"\n"));
    EXPECT_FALSE(isThere(at(u"tree"_s)));
    EXPECT_TRUE(desktoptrash::restoreOnlyOne());
    EXPECT_TRUE(isThere(inner));
}

TEST_F(AdminMoveTest, takesALinkAndNeverWhatItLeadsTo)
{
    const QString file = makeFile(u"kept/file"_s);
    const QString link = makeLink(u"link"_s, at(u"kept"_s));
    EXPECT_FALSE(move(link + u'/', "exec \"$@\"\n"));
    EXPECT_FALSE(isThere(link));
    EXPECT_TRUE(isThere(file));
    EXPECT_EQ(traits(TrashHome::trash() + u"/files/link"_s).content, paths::toBytes(at(u"kept"_s)));
}

TEST_F(AdminMoveTest, tellsACancelApart)
{
    const QString path = makeFile(u"file"_s);
    const auto failure =
        move(path, "echo 'Error executing command as another user: Request dismissed' >&2\nexit 126\n");
    ASSERT_TRUE(failure);
    EXPECT_TRUE(failure->wasConstructed);
    EXPECT_EQ(failure->number, Recycler::cancelled);
    expectUntouched(path);
}

TEST_F(AdminMoveTest, givesTheToolsCodeAndWords)
{
    const QString path = makeFile(u"file"_s);
    for (const int code : {1, 2, 125, 127, 255}) {
        const auto failure =
            move(path, "echo out\nprintf '\\n  Not \\377 authorized\\nat all \\n\\n' >&2\nexit "
                           + QByteArray::number(code) + "\n");
        ASSERT_TRUE(failure);
        EXPECT_TRUE(failure->wasConstructed);
        EXPECT_EQ(failure->number, code);
        EXPECT_EQ(failure->message, u"Not \uFFFD authorized\nat all"_s);
    }
    expectUntouched(path);
}

TEST_F(AdminMoveTest, hasNoMessageWhenTheToolSaysNothing)
{
    const QString path = makeFile(u"file"_s);
    const auto failure = move(path, "echo ' ' >&2\nexit 1\n");
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->number, 1);
    EXPECT_EQ(failure->message, std::nullopt);
    expectUntouched(path);
}

TEST_F(AdminMoveTest, boundsTheMessageOfAToolThatComplainsAtLength)
{
    const QString path = makeFile(u"file"_s);
    const auto failure = move(path, "head -c 1000000 /dev/zero | tr '\\0' x >&2\nexit 3\n");
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->number, 3);
    EXPECT_EQ(failure->message, QString(1000, u'x'));
}

TEST_F(AdminMoveTest, hasNoNumberWhenASignalEndsTheTool)
{
    const QString path = makeFile(u"file"_s);
    const auto failure = move(path, "kill -KILL $$\n");
    ASSERT_TRUE(failure);
    EXPECT_TRUE(failure->wasConstructed);
    EXPECT_EQ(failure->number, std::nullopt);
    EXPECT_EQ(failure->message, std::nullopt);
    expectUntouched(path);
}

TEST_F(AdminMoveTest, saysWhenTheToolIsNotInstalled)
{
    const QString path = makeFile(u"file"_s);
    LinuxRecycler recycler(temp_.at(u"missing"_s), u"/bin/mv"_s, log_);
    const auto failure = recycler.moveToTrashAsAdministrator(path);
    ASSERT_TRUE(failure);
    EXPECT_TRUE(failure->wasConstructed);
    EXPECT_EQ(failure->number, std::nullopt);
    EXPECT_EQ(failure->message, u"The administrator's tool pkexec is not installed."_s);
    expectUntouched(path);
}

TEST_F(AdminMoveTest, saysWhenTheToolCannotBeStarted)
{
    const QString path = makeFile(u"file"_s);
    LinuxRecycler recycler(temp_.file(u"no program"_s), u"/bin/mv"_s, log_);
    const auto failure = recycler.moveToTrashAsAdministrator(path);
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->message, u"The administrator's tool pkexec can't be started: Permission denied"_s);
    expectUntouched(path);
}

TEST_F(AdminMoveTest, neverReplacesOrEntersWhatHasComeToLieInTheWay)
{
    const QString path = makeFile(u"file"_s);
    move(path, "echo stranger > \"$6\"\nexec \"$@\"\n"); // success or failure, by the age of mv
    EXPECT_EQ(traits(path).content, "content");
    EXPECT_EQ(traits(TrashHome::trash() + u"/files/file"_s).content, "stranger\n");
    const QString folder = makeFolder(u"folder"_s);
    move(folder, "mkdir \"$6\"\nexec \"$@\"\n");
    EXPECT_TRUE(isThere(folder));
    EXPECT_EQ(names(TrashHome::trash() + u"/files/folder"_s), QStringList());
}

TEST_F(AdminMoveTest, givesTheNameBackWhenTheMoveWasSkipped)
{
    const QString path = makeFile(u"file"_s);
    EXPECT_FALSE(move(path, "echo stranger > \"$6\"\nexit 0\n"))
        << "the caller sees that the item is still there";
    EXPECT_EQ(names(TrashHome::trash() + u"/info"_s), QStringList());
    EXPECT_FALSE(move(path, "exit 0\n"));
    EXPECT_EQ(names(TrashHome::trash() + u"/info"_s), QStringList());
    EXPECT_EQ(traits(path).content, "content");
}

TEST_F(AdminMoveTest, keepsTheNoteOfACopyThatAFailedMoveLeaves)
{
    const QString path = makeFolder(u"tree"_s);
    EXPECT_TRUE(move(path, "cp -R \"$5\" \"$6\"\nexit 1\n"));
    EXPECT_EQ(names(TrashHome::trash() + u"/info"_s), QStringList(u"tree.trashinfo"_s));
}

TEST_F(AdminMoveTest, keepsTheNoteWhereAnotherItemTakesThePlaceThatWasLeft)
{
    const QString path = makeFile(u"file"_s);
    EXPECT_FALSE(move(path, "\"$@\" && echo new > \"$5\"\n"));
    EXPECT_EQ(traits(TrashHome::trash() + u"/files/file"_s).content, "content");
    EXPECT_EQ(names(TrashHome::trash() + u"/info"_s), QStringList(u"file.trashinfo"_s));
}

TEST_F(AdminMoveTest, runsNothingWhenTheTrashCannotBeUsed)
{
    makeFile(u".local/share"_s);
    const QString path = makeFile(u"file"_s);
    const auto failure = move(path, "touch \"$HOME/ran\"\n");
    ASSERT_TRUE(failure);
    EXPECT_TRUE(failure->wasConstructed);
    EXPECT_EQ(failure->number, std::nullopt);
    EXPECT_EQ(failure->message, u"“file” can't be moved to the Trash: Not a directory"_s);
    EXPECT_FALSE(isThere(at(u"ran"_s)));
}

TEST_F(AdminMoveTest, runsNothingWhenTheTrashIsALink)
{
    makeLink(u".local/share/Trash"_s, makeFolder(u"elsewhere"_s));
    const auto failure = move(makeFile(u"file"_s), "touch \"$HOME/ran\"\n");
    ASSERT_TRUE(failure);
    EXPECT_EQ(
        failure->message,
        u"“file” can't be moved to the Trash because the Trash is a link, and the desktop shows nothing behind it."_s);
    EXPECT_EQ(names(at(u"elsewhere"_s)), QStringList());
    EXPECT_FALSE(isThere(at(u"ran"_s)));
}

TEST_F(AdminMoveTest, runsNothingForAnItemThatIsNotThere)
{
    const auto failure = move(at(u"gone"_s), "touch \"$HOME/ran\"\n");
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->message, u"“gone” can't be moved to the Trash: No such file or directory"_s);
    EXPECT_FALSE(isThere(at(u"ran"_s)));
    EXPECT_TRUE(move(u"file"_s, "touch \"$HOME/ran\"\n")) << "a relative path";
    EXPECT_FALSE(isThere(at(u"ran"_s)));
}
