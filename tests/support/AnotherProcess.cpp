#include "support/AnotherProcess.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

int inAnotherProcess(const std::function<void()> &block)
{
    const pid_t child = fork();
    if (child == 0) {
        block();
        _exit(testing::Test::HasFailure() ? 1 : 0);
    }
    int status = 0;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}
