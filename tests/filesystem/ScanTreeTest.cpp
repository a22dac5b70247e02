#include "base/Paths.h"
#include "filesystem/FileSystemService.h"
#include "filesystem/InjectedFaults.h"
#include "support/TestPlatform.h"

#include <QSet>

#include <cerrno>
#include <limits>
#include <stdexcept>

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

QByteArray bytesOf(int count)
{
    return QByteArray(count, 'x');
}

QStringList childNames(const FileEntry &entry)
{
    QStringList names;
    for (const FileEntry &child : *entry.children)
        names << child.name;
    return names;
}

const FileEntry &childNamed(const FileEntry &entry, QAnyStringView name)
{
    for (const FileEntry &child : *entry.children) {
        if (child.name == name)
            return child;
    }
    throw std::out_of_range(name.toString().toStdString());
}

constexpr qint64 probedSize = 1024;

/// A scan whose `du` writes down what it is asked for and says 1 KiB.
struct ScanTreeTest : testing::Test
{
    TestPlatform test;
    const TempHome &temp = test.temp;
    QString root = temp.folder("root");
    FileSystemService service{test.platform, test.probes};

    ScanTreeTest() { useDuThatSays("1"); }

    void useDuThatSays(const QByteArray &kibibytes)
    {
        test.useDu("printf '%s\\0' \"$2\" >>'" + paths::toBytes(temp.at("probed")) + "'\nprintf '" + kibibytes
                   + "\\t%s\\n' \"$2\"\n");
    }

    /// What was measured, in that order.
    QStringList probed() const
    {
        QStringList measured;
        for (const QByteArray &path :
             files::readPrefix(temp.at("probed"), 1 << 20).value_or(QByteArray()).split('\0'))
            measured << paths::fromBytes(path);
        return measured.first(measured.size() - 1);
    }

    FileEntry scan(int maxDepth) const { return service.scanTree(root, 0, maxDepth); }

    /// The names in the order in which the file system gives them.
    QStringList listed() const
    {
        const auto names = files::list(root).value();
        return {names.begin(), names.end()};
    }
};

} // namespace

TEST_F(ScanTreeTest, atTheDepthLimitGivesTheProbesSizeAndListsNothing)
{
    temp.file("root/a", bytesOf(5));
    const InjectedFaults faults([this](files::Operation, const QString &path) {
        if (path != temp.at("probed"))
            ADD_FAILURE() << "touched " << qPrintable(path);
        return 0;
    });
    const FileEntry entry = scan(0);
    EXPECT_EQ(entry.size, probedSize);
    EXPECT_FALSE(entry.children);
    EXPECT_EQ(probed(), QStringList({root}));
}

TEST_F(ScanTreeTest, beyondTheDepthLimitProbesToo)
{
    EXPECT_EQ(service.scanTree(root, 3, 2).size, probedSize);
}

TEST_F(ScanTreeTest, listsAboveTheLimitAndProbesAtIt)
{
    temp.file("root/file", bytesOf(7));
    temp.file("root/sub/inner", bytesOf(11));
    temp.file("root/sub/deep/far", bytesOf(13));
    const FileEntry entry = scan(2);

    EXPECT_EQ(entry.size, 7 + 11 + probedSize);
    EXPECT_EQ(childNames(entry), QStringList({"sub", "file"}));
    const FileEntry &sub = childNamed(entry, "sub");
    EXPECT_EQ(sub.size, 11 + probedSize);
    EXPECT_EQ(childNames(sub), QStringList({"deep", "inner"}));
    EXPECT_EQ(childNamed(sub, "deep").size, probedSize);
    EXPECT_TRUE(childNamed(sub, "deep").isDirectory);
    EXPECT_FALSE(childNamed(sub, "deep").children);
    EXPECT_EQ(probed(), QStringList({temp.at("root/sub/deep")}));
}

TEST_F(ScanTreeTest, everyNodeKnowsItsNamePathAndAnIdOfItsOwn)
{
    temp.file("root/sub/inner");
    const FileEntry entry = scan(2);
    const FileEntry &sub = childNamed(entry, "sub");
    const FileEntry &inner = childNamed(sub, "inner");
    EXPECT_EQ(entry.name, "root");
    EXPECT_EQ(entry.path, root);
    EXPECT_EQ(sub.path, temp.at("root/sub"));
    EXPECT_EQ(inner.path, temp.at("root/sub/inner"));
    EXPECT_FALSE(inner.isDirectory);
    EXPECT_FALSE(inner.children);
    EXPECT_EQ(QSet<QUuid>({entry.id, sub.id, inner.id, QUuid()}).size(), 4);
}

