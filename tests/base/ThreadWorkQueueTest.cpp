#include "base/ThreadWorkQueue.h"

#include "base/EventLoopMainQueue.h"
#include "EventLoopRun.h"

#include <QThread>

#include <atomic>
#include <chrono>
#include <memory>
#include <mutex>
#include <semaphore>

#include <gtest/gtest.h>

namespace {

constexpr int mostJobs = 64; // side by side

/// The library's own and not Qt's, since the thread sanitizer sees what it orders.
using Semaphore = std::counting_semaphore<>;

/// Takes `count` times from a semaphore. False when half a minute brings fewer.
bool acquire(Semaphore &semaphore, int count)
{
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(30);
    while (count > 0 && semaphore.try_acquire_until(end))
        --count;
    return count == 0;
}

} // namespace

TEST(ThreadWorkQueue, runsAJobOffTheThreadThatPostsIt)
{
    ThreadWorkQueue work;
    EventLoopMainQueue main;
    EventLoopRun run;
    const QThread *ranOn = nullptr;
    work.post(WorkPriority::userInitiated, [&] {
        main.post([&, thread = QThread::currentThread()] {
            ranOn = thread;
            run.finish();
        });
    });
    ASSERT_TRUE(run.wait());
    EXPECT_NE(ranOn, QThread::currentThread());
}

TEST(ThreadWorkQueue, runsEveryJobOnce)
{
    constexpr int count = 1000;
    std::atomic<int> runs = 0;
    {
        ThreadWorkQueue work;
        Semaphore done{0};
        for (int number = 0; number < count; ++number) {
            work.post(number % 2 == 0 ? WorkPriority::userInitiated : WorkPriority::utility, [&] {
                ++runs;
                done.release();
            });
        }
        EXPECT_TRUE(acquire(done, count));
    }
    EXPECT_EQ(runs, count);
}

TEST(ThreadWorkQueue, runsJobsThatWaitSideBySideWhateverTheNumberOfCores)
{
    Semaphore arrived{0};
    Semaphore gate{0};
    ThreadWorkQueue work; // last, so that its threads are gone before what they use
    for (int number = 0; number < mostJobs; ++number) {
        work.post(WorkPriority::utility, [&] {
            arrived.release();
            gate.acquire();
        });
    }
    EXPECT_TRUE(acquire(arrived, mostJobs));
    gate.release(mostJobs);
}

TEST(ThreadWorkQueue, takesJobsThatTheUserWaitsForFirst)
{
    std::mutex mutex;
    std::vector<WorkPriority> order;
    Semaphore arrived{0};
    Semaphore gate{0};
    Semaphore done{0};
    ThreadWorkQueue work;
    for (int number = 0; number < mostJobs; ++number) {
        work.post(WorkPriority::userInitiated, [&] {
            arrived.release();
            gate.acquire();
        });
    }
    EXPECT_TRUE(acquire(arrived, mostJobs)); // every thread is taken
    for (const WorkPriority priority : {WorkPriority::utility, WorkPriority::userInitiated}) {
        work.post(priority, [&, priority] {
            const std::lock_guard lock(mutex);
            order.push_back(priority);
            done.release();
        });
    }
    gate.release(); // one thread becomes free and takes both, one by one
    EXPECT_TRUE(acquire(done, 2));
    gate.release(mostJobs - 1);
    EXPECT_EQ(order, (std::vector<WorkPriority>{WorkPriority::userInitiated, WorkPriority::utility}));
}

TEST(ThreadWorkQueue, takesAJobFromWithinAJob)
{
    Semaphore done{0};
    ThreadWorkQueue work;
    work.post(WorkPriority::userInitiated,
              [&] { work.post(WorkPriority::utility, [&done] { done.release(); }); });
    EXPECT_TRUE(acquire(done, 1));
}

TEST(ThreadWorkQueue, letsGoOfWhatAFinishedJobHolds)
{
    const auto held = std::make_shared<int>(0);
    {
        Semaphore done{0};
        ThreadWorkQueue work;
        work.post(WorkPriority::userInitiated, [held, &done] { done.release(); });
        EXPECT_TRUE(acquire(done, 1));
    }
    EXPECT_EQ(held.use_count(), 1);
}
