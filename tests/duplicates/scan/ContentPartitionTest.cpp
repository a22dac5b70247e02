#include "ContentPartitionTest.h"

#include "CallCounts.h"
#include "duplicates/Contents.h"

#include <set>

#include <fcntl.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;
using namespace contents;

TEST_F(ContentPartitionTest, givesNothingOfNoFiles)
{
    ContentPartition parts(table, 10, 0, sha256);
    EXPECT_EQ(parts.lostFiles(), 0);
    EXPECT_TRUE(parts.takeShared().empty());
}

TEST_F(ContentPartitionTest, putsEqualFilesTogetherInTheirOrder)
{
    const QByteArray a = filled(100, 1);
    const QByteArray b = filled(100, 2);
    const QByteArray c = filled(100, 3);
    addFiles({a, b, c, b, a, b});
    EXPECT_EQ(byDigest(partition()),
              (Members{{contents::sha256(a), {0, 4}}, {contents::sha256(b), {1, 3, 5}}}));
    EXPECT_EQ(failures, 0);
    EXPECT_EQ(lost, 0);
}

TEST_F(ContentPartitionTest, digestsTheWholeContentOfAFileOfAtMostOneMebibyte)
{
    for (const qint64 size : {qint64(1), qint64(4095), qint64(4096), qint64(4097), qint64(8193),
                              qint64(100000), mebibyte - 1, mebibyte}) {
        restart();
        const QByteArray content = filled(size);
        addFiles({content, content});
        EXPECT_EQ(byDigest(partition()), (Members{{contents::sha256(content), {0, 1}}})) << size;
    }
}

TEST_F(ContentPartitionTest, digestsTheEndsAndTheSizeOfALargerFile)
{
    for (const qint64 size : {mebibyte + 1, mebibyte + 8192, 3 * mebibyte + 17}) {
        restart();
        const QByteArray content = filled(size);
        addFiles({content, content});
        EXPECT_EQ(byDigest(partition()), (Members{{sampleSha256(content), {0, 1}}})) << size;
    }
}

TEST_F(ContentPartitionTest, tellsFilesOfAtMostOneMebibyteApartByAnyByte)
{
    for (const qint64 size : {qint64(4096), qint64(4097), mebibyte}) {
        restart();
        const QByteArray content = filled(size);
        addFile(content);
        for (const qint64 position : std::set<qint64>{0, 4094, 4095, size / 2, size - 2, size - 1})
            addFile(changedAt(content, position));
        EXPECT_TRUE(partition().empty()) << size;
    }
}

TEST_F(ContentPartitionTest, comparesALargerFileByItsFirstAndLast8KiBOnly)
{
    const qint64 size = mebibyte + 1;
    const QByteArray content = filled(size);
    addFile(content);
    for (const qint64 position : {qint64(8192), size / 2, size - 8193})
        addFile(changedAt(content, position)); // 1 to 3, in the part that is not compared
    for (const qint64 position : {qint64(0), qint64(8191), size - 8192, size - 1})
        addFile(changedAt(content, position));
    EXPECT_EQ(byDigest(partition()), (Members{{sampleSha256(content), {0, 1, 2, 3}}}));
}

TEST_F(ContentPartitionTest, digestsOnlyWhatIsSharedAndThatOnce)
{
    const QByteArray shared = filled(5000, 1);
    const QByteArray alsoShared = filled(5000, 2);
    addFiles({shared, filled(5000, 3), shared, alsoShared, shared, alsoShared, filled(5000, 4)});
    EXPECT_EQ(partition().size(), 2U);
    EXPECT_EQ(sha256.count(), 2);
}

TEST_F(ContentPartitionTest, putsEmptyFilesTogether)
{
    addFiles({{}, {}, {}});
    EXPECT_EQ(byDigest(partition()), (Members{{contents::sha256({}), {0, 1, 2}}}));
}

TEST_F(ContentPartitionTest, readsAFileWhoseBeginningNoOtherHasNoFurther)
{
    addFiles({filled(10000, 1), filled(10000, 2), filled(10000, 3)});
    const CallCounts calls;
    EXPECT_TRUE(partition().empty());
    EXPECT_EQ(calls.opened, QStringList({at(0), at(1), at(2)}));
    EXPECT_EQ(calls.readFiles.size(), 3) << "of the first 4 KiB";
}

TEST_F(ContentPartitionTest, readsOnWhereFilesBeginAlike)
{
    const QByteArray content = filled(10000, 1);
    addFiles({content, filled(10000, 2), changedAt(content, 5000), content});
    const CallCounts calls;
    EXPECT_EQ(byDigest(partition()), (Members{{contents::sha256(content), {0, 3}}}));
    EXPECT_EQ(calls.opened, QStringList({at(0), at(1), at(2), at(0), at(3)})) << "the first one again, once";
    EXPECT_EQ(calls.readFiles.size(), 4 + 3) << "four beginnings, three files whole";
}

TEST_F(ContentPartitionTest, readsOnWhereThereAreTooManyBeginningsToKeep)
{
    isOfMany = true;
    const QByteArray content = filled(10000, 1);
    addFiles({content, filled(10000, 2), changedAt(content, 5000), content});
    const CallCounts calls;
    EXPECT_EQ(byDigest(partition()), (Members{{contents::sha256(content), {0, 3}}}));
    EXPECT_EQ(calls.opened, QStringList({at(0), at(1), at(2), at(0), at(3)}));
    EXPECT_EQ(calls.readFiles.size(), 4 + 3) << "four beginnings, three files whole";
}

