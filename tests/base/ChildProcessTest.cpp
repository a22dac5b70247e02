#include "base/ChildProcess.h"

#include "base/Error.h"
#include "base/Paths.h"
#include "base/ShellScript.h"
#include "support/FifoLine.h"
#include "support/TempHome.h"

#include <atomic>
#include <cerrno>
#include <csignal>
#include <set>
#include <thread>

#include <dirent.h>
#include <gtest/gtest.h>
#include <pthread.h>

using namespace Qt::StringLiterals;

namespace {

/// A program that runs until it is ended.
const QString endless = u"/usr/bin/tail"_s;
const QStringList endlessArguments = {u"-f"_s, u"/dev/null"_s};

/// What a shell script prints, once it has ended.
QByteArray outputOf(const QString &text)
{
    ChildProcess process(shell, script(text));
    process.launch();
    const QByteArray output = process.readToEnd();
    process.waitUntilExit();
    return output;
}

/// The code of the error that `launch` throws; 0 when it throws none.
int launchFailure(ChildProcess &process)
{
    try {
        process.launch();
        return 0;
    } catch (const Error &error) {
        EXPECT_EQ(error.domain, errors::systemDomain);
        EXPECT_FALSE(error.description.isEmpty());
        return error.code;
    }
}

/// The descriptors of this process that any child inherits.
std::set<int> inheritedDescriptors()
{
    std::set<int> inherited = {0, 1, 2};
    DIR *directory = opendir("/proc/self/fd");
    while (const dirent *entry = readdir(directory)) {
        const int descriptor = atoi(entry->d_name);
        const int flags = fcntl(descriptor, F_GETFD);
        if (entry->d_name[0] != '.' && flags != -1 && (flags & FD_CLOEXEC) == 0)
            inherited.insert(descriptor);
    }
    closedir(directory);
    return inherited;
}

/// Ignores one signal and blocks another for as long as it lives.
class DeafGuard
{
public:
    DeafGuard(int ignored, int blocked)
        : ignored_(ignored)
        , handler_(std::signal(ignored, SIG_IGN))
    {
        sigset_t set;
        sigemptyset(&set);
        sigaddset(&set, blocked);
        pthread_sigmask(SIG_BLOCK, &set, &mask_);
    }
    ~DeafGuard()
    {
        std::signal(ignored_, handler_);
        pthread_sigmask(SIG_SETMASK, &mask_, nullptr);
    }
    DeafGuard(const DeafGuard &) = delete;
    DeafGuard &operator=(const DeafGuard &) = delete;

private:
    int ignored_;
    void (*handler_)(int);
    sigset_t mask_{};
};

} // namespace

TEST(ChildProcess, givesOutputAndExitCode)
{
    ChildProcess process(shell, script(u"printf 'hello\\n'; exit 3"_s));
    process.launch();
    process.waitUntilExit();
    EXPECT_EQ(process.exitCode(), 3);
    EXPECT_EQ(process.readToEnd(), "hello\n");
    EXPECT_EQ(process.readToEnd(), "");
}

TEST(ChildProcess, runsFromLaunchToTheEndOfTheWait)
{
    ChildProcess process(shell, script(u"exit 0"_s));
    EXPECT_FALSE(process.isRunning());
    process.launch();
    EXPECT_TRUE(process.isRunning());
    EXPECT_EQ(process.exitCode(), std::nullopt);
    process.waitUntilExit();
    EXPECT_FALSE(process.isRunning());
    EXPECT_EQ(process.exitCode(), 0);
}

TEST(ChildProcess, givesOutputBytesAsTheyAre)
{
    EXPECT_EQ(outputOf(u"printf 'a\\0\\377\\n'"_s), QByteArray("a\0\xFF\n", 4));
}

TEST(ChildProcess, givesOutputThatIsLargerThanAPipeHolds)
{
    const QByteArray output = outputOf(u"head -c 1000000 /dev/zero | tr '\\0' x"_s);
    EXPECT_EQ(output.size(), 1000000);
    EXPECT_EQ(output.count('x'), 1000000);
}

TEST(ChildProcess, givesNothingOfStandardError)
{
    EXPECT_EQ(outputOf(u"echo wrong >&2; echo right"_s), "right\n");
}

TEST(ChildProcess, hasAnEmptyStandardInput)
{
    EXPECT_EQ(outputOf(u"cat; echo end"_s), "end\n");
}

