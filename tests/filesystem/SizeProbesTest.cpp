#include "base/Files.h"
#include "base/Paths.h"
#include "support/TestPlatform.h"

#include <limits>

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

struct SizeProbesTest : testing::Test
{
    TestPlatform test;
    TempHome &temp = test.temp;

    qint64 probe(const QString &path) { return test.probes.probeSize(path, ProbeContext::generic); }
    qint64 probeHome() { return probe(test.home); }

    /// The size that a `du` makes of which the output is `text`, an argument of printf.
    qint64 sizeOf(const QByteArray &text)
    {
        test.useDu("printf -- '" + text + "'\n");
        return probeHome();
    }

    /// Allocated bytes of one entry itself.
    qint64 allocated(const QString &path) const
    {
        struct stat status = {};
        EXPECT_EQ(lstat(paths::toBytes(path).constData(), &status), 0);
        return status.st_blocks * 512;
    }
};

} // namespace

TEST_F(SizeProbesTest, countsTheAllocatedBytesOfEverythingBelow)
{
    const QString folder = temp.folder("folder");
    const QString file = temp.file("folder/file", QByteArray(10'000, 'x'));
    const QString hidden = temp.file("folder/.hidden/inside", QByteArray(50'000, 'x'));
    const qint64 expected =
        allocated(folder) + allocated(file) + allocated(paths::parent(hidden)) + allocated(hidden);
    EXPECT_GE(expected, 60'000);
    EXPECT_EQ(probe(folder), expected);
}

TEST_F(SizeProbesTest, sparseFileCountsOnlyWhatIsAllocated)
{
    const QString file = temp.sparseFile("sparse", qint64(1) << 30);
    EXPECT_EQ(probe(file), allocated(file));
    EXPECT_LT(probe(file), 1 << 20);
}

TEST_F(SizeProbesTest, linkCountsItselfAndNotItsTarget)
{
    temp.file("target/big", QByteArray(200'000, 'x'));
    const QString link = temp.link("link", temp.at("target"));
    EXPECT_EQ(probe(link), allocated(link));
}

TEST_F(SizeProbesTest, missingPathIsZero)
{
    EXPECT_EQ(probe(temp.at("missing")), 0);
}

TEST_F(SizeProbesTest, outputIsACountOfKibibytes)
{
    EXPECT_EQ(sizeOf("4096\\t/a/b\\n"), 4194304);
}

TEST_F(SizeProbesTest, passesTheOptionAndThePathAsTwoArgumentsUnchanged)
{
    test.useDu("printf '%s\\n' $# \"$1\" \"$2\" >'" + paths::toBytes(temp.at("arguments")) + "'\n");
    const QString path = paths::fromBytes("/a b/\"c\" 'd' $(e) \\ *\n%1\xff");
    probe(path);
    EXPECT_EQ(files::readPrefix(temp.at("arguments"), 1000), "2\n-sk\n" + paths::toBytes(path) + "\n");
}

TEST_F(SizeProbesTest, measuresFoldersWithHostileNames)
{
    for (const QByteArray &name : {QByteArray("two words"), QByteArray("\"quotes' "), QByteArray("tab\there"),
                                   QByteArray("two\nlines"), QByteArray("-sk"), QByteArray("raw\xff\xc3")}) {
        const QString folder = temp.folder(paths::fromBytes(name));
        const QString file = temp.file(paths::fromBytes(name + "/file"), QByteArray(5000, 'x'));
        EXPECT_EQ(probe(folder), allocated(folder) + allocated(file)) << name.constData();
    }
}

TEST_F(SizeProbesTest, emptyOutputIsZero)
{
    test.useDu("exit 0\n");
    EXPECT_EQ(probeHome(), 0);
}

TEST_F(SizeProbesTest, bareNumberAndNewlineWithoutATabIsZero)
{
    EXPECT_EQ(sizeOf("4096\\n"), 0);
}

TEST_F(SizeProbesTest, bareNumberWithoutAnythingElseCounts)
{
    EXPECT_EQ(sizeOf("4096"), 4194304);
}

TEST_F(SizeProbesTest, emptyPiecesBeforeTheNumberArePassedOver)
{
    EXPECT_EQ(sizeOf("\\t\\t4\\t/a\\n"), 4096);
    EXPECT_EQ(sizeOf("\\t\\t"), 0);
}

TEST_F(SizeProbesTest, nonsenseIsZero)
{
    for (const char *text : {"du: no\\n", "12a\\t/a\\n", " 12\\t/a\\n", "12 \\t/a\\n", "1.5\\t/a\\n",
                             "0x10\\t/a\\n", "1,024\\t/a\\n", "+\\t/a\\n", "-\\t/a\\n", "+-1\\t/a\\n",
                             "/a\\t12\\n", "\\n12\\t/a\\n", "\\377\\376\\t/a\\n", "1\\0002\\t/a\\n"})
        EXPECT_EQ(sizeOf(text), 0) << text;
}

TEST_F(SizeProbesTest, signIsPartOfANumber)
{
    EXPECT_EQ(sizeOf("+4\\t/a\\n"), 4096);
    EXPECT_EQ(sizeOf("-4\\t/a\\n"), -4096);
}

TEST_F(SizeProbesTest, numberBeyond64BitsIsZero)
{
    EXPECT_EQ(sizeOf("9223372036854775808\\t/a\\n"), 0);
    EXPECT_EQ(sizeOf("-9223372036854775809\\t/a\\n"), 0);
    EXPECT_EQ(sizeOf("99999999999999999999999999999999\\t/a\\n"), 0);
}

TEST_F(SizeProbesTest, productBeyond64BitsIsZero)
{
    const qint64 most = std::numeric_limits<qint64>::max() / 1024;
    EXPECT_EQ(sizeOf(QByteArray::number(most) + "\\t/a\\n"), most * 1024);
    EXPECT_EQ(sizeOf(QByteArray::number(most + 1) + "\\t/a\\n"), 0);
    EXPECT_EQ(sizeOf(QByteArray::number(-most - 2) + "\\t/a\\n"), 0);
}

TEST_F(SizeProbesTest, totalCountsAlthoughTheExitStatusIsAnError)
{
    test.useDu("echo 'cannot read directory' >&2\nprintf '8\\t%s\\n' \"$2\"\nexit 1\n");
    EXPECT_EQ(probeHome(), 8192);
}

TEST_F(SizeProbesTest, whatStandardErrorSaysIsNotRead)
{
    test.useDu("printf '8\\t%s\\n' \"$2\" >&2\n");
    EXPECT_EQ(probeHome(), 0);
}

TEST_F(SizeProbesTest, programThatIsMissingOrCannotBeStartedIsZero)
{
    for (const QString &program :
         {temp.at("missing"), temp.file("no permission", "#!/bin/sh\necho 1\n"), temp.path()}) {
        test.platform.programs.du = program;
        EXPECT_EQ(probeHome(), 0) << qPrintable(program);
        EXPECT_TRUE(test.probes.liveSizeProbes().at(ProbeContext::generic).empty());
    }
}

TEST_F(SizeProbesTest, programThatASignalEndsIsZero)
{
    test.useDu("kill -KILL $$\n");
    EXPECT_EQ(probeHome(), 0);
}

TEST_F(SizeProbesTest, aFinishedProbeLeavesAnEmptyListAndNothingElse)
{
    EXPECT_TRUE(test.probes.liveSizeProbes().empty());
    test.probes.probeSize(test.home, ProbeContext::largestDirs);
    const auto live = test.probes.liveSizeProbes();
    ASSERT_EQ(live.size(), 1U);
    EXPECT_TRUE(live.at(ProbeContext::largestDirs).empty());
}

TEST_F(SizeProbesTest, cancellingAContextWithoutProbesDoesNothing)
{
    test.probes.cancelProbes(ProbeContext::storage);
    test.probes.cancelProbes();
    EXPECT_GT(probe(temp.file("file", "x")), 0);
}
