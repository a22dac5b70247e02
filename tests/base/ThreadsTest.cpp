#include "base/Threads.h"

#include "base/ChildProcess.h"
#include "base/Error.h"
#include "support/FifoLine.h"
#include "support/OrdinaryUser.h"
#include "support/TempHome.h"

#include <cerrno>
#include <future>
#include <thread>

#include <gtest/gtest.h>
#include <sys/resource.h>

using namespace Qt::StringLiterals;

TEST(Threads, runABlockOnAThreadOfItsOwn)
{
    std::promise<std::thread::id> ran;
    threads::runDetached([&ran] { ran.set_value(std::this_thread::get_id()); });
    EXPECT_NE(ran.get_future().get(), std::this_thread::get_id());
}

TEST(Threads, failWithAnErrorWhereNoneCanBeStarted)
{
    EXPECT_TRUE(holdsForOrdinaryUser([] {
        const rlimit none{0, 0};
        ASSERT_EQ(setrlimit(RLIMIT_NPROC, &none), 0);
        try {
            threads::runDetached([] {});
            ADD_FAILURE() << "a thread was started";
        } catch (const Error &error) {
            EXPECT_EQ(error.domain, errors::systemDomain);
            EXPECT_EQ(error.code, EAGAIN);
        }
    }));
}