TEST_F(ScanTreeTest, aFolderWithASlashAtItsEndHasItsOwnName)
{
    temp.file("root/a", bytesOf(3));
    const FileEntry entry = service.scanTree(root + u'/', 0, 1);
    EXPECT_EQ(entry.name, "root");
    EXPECT_EQ(childNamed(entry, "a").path, temp.at("root/a"));
}

TEST_F(ScanTreeTest, childrenComeLargestFirst)
{
    for (const int size : {5, 90, 1, 40, 17})
        temp.file(QStringLiteral("root/%1").arg(size), bytesOf(size));
    EXPECT_EQ(childNames(scan(1)), QStringList({"90", "40", "17", "5", "1"}));
}

TEST_F(ScanTreeTest, ofTwoFilesOfEqualSizeTheOneListedFirstStaysFirst)
{
    for (int i = 0; i < 25; ++i)
        temp.file(QStringLiteral("root/%1").arg(i * 7919 % 25), bytesOf(10));
    EXPECT_EQ(childNames(scan(1)), listed());
}

TEST_F(ScanTreeTest, equalFilesBeyondTheLimitDropInListingOrder)
{
    for (int i = 0; i < 40; ++i)
        temp.file(QStringLiteral("root/%1").arg(i * 7919 % 40), bytesOf(10));
    EXPECT_EQ(childNames(scan(1)), listed().first(30));
}

TEST_F(ScanTreeTest, keepsThe30LargestOf31AndCountsAll)
{
    for (int size = 1; size <= 31; ++size)
        temp.file(QStringLiteral("root/%1").arg(size), bytesOf(size));
    const FileEntry entry = scan(1);
    EXPECT_EQ(entry.size, 31 * 32 / 2);
    ASSERT_EQ(entry.children->size(), 30U);
    EXPECT_EQ(entry.children->front().size, 31);
    EXPECT_EQ(entry.children->back().size, 2);
}

TEST_F(ScanTreeTest, keepsAll30Of30)
{
    for (int size = 1; size <= 30; ++size)
        temp.file(QStringLiteral("root/%1").arg(size), bytesOf(size));
    EXPECT_EQ(scan(1).children->size(), 30U);
}

TEST_F(ScanTreeTest, emptyFolderHasAnEmptyListOfChildren)
{
    const FileEntry entry = scan(1);
    EXPECT_EQ(entry.size, 0);
    ASSERT_TRUE(entry.children);
    EXPECT_TRUE(entry.children->empty());
    EXPECT_FALSE(entry.hasChildren());
}

TEST_F(ScanTreeTest, hiddenEntriesAreNotVisited)
{
    temp.file("root/.hidden", bytesOf(100));
    temp.file("root/.folder/inside", bytesOf(100));
    temp.file("root/plain", bytesOf(3));
    const FileEntry entry = scan(1);
    EXPECT_EQ(entry.size, 3);
    EXPECT_EQ(childNames(entry), QStringList({"plain"}));
    EXPECT_TRUE(probed().isEmpty());
}

TEST_F(ScanTreeTest, linksAreNotFollowedAndCountThemselves)
{
    temp.file("elsewhere/big", bytesOf(5000));
    temp.link("root/to folder", temp.at("elsewhere"));
    temp.link("root/loop", ".");
    temp.link("root/broken", "nowhere");
    const FileEntry entry = scan(2);
    EXPECT_EQ(entry.size, paths::toBytes(temp.at("elsewhere")).size() + 1 + 7);
    EXPECT_FALSE(childNamed(entry, "to folder").isDirectory);
    EXPECT_FALSE(childNamed(entry, "loop").children);
    EXPECT_EQ(childNamed(entry, "broken").size, 7);
    EXPECT_TRUE(probed().isEmpty());
}

TEST_F(ScanTreeTest, filesCountTheirLogicalSize)
{
    temp.sparseFile("root/sparse", qint64(5) << 30);
    EXPECT_EQ(scan(1).size, qint64(5) << 30);
}

TEST_F(ScanTreeTest, pipesAreNotOpened)
{
    ASSERT_EQ(mkfifo(paths::toBytes(temp.at("root/pipe")).constData(), 0600), 0);
    const FileEntry entry = scan(1);
    EXPECT_EQ(entry.size, 0);
    EXPECT_EQ(childNames(entry), QStringList({"pipe"}));
}