TEST(ChildProcess, hasNoExitCodeWhenASignalEndsIt)
{
    ChildProcess process(shell, script(u"echo before; kill -KILL $$"_s));
    process.launch();
    process.waitUntilExit();
    EXPECT_EQ(process.exitCode(), std::nullopt);
    EXPECT_FALSE(process.isRunning());
    EXPECT_EQ(process.readToEnd(), "before\n");
}

TEST(ChildProcess, isEndedFromAnotherThreadWhileItIsWaitedFor)
{
    for (int round = 0; round < 20; ++round) {
        ChildProcess process(endless, endlessArguments);
        process.launch();
        std::thread other([&process] { process.terminate(); });
        process.waitUntilExit();
        other.join();
        EXPECT_EQ(process.exitCode(), std::nullopt);
        EXPECT_FALSE(process.isRunning());
    }
}

TEST(ChildProcess, isEndedFromAnotherThreadWhileItIsRead)
{
    ChildProcess process(endless, endlessArguments);
    process.launch();
    std::thread other([&process] { process.terminate(); });
    EXPECT_EQ(process.readToEnd(), "");
    process.waitUntilExit();
    other.join();
    EXPECT_EQ(process.exitCode(), std::nullopt);
}

TEST(ChildProcess, takesTerminateBeforeLaunchForNothing)
{
    ChildProcess process(shell, script(u"exit 4"_s));
    process.terminate();
    process.launch();
    process.waitUntilExit();
    EXPECT_EQ(process.exitCode(), 4);
}

TEST(ChildProcess, takesTerminateAfterTheEndForNothing)
{
    ChildProcess process(shell, script(u"exit 5"_s));
    process.launch();
    process.waitUntilExit();
    process.terminate();
    process.waitUntilExit();
    EXPECT_EQ(process.exitCode(), 5);
}

TEST(ChildProcess, returnsAtOnceFromAWaitWithoutALaunch)
{
    ChildProcess process(shell, script(u"exit 0"_s));
    process.waitUntilExit();
    EXPECT_EQ(process.readToEnd(), "");
    EXPECT_EQ(process.exitCode(), std::nullopt);
}

TEST(ChildProcess, endsAChildThatNobodyWaitedFor)
{
    const TempHome temp;
    const FifoLine told(temp.at(u"told"_s));
    pid_t child = 0;
    {
        ChildProcess process(shell, script(u"echo $$ > \"$0\"; exec tail -f /dev/null"_s) << told.path());
        process.launch();
        child = told.read().toInt();
        ASSERT_GT(child, 0);
    }
    EXPECT_EQ(kill(child, 0), -1);
    EXPECT_EQ(errno, ESRCH) << "neither running nor left in the process table";
}

TEST(ChildProcess, throwsForAMissingExecutable)
{
    const TempHome temp;
    ChildProcess process(temp.at(u"nothing"_s), {});
    EXPECT_EQ(launchFailure(process), ENOENT);
    EXPECT_FALSE(process.isRunning());
    process.waitUntilExit();
    process.terminate();
    EXPECT_EQ(process.readToEnd(), "");
    EXPECT_EQ(process.exitCode(), std::nullopt);
}

TEST(ChildProcess, throwsForAFileThatIsNoProgram)
{
    const TempHome temp;
    ChildProcess file(temp.file(u"plain"_s, "#!/bin/sh\n"), {});
    EXPECT_EQ(launchFailure(file), EACCES);
    ChildProcess folder(temp.path(), {});
    EXPECT_EQ(launchFailure(folder), EACCES);
}

TEST(ChildProcess, doesNotSearchForAProgramByName)
{
    ChildProcess process(u"sh"_s, script(u"exit 0"_s));
    EXPECT_EQ(launchFailure(process), ENOENT);
}

TEST(ChildProcess, handsArgumentsOverUntouched)
{
    const QList<QByteArray> arguments = {"plain",      "two words",    "",
                                         "'single'",   "\"double\"",   "a\nb\n",
                                         "$HOME",      "`id`",         "*",
                                         "\\",         "--option=",    ";exit 1",
                                         "\xFF\xFE/x", "\xED\xA0\x80", "na\xC3\xAFve \xF0\x9F\x98\x80"};
    QStringList all = script(u"printf '%s\\0' \"$@\""_s) << u"name"_s;
    for (const QByteArray &argument : arguments)
        all << paths::fromBytes(argument);
    ChildProcess process(shell, all);
    process.launch();
    process.waitUntilExit();
    QList<QByteArray> received = process.readToEnd().split('\0');
    received.removeLast(); // behind the last end
    EXPECT_EQ(received, arguments);
}

