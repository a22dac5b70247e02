#include "base/EventLoopMainQueue.h"

#include "EventLoopRun.h"

#include <QEventLoop>
#include <QStringList>
#include <QThread>
#include <QTimer>

#include <functional>
#include <map>
#include <memory>
#include <numeric>
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

TEST(EventLoopMainQueue, runsThousandsOfBlocksOfAThreadInTheirOrder)
{
    constexpr int count = 50000;
    EventLoopMainQueue queue;
    EventLoopRun run;
    std::vector<int> order;
    std::thread other([&] {
        for (int number = 0; number < count; ++number)
            queue.post([&order, number] { order.push_back(number); });
        queue.post([&run] { run.finish(); });
    });
    EXPECT_TRUE(run.wait()) << "while they keep coming";
    other.join();
    std::vector<int> expected(count);
    std::iota(expected.begin(), expected.end(), 0);
    EXPECT_EQ(order, expected);
}

TEST(EventLoopMainQueue, runsLaterBlocksInsideABlockThatTurnsTheLoop)
{
    EventLoopMainQueue queue;
    EventLoopRun run;
    QStringList order;
    queue.post([&] {
        order << QStringLiteral("outer begins");
        QEventLoop loop;
        queue.post([&] {
            order << QStringLiteral("posted inside");
            loop.quit();
        });
        loop.exec();
        order << QStringLiteral("outer ends");
    });
    queue.post([&] { order << QStringLiteral("posted before"); });
    queue.postAfter(0.05, [&run] { run.finish(); });
    ASSERT_TRUE(run.wait());
    EXPECT_EQ(order, QStringList({QStringLiteral("outer begins"), QStringLiteral("posted before"),
                                  QStringLiteral("posted inside"), QStringLiteral("outer ends")}));
}

TEST(EventLoopMainQueue, runsEachBlockOnceWhereBlocksTurnTheLoopInsideEachOther)
{
    constexpr int depth = 20;
    EventLoopMainQueue queue;
    EventLoopRun run;
    std::vector<int> order;
    int open = 0;
    for (int number = 0; number < depth; ++number) {
        queue.post([&, number] {
            order.push_back(number);
            QEventLoop loop;
            if (++open < depth) {
                queue.post([&loop] { loop.quit(); });
                loop.exec();
            }
        });
    }
    queue.post([&] { order.push_back(depth); });
    queue.postAfter(0.05, [&run] { run.finish(); });
    ASSERT_TRUE(run.wait());
    std::vector<int> expected(depth + 1);
    std::iota(expected.begin(), expected.end(), 0);
    EXPECT_EQ(order, expected);
}

TEST(EventLoopMainQueue, runsBlocksOfAThreadInsideABlockThatTurnsTheLoop)
{
    constexpr int count = 5000;
    EventLoopMainQueue queue;
    EventLoopRun run;
    std::vector<int> order;
    bool isInside = false;
    bool areAllInside = true;
    std::thread other;
    queue.post([&] {
        QEventLoop loop;
        other = std::thread([&] {
            for (int number = 0; number < count; ++number) {
                queue.post([&, number] {
                    order.push_back(number);
                    areAllInside = areAllInside && isInside;
                    if (number == count - 1)
                        loop.quit();
                });
            }
        });
        isInside = true;
        loop.exec();
        isInside = false;
        run.finish();
    });
    EXPECT_TRUE(run.wait());
    other.join();
    EXPECT_EQ(order.size(), static_cast<size_t>(count));
    EXPECT_TRUE(std::is_sorted(order.begin(), order.end()));
    EXPECT_TRUE(areAllInside);
}

TEST(EventLoopMainQueue, letsTimersAndEventsHaveTheirTurnWhileBlocksKeepComing)
{
    EventLoopMainQueue queue;
    EventLoopRun run;
    bool hasTimerFired = false;
    bool hasEventCome = false;
    QObject receiver;
    std::function<void()> again = [&] {
        if (hasTimerFired && hasEventCome)
            run.finish();
        else
            queue.post(again); // there is always one more
    };
    queue.post(again);
    QTimer::singleShot(1, &receiver, [&] {
        hasTimerFired = true;
        QMetaObject::invokeMethod(
            &receiver, [&] { hasEventCome = true; }, Qt::QueuedConnection);
    });
    EXPECT_TRUE(run.wait());
    EXPECT_TRUE(hasTimerFired && hasEventCome);
    hasTimerFired = hasEventCome = true;
}

TEST(EventLoopMainQueue, runsBlocksThatArePostedAfterARest)
{
    EventLoopMainQueue queue;
    int runs = 0;
    for (const int pause : {0, 1, 2, 3, 30}) { // ms; the queue rests for 2
        EventLoopRun run;
        QObject context;
        queue.post([&runs] { ++runs; });
        QTimer::singleShot(pause, Qt::PreciseTimer, &context, [&] {
            queue.post([&] {
                ++runs;
                run.finish();
            });
        });
        ASSERT_TRUE(run.wait()) << pause;
    }
    EXPECT_EQ(runs, 10);
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
