#include "base/Error.h"
#include "base/Files.h"
#include "base/Paths.h"
#include "filesystem/FileSystemService.h"
#include "support/TestPlatform.h"

#include <cerrno>

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

struct FileOperationsTest : testing::Test
{
    TestPlatform test;
    FileSystemService service{test.platform, test.probes};

    QByteArray content(const QString &path) const { return files::readPrefix(path, 1000).value_or("(none)"); }

    static int codeOf(const std::function<void()> &operation)
    {
        try {
            operation();
        } catch (const Error &error) {
            EXPECT_EQ(error.domain, errors::systemDomain);
            EXPECT_FALSE(error.description.isEmpty());
            return error.code;
        }
        return 0;
    }
};

} // namespace

TEST_F(FileOperationsTest, renameGivesAnotherNameInTheSameFolder)
{
    const QString path = test.temp.file("folder/old", "content");
    service.renameItem(path, "new");
    EXPECT_FALSE(files::exists(path));
    EXPECT_EQ(content(test.temp.at("folder/new")), "content");
}

TEST_F(FileOperationsTest, renameNeverReplacesAnotherEntry)
{
    const QString path = test.temp.file("folder/old", "mine");
    const QString taken = test.temp.file("folder/taken", "theirs");
    EXPECT_EQ(codeOf([&] { service.renameItem(path, "taken"); }), EEXIST);
    EXPECT_EQ(content(path), "mine");
    EXPECT_EQ(content(taken), "theirs");
}

TEST_F(FileOperationsTest, renameOfAMissingEntryPassesTheSystemsErrorOn)
{
    EXPECT_EQ(codeOf([&] { service.renameItem(test.temp.at("missing"), "new"); }), ENOENT);
}

TEST_F(FileOperationsTest, renameToAHostileNameKeepsItsBytes)
{
    const QString name = paths::fromBytes("two\nlines\xff");
    service.renameItem(test.temp.file("folder/old", "content"), name);
    EXPECT_EQ(files::list(test.temp.at("folder")), std::vector<QString>{name});
}

TEST_F(FileOperationsTest, createFolderMakesAnEmptyFolder)
{
    service.createFolder(test.home, "new folder");
    EXPECT_TRUE(files::isDirectory(paths::join(test.home, "new folder")));
    EXPECT_EQ(files::list(paths::join(test.home, "new folder")), std::vector<QString>());
}

TEST_F(FileOperationsTest, createFolderMakesNoFolderAboveItsOwn)
{
    EXPECT_EQ(codeOf([&] { service.createFolder(test.temp.at("missing"), "new"); }), ENOENT);
    EXPECT_FALSE(files::exists(test.temp.at("missing")));
}

TEST_F(FileOperationsTest, createFolderRefusesATakenName)
{
    test.temp.file("home/taken", "content");
    EXPECT_EQ(codeOf([&] { service.createFolder(test.home, "taken"); }), EEXIST);
    EXPECT_EQ(content(test.temp.at("home/taken")), "content");
}

TEST_F(FileOperationsTest, textPrefixIsNoLongerThanAskedFor)
{
    const QString path = test.temp.file("text", "0123456789");
    EXPECT_EQ(service.readTextPrefix(path, 4), "0123");
    EXPECT_EQ(service.readTextPrefix(path, 100), "0123456789");
    EXPECT_EQ(service.readTextPrefix(path, 0), "");
}

TEST_F(FileOperationsTest, textPrefixOfAnEmptyFileIsAnEmptyText)
{
    const auto text = service.readTextPrefix(test.temp.file("empty"), 10);
    ASSERT_TRUE(text);
    EXPECT_EQ(*text, "");
}

TEST_F(FileOperationsTest, textPrefixOfABinaryFileIsNone)
{
    EXPECT_FALSE(
        service.readTextPrefix(test.temp.file("binary", QByteArray("\x7f\x45\x4c\x46\xc3\x28\xff", 7)), 100));
}

TEST_F(FileOperationsTest, textPrefixCutInsideACharacterIsNone)
{
    const QString path = test.temp.file("text", "ab\xc3\xbc"); // "abü"
    EXPECT_FALSE(service.readTextPrefix(path, 3));
    EXPECT_EQ(service.readTextPrefix(path, 4), "abü");
}

TEST_F(FileOperationsTest, textPrefixOfWhatCannotBeOpenedIsNone)
{
    EXPECT_FALSE(service.readTextPrefix(test.temp.at("missing"), 10));
    EXPECT_FALSE(service.readTextPrefix(test.temp.folder("folder"), 10));
}

TEST_F(FileOperationsTest, textPrefixOfAPipeIsNoneAndDoesNotWaitForAWriter)
{
    const QString path = test.temp.at("pipe");
    ASSERT_EQ(mkfifo(paths::toBytes(path).constData(), 0600), 0);
    EXPECT_FALSE(service.readTextPrefix(path, 10));
}

TEST_F(FileOperationsTest, openInTerminalExpandsALeadingTilde)
{
    service.openInTerminal("~/Documents");
    service.openInTerminal("/a/~/b");
    EXPECT_EQ(test.workspace.calls, QStringList({"terminal " + test.home + "/Documents", "terminal /a/~/b"}));
}

TEST_F(FileOperationsTest, revealHandsThePathToTheDesktop)
{
    service.revealInFinder("/a/b c");
    EXPECT_EQ(test.workspace.calls, QStringList({"reveal /a/b c"}));
}
