#include "duplicates/scan/HeadReader.h"

#include "CallCounts.h"
#include "duplicates/Contents.h"
#include "support/TempHome.h"

#include <algorithm>
#include <cerrno>
#include <vector>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using contents::filled;

namespace {

/// Files in one folder, named by their number, which is their index in the table as well.
class HeadReaderTest : public testing::Test
{
protected:
    TempHome temp;
    FileTable table;
    quint32 folder = table.addFolder(temp.path());

    bool isFlagSet = false;
    const std::function<bool()> isCancelled = [this] { return isFlagSet; };
    qint64 stepOfClock =
        0; ///< ns that pass between two looks at the clock, which is the time that a read takes
    qint64 time = 0;
    const HeadReader::Clock clock = [this] { return time += stepOfClock; };

    QString at(size_t index) const { return temp.at(QString::number(index)); }

    void addFile(const QByteArray &content)
    {
        const QByteArray name = QByteArray::number(static_cast<qulonglong>(table.files().size()));
        temp.file(QString::fromLatin1(name), content);
        table.add(folder, name, content.size(), false);
    }

    /// The heads of all files in the buckets.
    std::vector<HeadReader::Head> heads(const std::vector<HeadReader::Bucket> &buckets)
    {
        HeadReader reader(table, buckets, isCancelled, clock);
        std::vector<HeadReader::Head> all;
        for (const auto &[first, end] : buckets) {
            for (size_t file = first; file < end; ++file)
                all.push_back(reader.next());
        }
        return all;
    }
};

} // namespace

TEST_F(HeadReaderTest, givesTheBeginningsOfAllFilesInTheirOrder)
{
    for (quint64 seed = 0; seed < 300; ++seed) // more than are ever open at once
        addFile(filled(6000, seed));
    const auto read = heads({{0, 2}, {5, 150}, {150, 300}});
    ASSERT_EQ(read.size(), 297U);
    for (size_t place = 0; place < read.size(); ++place) {
        const size_t file = place < 2 ? place : place + 3;
        EXPECT_EQ(read[place].file, file);
        EXPECT_TRUE(read[place].isRead);
        EXPECT_EQ(read[place].content, filled(6000, file).first(4096));
    }
}

TEST_F(HeadReaderTest, takesBothEndsOfFilesOfMoreThanOneMebibyteAndAllOfSmallOnes)
{
    addFile(filled(1048577));
    addFile(filled(1048576));
    addFile(filled(4096));
    addFile(filled(17));
    addFile({});
    std::vector<qsizetype> lengths;
    for (const HeadReader::Head &head : heads({{0, 5}}))
        lengths.push_back(head.content.size());
    EXPECT_EQ(lengths, (std::vector<qsizetype>{8192 + 8192 + 8, 4096, 4096, 17, 0}));
}

TEST_F(HeadReaderTest, keepsItsOrderBesideFilesThatCannotBeRead)
{
    for (quint64 seed = 0; seed < 5; ++seed)
        addFile(filled(100, seed));
    const CallCounts faults([this](files::Operation operation, const QString &path) {
        const bool fails = (operation == files::Operation::open && path == at(1))
                           || (operation == files::Operation::read && path == at(3));
        return fails ? EIO : 0;
    });
    const auto read = heads({{0, 5}});
    std::vector<bool> areRead;
    for (const HeadReader::Head &head : read) {
        EXPECT_EQ(head.file, areRead.size());
        areRead.push_back(head.isRead);
    }
    EXPECT_EQ(areRead, (std::vector<bool>{true, false, true, false, true}));
}

TEST_F(HeadReaderTest, opensEachFileOnceAndNoOther)
{
    for (quint64 seed = 0; seed < 100; ++seed)
        addFile(filled(50, seed));
    const CallCounts calls;
    heads({{0, 40}, {60, 100}});
    QStringList expected;
    for (size_t file = 0; file < 100; ++file) {
        if (file < 40 || file >= 60)
            expected << at(file);
    }
    EXPECT_EQ(calls.opened, expected);
    EXPECT_EQ(calls.readFiles, expected);
}

