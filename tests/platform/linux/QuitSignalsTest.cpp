#include "platform/linux/QuitSignals.h"

#include <csignal>

#include <gtest/gtest.h>
#include <unistd.h>

namespace {

constexpr unsigned tooLong = 60; // seconds, after which the system ends the process by another signal

/// A process whose main thread never comes back to its loop.
[[noreturn]] void stayStuckAfter(int signal)
{
    alarm(tooLong);
    const QuitSignals handler([] {});
    raise(signal);
    for (;;)
        pause();
}

TEST(QuitSignalsDeathTest, endAProcessWhoseMainThreadIsStuck)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe"); // libraries of this process have threads
    EXPECT_EXIT(stayStuckAfter(SIGTERM), testing::ExitedWithCode(EXIT_SUCCESS), "");
    EXPECT_EXIT(stayStuckAfter(SIGINT), testing::ExitedWithCode(EXIT_SUCCESS), "");
}

} // namespace
