// Files that change, or can't be read, while they are compared.

#include "CallCounts.h"
#include "ContentPartitionTest.h"
#include "duplicates/Contents.h"

#include <cerrno>

#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace contents;

TEST_F(ContentPartitionTest, takesAContentForAnotherOnceTheOneThatWasNotKeptHasChanged)
{
    const QByteArray base = filled(mebibyte);
    for (qsizetype number = 0; number < 6; ++number)
        addFile(changedAt(base, 5000 + number));
    addFiles({changedAt(base, 5005), changedAt(base, 5005)});
    const auto found = partition([&](quint32 next) {
        if (next == 6)
            temp.file(u"5"_s, changedAt(base, 6000));
    });
    EXPECT_EQ(byDigest(found), (Members{{contents::sha256(changedAt(base, 5005)), {6, 7}}}));
    EXPECT_EQ(lost, 1) << "it is in no group, and counted for it";
}

TEST_F(ContentPartitionTest, goesByTheDigestOnceTheFirstFileOfAContentThatWasNotKeptHasChanged)
{
    const QByteArray base = filled(mebibyte);
    for (qsizetype number = 0; number < 6; ++number)
        addFile(changedAt(base, 5000 + number));
    addFiles({changedAt(base, 5005), changedAt(base, 5005), changedAt(base, 5006)});
    const auto found = partition([&](quint32 next) {
        if (next == 7)
            temp.file(u"5"_s, changedAt(base, 6000));
    });
    EXPECT_EQ(byDigest(found), (Members{{contents::sha256(changedAt(base, 5005)), {5, 6, 7}}}));
    EXPECT_EQ(lost, 0);
}

TEST_F(ContentPartitionTest, neverPutsTheBeginningOfOneContentBeforeTheEndOfAnother)
{
    const QByteArray one = filled(10000, 1);
    const QByteArray two = one.first(6000) + filled(4000, 2);
    const QByteArray three = filled(6000, 3) + two.last(4000);
    for (const bool areMany : {false, true}) {
        restart();
        isOfMany = areMany;
        addFiles({one, two, two});
        const auto found = partition([&](quint32 next) {
            if (next == 1)
                temp.file(u"0"_s, three);
        });
        EXPECT_EQ(byDigest(found), (Members{{contents::sha256(two), {1, 2}}})) << areMany;
        EXPECT_EQ(lost, 1) << areMany;
        EXPECT_EQ(failures, 0) << areMany;
    }
}

TEST_F(ContentPartitionTest, takesAFileThatStillBeginsAlikeForWhatItIsWhenReadWhole)
{
    const QByteArray one = filled(10000, 1);
    const QByteArray two = changedAt(one, 9000);
    addFiles({one, two, one});
    const auto found = partition([&](quint32 next) {
        if (next == 1)
            temp.file(u"0"_s, two);
    });
    EXPECT_EQ(byDigest(found), (Members{{contents::sha256(two), {0, 1}}}));
    EXPECT_EQ(failures + lost, 0);
}

TEST_F(ContentPartitionTest, countsAFileThatIsRewrittenWhileItIsRead)
{
    const QByteArray one = filled(10000, 1);
    const QByteArray other = filled(6000, 3) + one.last(4000);
    addFiles({one, changedAt(one, 9000), one});
    const CallCounts rewriting([&, reads = 0](files::Operation operation, const QString &path) mutable {
        if (operation == files::Operation::read && path == at(1) && ++reads == 2)
            temp.file(u"1"_s, other); // its beginning has been read
        return 0;
    });
    EXPECT_EQ(byDigest(partition()), (Members{{contents::sha256(one), {0, 2}}}));
    EXPECT_EQ(failures, 1);
    EXPECT_EQ(lost, 0);
}

TEST_F(ContentPartitionTest, countsAFileThatCannotBeOpened)
{
    addFiles({filled(10), filled(10), filled(10)});
    remove(1);
    EXPECT_EQ(byDigest(partition()), (Members{{contents::sha256(filled(10)), {0, 2}}}));
    EXPECT_EQ(failures, 1);
    EXPECT_EQ(lost, 0);
}

TEST_F(ContentPartitionTest, countsAFileOnceThatVanishesBeforeItIsReadOn)
{
    const QByteArray content = filled(10000);
    addFiles({content, content, content, content});
    const auto found = partition([&](quint32 next) {
        if (next == 1)
            remove(0);
    });
    EXPECT_EQ(byDigest(found), (Members{{contents::sha256(content), {1, 2, 3}}}));
    EXPECT_EQ(failures, 0);
    EXPECT_EQ(lost, 1);
}

TEST_F(ContentPartitionTest, countsAFileOnceThatFailsToBeRead)
{
    const QByteArray content = filled(10000);
    for (const int failing : {1, 2, 3, 4}) {
        restart();
        addFiles({content, content});
        int reads = 0; // 0's beginning, 1's, 0's end, 1's end
        const InjectedFaults fault([&](files::Operation operation, const QString &) {
            return operation == files::Operation::read && ++reads == failing ? EIO : 0;
        });
        EXPECT_TRUE(partition().empty()) << failing;
        EXPECT_EQ(failures + lost, 1) << failing;
    }
}

TEST_F(ContentPartitionTest, comparesWhatIsLeftOfFilesThatHaveShrunk)
{
    addFiles({filled(10000), filled(10000), filled(10000)});
    for (const quint32 index : {0U, 2U})
        ASSERT_EQ(truncate(paths::toBytes(at(index)).constData(), 100), 0);
    EXPECT_EQ(byDigest(partition()), (Members{{contents::sha256(filled(10000).first(100)), {0, 2}}}));
    EXPECT_EQ(failures + lost, 0);
}

TEST_F(ContentPartitionTest, comparesFilesThatHaveGrownByTheirFormerSize)
{
    const QByteArray content = filled(5000);
    addFiles({content, content});
    temp.file(u"1"_s, content + "more");
    EXPECT_EQ(byDigest(partition()), (Members{{contents::sha256(content), {0, 1}}}));
}
