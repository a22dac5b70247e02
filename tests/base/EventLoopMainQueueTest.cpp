#include "base/EventLoopMainQueue.h"

#include "EventLoopRun.h"

#include <QThread>

#include <map>
#include <memory>
#include <thread>

#include <gtest/gtest.h>

TEST(EventLoopMainQueue, runsBlocksInTheOrderOfTheirPosts)
{
    EventLoopMainQueue queue;
    EventLoopRun run;
    std::vector<int> order;
    for (int number = 0; number < 100; ++number)
        queue.post([&order, number] { order.push_back(number); });
    queue.post([&run] { run.finish(); });
    ASSERT_TRUE(run.wait());
    ASSERT_EQ(order.size(), 100U);
    EXPECT_TRUE(std::is_sorted(order.begin(), order.end()));
}

TEST(EventLoopMainQueue, runsNoBlockWithinTheCallThatPostsIt)
{
    EventLoopMainQueue queue;
    EventLoopRun run;
    bool hasRun = false;
    queue.post([&] { hasRun = true; });
    queue.postAfter(0, [&run] { run.finish(); });
    queue.postAfter(-1, [] {});
    EXPECT_FALSE(hasRun);
    ASSERT_TRUE(run.wait());
    EXPECT_TRUE(hasRun);
}

TEST(EventLoopMainQueue, runsABlockThatABlockPostsAfterIt)
{
    EventLoopMainQueue queue;
    EventLoopRun run;
    std::vector<QString> order;
    queue.post([&] {
        queue.post([&] {
            order.emplace_back(QStringLiteral("inner"));
            run.finish();
        });
        order.emplace_back(QStringLiteral("outer"));
    });
    queue.post([&] { order.emplace_back(QStringLiteral("next")); });
    ASSERT_TRUE(run.wait());
    EXPECT_EQ(order, (std::vector<QString>{QStringLiteral("outer"), QStringLiteral("next"),
                                           QStringLiteral("inner")}));
}

TEST(EventLoopMainQueue, runsBlocksOfOtherThreadsOnTheMainOneInTheirOrder)
{
    constexpr int threadCount = 4;
    constexpr int posts = 200;
    EventLoopMainQueue queue;
    EventLoopRun run;
    std::map<int, std::vector<int>> order; // by the thread that posted
    bool isElsewhere = false;
    const QThread *const main = QThread::currentThread();
    std::vector<std::thread> threads;
    int left = threadCount * posts;
    for (int thread = 0; thread < threadCount; ++thread) {
        threads.emplace_back([&, thread] {
            for (int number = 0; number < posts; ++number) {
                queue.post([&, thread, number] {
                    isElsewhere |= QThread::currentThread() != main;
                    order[thread].push_back(number);
                    if (--left == 0)
                        run.finish();
                });
            }
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    EXPECT_TRUE(run.wait());
    EXPECT_FALSE(isElsewhere);
    for (int thread = 0; thread < threadCount; ++thread) {
        EXPECT_EQ(order[thread].size(), static_cast<size_t>(posts));
        EXPECT_TRUE(std::is_sorted(order[thread].begin(), order[thread].end()));
    }
}

TEST(EventLoopMainQueue, runsADelayedBlockOfAnotherThreadOnTheMainOne)
{
    EventLoopMainQueue queue;
    EventLoopRun run;
    const QThread *ranOn = nullptr;
    std::thread other([&] {
        queue.postAfter(0.001, [&] {
            ranOn = QThread::currentThread();
            run.finish();
        });
    });
    other.join();
    EXPECT_TRUE(run.wait());
    EXPECT_EQ(ranOn, QThread::currentThread());
}

TEST(EventLoopMainQueue, runsDelayedBlocksInTheOrderOfTheirDelays)
{
    EventLoopMainQueue queue;
    EventLoopRun run;
    std::vector<int> order;
    queue.postAfter(0.3, [&] {
        order.push_back(3);
        run.finish();
    });
    queue.postAfter(0.001, [&] { order.push_back(2); });
    queue.post([&] { order.push_back(1); });
    ASSERT_TRUE(run.wait());
    EXPECT_EQ(order, (std::vector<int>{1, 2, 3}));
}

TEST(EventLoopMainQueue, dropsItsBlocksWhenItIsDestroyed)
{
    EventLoopMainQueue other;
    EventLoopRun run;
    const auto held = std::make_shared<bool>(false);
    {
        EventLoopMainQueue queue;
        queue.post([held] { *held = true; });
    }
    other.post([&run] { run.finish(); });
    ASSERT_TRUE(run.wait());
    EXPECT_FALSE(*held);
    EXPECT_EQ(held.use_count(), 1) << "what a dropped block holds is let go";
}
