#include "support/OrdinaryUser.h"

#include <cstdio>
#include <exception>

#include <grp.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr unsigned nobody = 65534; // by its number: a bare machine may have no name for it

bool becomeOrdinary()
{
    return geteuid() != 0
           || (setgroups(0, nullptr) == 0 && setgid(nobody) == 0 && setuid(nobody) == 0
               && geteuid() == nobody);
}

/// The child's part. Never returns, so that nothing of the parent's is ended twice.
[[noreturn]] void runChild(const std::function<void()> &checks)
{
    if (!becomeOrdinary()) {
        std::perror("can't become an ordinary user");
        _exit(2);
    }
    try {
        checks();
    } catch (const std::exception &error) {
        ADD_FAILURE() << error.what();
    } catch (...) { // else the child would go on with the tests of its parent
        ADD_FAILURE() << "an error that nobody has caught";
    }
    std::fflush(nullptr);
    _exit(testing::Test::HasFailure() ? 1 : 0);
}

} // namespace

bool holdsForOrdinaryUser(const std::function<void()> &checks)
{
    std::fflush(nullptr); // else the child writes again what waits to be written
    const pid_t child = fork();
    if (child == 0)
        runChild(checks);
    int status = 0;
    return child != -1 && waitpid(child, &status, 0) == child && WIFEXITED(status)
           && WEXITSTATUS(status) == 0;
}
