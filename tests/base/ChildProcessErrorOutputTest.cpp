#include "base/ChildProcess.h"

#include "base/Error.h"
#include "base/ShellScript.h"

#include <cerrno>
#include <thread>

#include <dirent.h>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Outputs
{
    QByteArray output;
    QByteArray errors;
    std::optional<int> exitCode;
};

Outputs outputsOf(const QString &text)
{
    ChildProcess process(shell, script(text));
    process.captureErrorOutput();
    process.launch();
    Outputs outputs;
    outputs.output = process.readToEnd();
    process.waitUntilExit();
    outputs.errors = process.errorOutput();
    outputs.exitCode = process.exitCode();
    return outputs;
}

int openDescriptors()
{
    DIR *directory = opendir("/proc/self/fd");
    int entries = 0;
    while (readdir(directory))
        ++entries;
    closedir(directory);
    return entries;
}

} // namespace

TEST(ChildProcessErrorOutput, isKeptApartFromTheOutput)
{
    const Outputs outputs = outputsOf(u"echo right; echo wrong >&2; printf 'a\\0\\377' >&2; exit 7"_s);
    EXPECT_EQ(outputs.output, "right\n");
    EXPECT_EQ(outputs.errors, QByteArray("wrong\na\0\xFF", 9));
    EXPECT_EQ(outputs.exitCode, 7);
}

TEST(ChildProcessErrorOutput, isEmptyWhenNothingIsSaid)
{
    const Outputs outputs = outputsOf(u"echo right"_s);
    EXPECT_EQ(outputs.output, "right\n");
    EXPECT_EQ(outputs.errors, "");
}

TEST(ChildProcessErrorOutput, isEmptyUnlessItIsAskedFor)
{
    ChildProcess process(shell, script(u"echo wrong >&2"_s));
    process.launch();
    process.readToEnd();
    process.waitUntilExit();
    EXPECT_EQ(process.errorOutput(), "");
}

TEST(ChildProcessErrorOutput, keepsItsStartAndNeverStopsAProgramThatComplainsAtLength)
{
    const Outputs outputs = outputsOf(u"echo start >&2; head -c 1000000 /dev/zero >&2; echo end"_s);
    EXPECT_EQ(outputs.output, "end\n");
    EXPECT_EQ(outputs.errors.size(), ChildProcess::mostErrorOutput);
    EXPECT_TRUE(outputs.errors.startsWith("start\n"));
}

TEST(ChildProcessErrorOutput, isReadTogetherWithAnOutputThatIsLargerThanAPipeHolds)
{
    const Outputs outputs = outputsOf(
        u"head -c 300000 /dev/zero; head -c 300000 /dev/zero >&2; head -c 300000 /dev/zero; exit 2"_s);
    EXPECT_EQ(outputs.output.size(), 600000);
    EXPECT_EQ(outputs.errors.size(), ChildProcess::mostErrorOutput);
    EXPECT_EQ(outputs.exitCode, 2);
}

TEST(ChildProcessErrorOutput, isReadToTheEndThoughTheOutputIsClosedFirst)
{
    const Outputs outputs = outputsOf(u"exec >&-; echo late >&2"_s);
    EXPECT_EQ(outputs.output, "");
    EXPECT_EQ(outputs.errors, "late\n");
}

TEST(ChildProcessErrorOutput, endsWithAProgramThatIsEndedFromAnotherThread)
{
    ChildProcess process(u"/usr/bin/tail"_s, {u"-f"_s, u"/dev/null"_s});
    process.captureErrorOutput();
    process.launch();
    std::thread other([&process] { process.terminate(); });
    EXPECT_EQ(process.readToEnd(), "");
    process.waitUntilExit();
    other.join();
    EXPECT_EQ(process.exitCode(), std::nullopt);
}

TEST(ChildProcessErrorOutput, leavesNoDescriptorOpenBehind)
{
    const int before = openDescriptors();
    for (int round = 0; round < 10; ++round) {
        outputsOf(u"echo x >&2"_s);
        ChildProcess missing(u"/nothing/here"_s, {});
        missing.captureErrorOutput();
        EXPECT_THROW(missing.launch(), Error);
    }
    EXPECT_EQ(openDescriptors(), before);
}