TEST_F(ScanTreeTest, whileCancelledGivesNothingForAnyPathAndTouchesNoDisk)
{
    temp.file("root/a", bytesOf(5));
    service.scanCancelled = true;
    const InjectedFaults faults([this](files::Operation, const QString &path) {
        if (path != temp.at("probed"))
            ADD_FAILURE() << "touched " << qPrintable(path);
        return 0;
    });
    for (const QString &path : {root, temp.at("missing"), QStringLiteral("/")}) {
        for (const int maxDepth : {0, 2}) {
            const FileEntry entry = service.scanTree(path, 0, maxDepth);
            EXPECT_EQ(entry.size, 0);
            EXPECT_EQ(entry.path, path);
            EXPECT_TRUE(entry.isDirectory);
            EXPECT_FALSE(entry.children);
        }
    }
    EXPECT_TRUE(probed().isEmpty());
    EXPECT_TRUE(service.scanCancelled); // only a scan's starter clears it
}

TEST_F(ScanTreeTest, cancelTakesEffectAtTheNextFolderAndStillAddsTheFilesOfThisOne)
{
    for (int i = 0; i < 4; ++i) {
        temp.file(QStringLiteral("root/folder%1/inside").arg(i), bytesOf(1000));
        temp.file(QStringLiteral("root/file%1").arg(i), bytesOf(10));
    }
    QStringList entered;
    const InjectedFaults watch([this, &entered](files::Operation operation, const QString &path) {
        if (operation == files::Operation::list && path != root) {
            entered << path;
            service.scanCancelled = true;
        }
        return 0;
    });
    const FileEntry entry = scan(2);
    EXPECT_EQ(entered.size(), 1);
    EXPECT_EQ(entry.size, 1000 + 40);
    EXPECT_EQ(entry.children->size(), 8U);
}

TEST_F(ScanTreeTest, unreadableFolderLooksExactlyLikeACancelledOne)
{
    temp.file("root/locked/a", bytesOf(5));
    temp.file("root/open", bytesOf(3));
    const InjectedFaults faults(files::Operation::list, temp.at("root/locked"));
    const FileEntry entry = scan(2);
    EXPECT_EQ(entry.size, 3);
    const FileEntry &locked = childNamed(entry, "locked");
    EXPECT_EQ(locked.size, 0);
    EXPECT_TRUE(locked.isDirectory);
    EXPECT_FALSE(locked.children);
}

TEST_F(ScanTreeTest, missingFolderIsAnEmptyOneWithoutChildren)
{
    const FileEntry entry = service.scanTree(temp.at("missing"), 0, 2);
    EXPECT_EQ(entry.name, "missing");
    EXPECT_EQ(entry.size, 0);
    EXPECT_FALSE(entry.children);
}

TEST_F(ScanTreeTest, entryThatVanishesIsSkippedWithoutAddingToTheTotal)
{
    temp.file("root/stays", bytesOf(3));
    temp.file("root/vanishes", bytesOf(100));
    temp.folder("root/gone");
    const InjectedFaults faults([](files::Operation operation, const QString &path) {
        const bool isGone = path.endsWith(u"/vanishes") || path.endsWith(u"/gone");
        return operation == files::Operation::attributes && isGone ? ENOENT : 0;
    });
    const FileEntry entry = scan(1);
    EXPECT_EQ(entry.size, 3);
    EXPECT_EQ(childNames(entry), QStringList({"stays"}));
}

TEST_F(ScanTreeTest, folderThatVanishesBeforeItIsOpenedCountsZero)
{
    temp.file("root/gone/a", bytesOf(5));
    const InjectedFaults faults([](files::Operation operation, const QString &path) {
        return operation == files::Operation::list && path.endsWith(u"/gone") ? ENOENT : 0;
    });
    EXPECT_EQ(scan(2).size, 0);
}

TEST_F(ScanTreeTest, hostileNamesKeepTheirBytesInNamesAndPaths)
{
    const QString fileName = paths::fromBytes("two\nlines \"'$(x)\\ \xff");
    const QString folderName = paths::fromBytes("-sk\t\xfe");
    temp.file("root/" + fileName, bytesOf(4));
    temp.folder("root/" + folderName);
    const FileEntry entry = scan(1);
    EXPECT_EQ(childNames(entry), QStringList({folderName, fileName}));
    EXPECT_EQ(childNamed(entry, fileName).path, temp.at("root/" + fileName));
    EXPECT_EQ(probed(), QStringList({temp.at("root/" + folderName)}));
}

TEST_F(ScanTreeTest, totalBeyond64BitsEndsTheProcess)
{
    GTEST_FLAG_SET(death_test_style, "fast"); // the other style would leave a second temporary home behind
    temp.folder("root/a");
    temp.folder("root/b");
    useDuThatSays(QByteArray::number(std::numeric_limits<qint64>::max() / 1024));
    EXPECT_DEATH(scan(1), "beyond 64 bits");
}