TEST(ChildProcess, runsAProgramWithAHostileName)
{
    const TempHome temp;
    const QString program = temp.script(paths::fromBytes("we\"ird\n $(x) \xFF name"), "echo ran");
    ChildProcess process(program, {});
    process.launch();
    process.waitUntilExit();
    EXPECT_EQ(process.readToEnd(), "ran\n");
}

TEST(ChildProcess, hasDefaultSignalsWhereWeIgnoreOrBlockThem)
{
    const DeafGuard deaf(SIGPIPE, SIGTERM);
    ChildProcess process(u"/bin/grep"_s, {u"-E"_s, u"^Sig(Blk|Ign):"_s, u"/proc/self/status"_s});
    process.launch();
    process.waitUntilExit();
    const QList<QByteArray> lines = process.readToEnd().split('\n');
    ASSERT_EQ(lines.size(), 3);
    const auto signalsOf = [](const QByteArray &line) { return line.mid(8).toULongLong(nullptr, 16); };
    ASSERT_TRUE(lines[0].startsWith("SigBlk:\t"));
    ASSERT_TRUE(lines[1].startsWith("SigIgn:\t"));
    EXPECT_EQ(signalsOf(lines[0]), 0U) << lines[0].toStdString();
    // Signals 32 and 33 are the C library's own; it has every child ignore them.
    EXPECT_EQ(signalsOf(lines[1]) & ~(3ULL << 31), 0U) << lines[1].toStdString();
}

TEST(ChildProcess, isEndedThoughWeBlockTheSignalThatEndsIt)
{
    const DeafGuard deaf(SIGPIPE, SIGTERM);
    ChildProcess process(endless, endlessArguments);
    process.launch();
    process.terminate();
    process.waitUntilExit();
    EXPECT_EQ(process.exitCode(), std::nullopt);
}

TEST(ChildProcess, endsWithTheReaderOfItsPipelineThoughWeIgnoreBrokenPipes)
{
    const DeafGuard deaf(SIGPIPE, SIGUSR1);
    EXPECT_EQ(outputOf(u"yes | head -n 1"_s), "y\n");
}

TEST(ChildProcess, inheritsNoDescriptorOfOurs)
{
    const std::set<int> inherited = inheritedDescriptors();
    const TempHome temp;
    const int openNumbers = open(paths::toBytes(temp.path()).constData(), O_RDONLY | O_CLOEXEC);
    ChildProcess other(endless, endlessArguments);
    other.launch(); // its pipe is open on our side
    ChildProcess process(u"/bin/ls"_s, {u"-l"_s, u"/proc/self/fd"_s});
    process.launch();
    process.waitUntilExit();
    close(openNumbers);
    std::set<int> seen;
    const QList<QByteArray> lines = process.readToEnd().split('\n');
    for (const QByteArray &line : lines) {
        const auto arrow = line.indexOf(" -> ");
        // `ls` itself has the folder open that it lists.
        if (arrow > 0 && !(line.endsWith("/fd") && line.contains("/proc/")))
            seen.insert(line.first(arrow).split(' ').last().toInt());
    }
    EXPECT_TRUE(seen.contains(1));
    for (const int descriptor : seen)
        EXPECT_TRUE(inherited.contains(descriptor)) << descriptor;
}

TEST(ChildProcess, leavesNoDescriptorOpenBehind)
{
    const auto count = [] {
        DIR *directory = opendir("/proc/self/fd");
        int entries = 0;
        while (readdir(directory))
            ++entries;
        closedir(directory);
        return entries;
    };
    const int before = count();
    for (int round = 0; round < 10; ++round) {
        EXPECT_EQ(outputOf(u"echo x"_s), "x\n");
        ChildProcess missing(u"/nothing/here"_s, {});
        EXPECT_EQ(launchFailure(missing), ENOENT);
    }
    EXPECT_EQ(count(), before);
}

TEST(ChildProcess, runsManyAtOnceFromSeveralThreads)
{
    constexpr int threadCount = 8;
    constexpr int rounds = 15;
    std::atomic<int> right = 0;
    std::vector<std::thread> threads;
    for (int number = 0; number < threadCount; ++number) {
        threads.emplace_back([number, &right] {
            for (int round = 0; round < rounds; ++round) {
                ChildProcess process(shell, script(u"printf %s \"$1\"; exit \"$2\""_s)
                                                << u"name"_s << QString::number(number * rounds + round)
                                                << QString::number(number));
                process.launch();
                process.waitUntilExit();
                if (process.exitCode() == number
                    && process.readToEnd() == QByteArray::number(number * rounds + round))
                    ++right;
            }
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    EXPECT_EQ(right, threadCount * rounds);
}
