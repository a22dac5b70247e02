#include "duplicates/scan/FileTable.h"

#include "base/Paths.h"

#include <limits>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// The paths in the table's order.
std::vector<QByteArray> allPaths(const FileTable &table)
{
    std::vector<QByteArray> all;
    for (const FileTable::File &file : table.files())
        all.push_back(table.nativePath(file));
    return all;
}

} // namespace

TEST(FileTable, isEmptyAtFirst)
{
    FileTable table;
    EXPECT_TRUE(table.files().empty());
    table.sortBySize();
    EXPECT_TRUE(table.files().empty());
}

TEST(FileTable, givesEachFileWithItsPathInTheOrderOfDiscovery)
{
    FileTable table;
    const quint32 outer = table.addFolder(u"/a"_s);
    table.add(outer, "z", 1, false);
    const quint32 inner = table.addFolder(u"/a/b"_s);
    table.add(inner, "y", 3, false);
    table.add(outer, "x", 2, true);
    EXPECT_EQ(allPaths(table), (std::vector<QByteArray>{"/a/z", "/a/b/y", "/a/x"}));
    EXPECT_EQ(table.files()[1].size, 3);
    EXPECT_FALSE(table.files()[1].isLink);
    EXPECT_TRUE(table.files()[2].isLink);
}

TEST(FileTable, keepsNamesOfAnyBytes)
{
    FileTable table;
    const quint32 folder = table.addFolder(u"/"_s + paths::fromBytes("\xFF\n"));
    table.add(folder, "\xFE \"'\\", 1, false);
    table.add(folder, QByteArray(255, '\x80'), 1, false);
    EXPECT_EQ(allPaths(table), (std::vector<QByteArray>{"/\xFF\n/\xFE \"'\\",
                                                        QByteArray("/\xFF\n/") + QByteArray(255, '\x80')}));
}

TEST(FileTable, takesOnlyTheBytesOfTheViewForAName)
{
    FileTable table;
    const QByteArray longer = "name and more";
    table.add(table.addFolder(u"/a"_s), QByteArrayView(longer).first(4), 1, false);
    table.add(0, "b", 1, false);
    EXPECT_EQ(allPaths(table), (std::vector<QByteArray>{"/a/name", "/a/b"}));
}

TEST(FileTable, addsOneSlashWhateverAFolderEndsIn)
{
    FileTable table;
    table.add(table.addFolder(u"/"_s), "x", 1, false);
    table.add(table.addFolder(u"/a/"_s), "x", 1, false);
    table.add(table.addFolder(u"/a//"_s), "x", 1, false);
    EXPECT_EQ(allPaths(table), (std::vector<QByteArray>{"//x", "/a//x", "/a///x"}));
}

TEST(FileTable, sortsBySizeAndKeepsTheOrderOfDiscoveryWithinOne)
{
    FileTable table;
    const quint32 folder = table.addFolder(u""_s);
    constexpr int count = 1000; // enough for a sort that is not stable to show itself
    for (int number = 0; number < count; ++number)
        table.add(folder, QByteArray::number(number), number % 3, false);
    table.sortBySize();
    std::vector<QByteArray> expected;
    for (const int size : {2, 1, 0}) {
        for (int number = size; number < count; number += 3)
            expected.push_back('/' + QByteArray::number(number));
    }
    EXPECT_EQ(allPaths(table), expected);
}

TEST(FileTable, sortsTheLargestSizesThereAre)
{
    FileTable table;
    const quint32 folder = table.addFolder(u""_s);
    table.add(folder, "none", 0, false);
    table.add(folder, "most", std::numeric_limits<qint64>::max(), false);
    table.add(folder, "tera", qint64(1) << 40, false);
    table.sortBySize();
    EXPECT_EQ(allPaths(table), (std::vector<QByteArray>{"/most", "/tera", "/none"}));
}

TEST(FileTable, forgetsTheFilesBehindAMark)
{
    FileTable table;
    const quint32 folder = table.addFolder(u"/a"_s);
    table.add(folder, "kept", 1, false);
    const FileTable::Mark mark = table.mark();
    table.add(folder, "forgotten", 1, false);
    table.add(table.addFolder(u"/a/b"_s), "as well", 1, false);
    table.cut(mark);
    EXPECT_EQ(allPaths(table), std::vector<QByteArray>{"/a/kept"});
    table.add(table.addFolder(u"/c"_s), "later", 1, false);
    table.add(folder, "last", 1, false);
    table.sortBySize();
    EXPECT_EQ(allPaths(table), (std::vector<QByteArray>{"/a/kept", "/c/later", "/a/last"}));
}

TEST(FileTable, forgetsNothingWhereNothingWasAdded)
{
    FileTable table;
    table.cut(table.mark());
    EXPECT_TRUE(table.files().empty());
    table.add(table.addFolder(u"/a"_s), "x", 1, false);
    table.cut(table.mark());
    EXPECT_EQ(allPaths(table), std::vector<QByteArray>{"/a/x"});
}