TEST_F(HeadReaderTest, doesNotOpenWhatIsNoRegularFile)
{
    addFile("one");
    table.add(folder, "pipe", 3, false, false);
    addFile("two");
    const CallCounts calls;
    const auto read = heads({{0, 2}});
    EXPECT_TRUE(read[0].isRead);
    EXPECT_FALSE(read[1].isRead);
    EXPECT_EQ(calls.opened, QStringList(at(0)));
}

TEST_F(HeadReaderTest, opensOneFileAtATimeWhileTheDiskIsFast)
{
    for (quint64 seed = 0; seed < 100; ++seed)
        addFile(filled(50, seed));
    stepOfClock = 49'999;
    const std::vector<HeadReader::Bucket> buckets = {{0, 100}};
    const CallCounts calls;
    HeadReader reader(table, buckets, isCancelled, clock);
    for (qsizetype count = 1; count <= 100; ++count) {
        reader.next();
        ASSERT_EQ(calls.opened.size(), count);
    }
}

TEST_F(HeadReaderTest, opensSomeFilesAheadOnceTheDiskIsSlow)
{
    for (quint64 seed = 0; seed < 100; ++seed)
        addFile(filled(50, seed));
    table.add(folder, "pipe", 3, false, false);
    stepOfClock = 50'000;
    const std::vector<HeadReader::Bucket> buckets = {{0, 10}, {20, 40}, {98, 101}};
    const CallCounts calls;
    HeadReader reader(table, buckets, isCancelled, clock);
    reader.next();
    EXPECT_EQ(calls.opened.size(), 1);
    reader.next();
    EXPECT_EQ(calls.opened.size(), 1 + 31) << "the last one of 32 is a pipe";
    EXPECT_EQ(calls.readFiles, QStringList({at(0), at(1)})) << "none is read ahead of its turn";
}

TEST_F(HeadReaderTest, givesTheSameOfASlowDisk)
{
    for (quint64 seed = 0; seed < 100; ++seed)
        addFile(filled(5000, seed));
    stepOfClock = 1'000'000;
    const CallCounts calls;
    const auto read = heads({{0, 40}, {50, 52}, {60, 100}});
    QStringList expected;
    for (const HeadReader::Head &head : read) {
        expected << at(head.file);
        EXPECT_TRUE(head.isRead);
        EXPECT_EQ(head.content, filled(5000, head.file).first(4096));
    }
    EXPECT_EQ(expected.size(), 82);
    EXPECT_EQ(calls.opened, expected) << "each once, in their order";
    EXPECT_EQ(calls.readFiles, expected);
}

TEST_F(HeadReaderTest, looksAtTheCancelFlagBeforeEachFileThatItOpensAhead)
{
    for (quint64 seed = 0; seed < 100; ++seed)
        addFile(filled(50, seed));
    stepOfClock = 50'000;
    QStringList opened;
    const InjectedFaults stop([&](files::Operation operation, const QString &path) {
        if (operation == files::Operation::open)
            opened << path;
        isFlagSet = opened.size() == 10;
        return 0;
    });
    const std::vector<HeadReader::Bucket> buckets = {{0, 100}};
    HeadReader reader(table, buckets, isCancelled, clock);
    reader.next();
    EXPECT_TRUE(reader.next().isRead);
    EXPECT_EQ(opened.size(), 10);
    EXPECT_EQ(reader.next().content, filled(50, 2)) << "one whose turn has come";
    EXPECT_EQ(opened.size(), 10);
}

TEST_F(HeadReaderTest, opensOneFileAtATimeAgainAfterManyFastReads)
{
    for (quint64 seed = 0; seed < 400; ++seed)
        addFile(filled(10, seed));
    stepOfClock = 50'000;
    const std::vector<HeadReader::Bucket> buckets = {{0, 400}};
    const CallCounts calls;
    HeadReader reader(table, buckets, isCancelled, clock);
    reader.next();
    stepOfClock = 1;
    for (int count = 2; count <= 257; ++count)
        reader.next();
    EXPECT_EQ(calls.opened.size(), 257 + 31);
    for (int count = 258; count <= 300; ++count)
        reader.next();
    EXPECT_EQ(calls.opened.size(), 300);
}
