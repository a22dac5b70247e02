#include "base/Paths.h"
#include "filesystem/FileSystemService.h"
#include "filesystem/InjectedFaults.h"
#include "support/TestPlatform.h"

#include <QSet>

#include <cerrno>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

struct ListDirectoryTest : testing::Test
{
    TestPlatform test;
    FileSystemService service{test.platform, test.probes};

    QStringList names(const QString &folder, bool includeHidden) const
    {
        QStringList names;
        for (const FileItem &item : service.listDirectory(folder, includeHidden))
            names << item.name;
        return names;
    }

    QStringList sortedNames(const QString &folder, bool includeHidden) const
    {
        QStringList all = names(folder, includeHidden);
        all.sort();
        return all;
    }
};

} // namespace

TEST_F(ListDirectoryTest, fillsEveryFieldOfAFile)
{
    const QString path = test.temp.file("folder/Notes.TXT", "12345");
    const timespec times[] = {{0, UTIME_OMIT}, {1'600'000'000, 123'456'789}};
    ASSERT_EQ(utimensat(AT_FDCWD, paths::toBytes(path).constData(), times, 0), 0);

    const auto items = service.listDirectory(test.temp.at("folder"), false);
    ASSERT_EQ(items.size(), 1U);
    const FileItem &item = items.front();
    EXPECT_FALSE(item.id.isNull());
    EXPECT_EQ(item.name, "Notes.TXT");
    EXPECT_EQ(item.path, path);
    EXPECT_EQ(item.size, 5);
    EXPECT_FALSE(item.isDirectory);
    EXPECT_EQ(item.modified, dates::fromUnix(1'600'000'000, 123'456'789));
    EXPECT_EQ(item.created, files::attributes(path)->created);
    EXPECT_EQ(item.ext, "txt");
    EXPECT_FALSE(item.isHidden);
}

TEST_F(ListDirectoryTest, keepsTheFileSystemsOrder)
{
    for (int i = 0; i < 50; ++i)
        test.temp.file(QStringLiteral("folder/%1").arg(i * 7919 % 50));
    const auto order = files::list(test.temp.at("folder")).value();
    EXPECT_EQ(names(test.temp.at("folder"), false), QStringList(order.begin(), order.end()));
}

TEST_F(ListDirectoryTest, leavesHiddenEntriesOutUnlessAskedFor)
{
    test.temp.file("folder/plain");
    test.temp.file("folder/.hidden");
    test.temp.folder("folder/.hidden folder");
    EXPECT_EQ(sortedNames(test.temp.at("folder"), false), QStringList({"plain"}));
    EXPECT_EQ(sortedNames(test.temp.at("folder"), true), QStringList({".hidden", ".hidden folder", "plain"}));
    for (const FileItem &item : service.listDirectory(test.temp.at("folder"), true))
        EXPECT_EQ(item.isHidden, item.name.startsWith(u'.')) << qPrintable(item.name);
}

TEST_F(ListDirectoryTest, givesOneLevelOnly)
{
    test.temp.file("folder/below/deep");
    const auto items = service.listDirectory(test.temp.at("folder"), true);
    ASSERT_EQ(items.size(), 1U);
    EXPECT_TRUE(items.front().isDirectory);
    EXPECT_EQ(items.front().name, "below");
}

TEST_F(ListDirectoryTest, linkToAFolderIsNoFolderAndHasItsOwnSize)
{
    const QString target = test.temp.folder("target");
    test.temp.link("folder/link", target);
    test.temp.link("folder/broken", "nowhere");
    auto items = service.listDirectory(test.temp.at("folder"), false);
    ASSERT_EQ(items.size(), 2U);
    std::sort(items.begin(), items.end(), [](const auto &a, const auto &b) { return a.name < b.name; });
    EXPECT_EQ(items[0].size, 7); // the length of "nowhere"
    EXPECT_FALSE(items[1].isDirectory);
    EXPECT_EQ(items[1].size, paths::toBytes(target).size());
}

TEST_F(ListDirectoryTest, isEmptyForAnUnreadableFolder)
{
    test.temp.file("folder/a");
    const InjectedFaults faults(files::Operation::list, test.temp.at("folder"));
    EXPECT_TRUE(service.listDirectory(test.temp.at("folder"), true).empty());
}

TEST_F(ListDirectoryTest, isEmptyForAFileAndForNothing)
{
    const QString file = test.temp.file("file");
    EXPECT_TRUE(service.listDirectory(file, true).empty());
    EXPECT_TRUE(service.listDirectory(test.temp.at("missing"), true).empty());
}

TEST_F(ListDirectoryTest, leavesOutAnEntryThatVanishes)
{
    test.temp.file("folder/stays");
    test.temp.file("folder/vanishes");
    const InjectedFaults faults([](files::Operation operation, const QString &path) {
        return operation == files::Operation::attributes && path.endsWith(u"/vanishes") ? ENOENT : 0;
    });
    EXPECT_EQ(names(test.temp.at("folder"), true), QStringList({"stays"}));
}

TEST_F(ListDirectoryTest, carriesHostileNamesThrough)
{
    const QSet<QString> hostile = {
        "two\nlines",
        "tab\tin",
        "quo\"te's",
        "back\\slash",
        "$(touch x)",
        "-rf",
        "%1 %2",
        " blanks ",
        "dot.",
        "zu\u0308",
        "zü",
        "😀",
        paths::fromBytes("raw\xff\xfe"),
        QString(250, u'n'),
    };
    for (const QString &name : hostile)
        test.temp.file("folder/" + name, "x");
    const QStringList listed = names(test.temp.at("folder"), false);
    EXPECT_EQ(QSet<QString>(listed.begin(), listed.end()), hostile);
    for (const FileItem &item : service.listDirectory(test.temp.at("folder"), false))
        EXPECT_EQ(service.makeFileItem(item.path)->size, 1) << qPrintable(item.name);
}

TEST_F(ListDirectoryTest, makesNoItemOfWhatCannotBeRead)
{
    EXPECT_FALSE(service.makeFileItem(test.temp.at("missing")));
    const QString path = test.temp.file("locked");
    const InjectedFaults faults(files::Operation::attributes, path);
    EXPECT_FALSE(service.makeFileItem(path));
}