TEST_F(ContentPartitionTest, tellsBeginningsApartThatAreAlikeAtBothTheirEnds)
{
    const QByteArray content = filled(10000);
    addFiles({content, changedAt(content, 2000), changedAt(content, 2001), changedAt(content, 2001)});
    const CallCounts calls;
    EXPECT_EQ(byDigest(partition()), (Members{{contents::sha256(changedAt(content, 2001)), {2, 3}}}));
    EXPECT_EQ(calls.readFiles.size(), 4 + 2) << "only what begins alike is read on";
}

TEST_F(ContentPartitionTest, tellsSmallFilesApartThatAreAlikeAtBothTheirEnds)
{
    const QByteArray content = filled(500);
    for (const bool areMany : {false, true}) {
        restart();
        isOfMany = areMany;
        addFiles({content, changedAt(content, 250), content, changedAt(content, 251)});
        EXPECT_EQ(byDigest(partition()), (Members{{contents::sha256(content), {0, 2}}}));
    }
}

TEST_F(ContentPartitionTest, readsALargeFileTwiceAtMostWhateverItsSize)
{
    for (int number = 0; number < 4; ++number) {
        temp.sparseFile(QString::number(number), 5 * mebibyte);
        table.add(folder, QByteArray::number(number), 5 * mebibyte, false);
    }
    const CallCounts calls;
    ASSERT_EQ(partition().size(), 1U);
    EXPECT_EQ(calls.opened.size(), 4);
    EXPECT_EQ(calls.readFiles.size(), 4 * 2) << "both ends of each";
}

TEST_F(ContentPartitionTest, readsASmallFileOnce)
{
    addFiles({filled(4096), filled(4096), filled(4096, 2)});
    const CallCounts calls;
    ASSERT_EQ(partition().size(), 1U);
    EXPECT_EQ(calls.opened.size(), 3);
    EXPECT_EQ(calls.readFiles.size(), 3);
}

TEST_F(ContentPartitionTest, findsEqualFilesAmongMoreContentThanItKeeps)
{
    constexpr quint32 count = 9; // of nearly 1 MiB each, of which 4 MiB are kept
    const QByteArray base = filled(mebibyte - 5);
    Members expected;
    for (quint32 number = 0; number < count; ++number)
        addFile(changedAt(base, 5000 + number));
    for (quint32 number = count; number-- > 0;) {
        const QByteArray content = changedAt(base, 5000 + number);
        expected[contents::sha256(content)] = {number, static_cast<quint32>(table.files().size())};
        addFile(content);
    }
    addFile(changedAt(base, 100000)); // alone
    const QByteArray last = changedAt(base, 5000 + count - 1);
    expected[contents::sha256(last)].push_back(static_cast<quint32>(table.files().size()));
    addFile(last); // a third one of a content that was not kept
    EXPECT_EQ(byDigest(partition()), expected);
    EXPECT_EQ(failures + lost, 0);
}

TEST_F(ContentPartitionTest, tellsManyFilesThatBeginAlikeApart)
{
    const QByteArray base = filled(6000);
    for (qsizetype number = 0; number < 1500; ++number) // 9 MB
        addFile(changedAt(base, 4096 + number));
    EXPECT_TRUE(partition().empty());
    addFile(changedAt(base, 4096 + 1499));
    EXPECT_EQ(byDigest(partition()),
              (Members{{contents::sha256(changedAt(base, 4096 + 1499)), {1499, 1500}}}));
    EXPECT_EQ(sha256.count(), 1);
}

TEST_F(ContentPartitionTest, givesClassesInTheOrderInWhichTheyWereReadWhole)
{
    const QByteArray a = filled(10000, 1);
    const QByteArray b = filled(10000, 2);
    addFiles({a, b, b, a});
    const auto found = partition();
    ASSERT_EQ(found.size(), 2U);
    EXPECT_EQ(members(found[0]), (std::vector<quint32>{1, 2}));
    EXPECT_EQ(members(found[1]), (std::vector<quint32>{0, 3}));
}

TEST_F(ContentPartitionTest, tellsFewFilesApartAndManyAlike)
{
    for (const quint32 count : {2U, 8U, 9U, 40U}) { // looked at one by one, and looked up by hashes
        for (const qint64 size : {qint64(300), qint64(5000), mebibyte + 1}) {
            restart();
            const QByteArray content = filled(size);
            std::vector<quint32> equal;
            for (quint32 number = 0; number < count; ++number) {
                const bool isOther = number % 3 == 1;
                addFile(isOther ? changedAt(content, size - 1 - number) : content);
                if (!isOther)
                    equal.push_back(number);
            }
            const auto found = partition();
            ASSERT_EQ(found.size(), equal.size() > 1 ? 1U : 0U) << count << " of " << size;
            EXPECT_EQ(found.empty() ? equal : members(found.front()), equal) << count << " of " << size;
        }
    }
}

TEST_F(ContentPartitionTest, tellsWhenEachFileWasLastChanged)
{
    addFiles({filled(10000), filled(10000)});
    for (const quint32 index : {0U, 1U}) {
        const timespec moment = {1000 + index, 5};
        const timespec times[] = {moment, moment};
        ASSERT_EQ(utimensat(AT_FDCWD, paths::toBytes(at(index)).constData(), times, 0), 0);
    }
    const auto found = partition();
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].members[0].modified, dates::fromUnix(1000, 5));
    EXPECT_EQ(found[0].members[1].modified, dates::fromUnix(1001, 5));
}
