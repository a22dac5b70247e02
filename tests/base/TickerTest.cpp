#include "base/Ticker.h"

#include "support/SteppedQueues.h"

#include <memory>

#include <gtest/gtest.h>

TEST(Ticker, runsItsBlockOncePerPeriod)
{
    SteppedMainQueue queue;
    Ticker ticker(queue);
    int ticks = 0;
    ticker.start(30, [&ticks] { ++ticks; });
    EXPECT_TRUE(ticker.isActive());
    queue.advance(29.9);
    EXPECT_EQ(ticks, 0);
    queue.advance(0.1);
    EXPECT_EQ(ticks, 1);
    queue.advance(90);
    EXPECT_EQ(ticks, 4);
}

TEST(Ticker, doesNothingBeforeItIsStarted)
{
    SteppedMainQueue queue;
    Ticker ticker(queue);
    EXPECT_FALSE(ticker.isActive());
    ticker.stop();
    EXPECT_EQ(queue.waiting(), 0U);
}

TEST(Ticker, endsWhenItIsStopped)
{
    SteppedMainQueue queue;
    Ticker ticker(queue);
    int ticks = 0;
    ticker.start(1, [&ticks] { ++ticks; });
    queue.advance(1);
    ticker.stop();
    EXPECT_FALSE(ticker.isActive());
    queue.advance(10);
    EXPECT_EQ(ticks, 1);
    EXPECT_EQ(queue.waiting(), 0U);
}

TEST(Ticker, endsWhenItsBlockStopsIt)
{
    SteppedMainQueue queue;
    Ticker ticker(queue);
    const auto ticks = std::make_shared<int>(0);
    ticker.start(1, [&ticker, ticks] {
        ticker.stop();
        ++*ticks; // what the block holds is still there
    });
    queue.advance(10);
    EXPECT_EQ(*ticks, 1);
    EXPECT_FALSE(ticker.isActive());
    EXPECT_EQ(ticks.use_count(), 1);
}

TEST(Ticker, runsTheNewBlockAloneAfterARestart)
{
    SteppedMainQueue queue;
    Ticker ticker(queue);
    int oldTicks = 0;
    int newTicks = 0;
    ticker.start(10, [&oldTicks] { ++oldTicks; });
    queue.advance(5);
    ticker.start(10, [&newTicks] { ++newTicks; });
    queue.advance(9);
    EXPECT_EQ(newTicks, 0) << "the period begins at the restart";
    queue.advance(11);
    EXPECT_EQ(oldTicks, 0);
    EXPECT_EQ(newTicks, 2);
}

TEST(Ticker, startsAgainAfterAStop)
{
    SteppedMainQueue queue;
    Ticker ticker(queue);
    int ticks = 0;
    ticker.start(1, [&ticks] { ++ticks; });
    ticker.stop();
    ticker.start(2, [&ticks] { ++ticks; });
    queue.advance(4);
    EXPECT_EQ(ticks, 2);
}

TEST(Ticker, runsTheNewBlockAloneWhenItsBlockRestartsIt)
{
    SteppedMainQueue queue;
    Ticker ticker(queue);
    int firstTicks = 0;
    int secondTicks = 0;
    ticker.start(1, [&] {
        ++firstTicks;
        ticker.start(2, [&] { ++secondTicks; });
    });
    queue.advance(7);
    EXPECT_EQ(firstTicks, 1);
    EXPECT_EQ(secondTicks, 3);
}

TEST(Ticker, endsWhenItIsDestroyed)
{
    SteppedMainQueue queue;
    int ticks = 0;
    {
        Ticker ticker(queue);
        ticker.start(1, [&ticks] { ++ticks; });
        queue.advance(1);
    }
    queue.advance(10);
    EXPECT_EQ(ticks, 1);
    EXPECT_EQ(queue.waiting(), 0U);
}

TEST(Ticker, endsWhenItsBlockDestroysIt)
{
    SteppedMainQueue queue;
    auto ticker = std::make_unique<Ticker>(queue);
    int ticks = 0;
    ticker->start(1, [&] {
        ticker.reset();
        ++ticks;
    });
    queue.advance(10);
    EXPECT_EQ(ticks, 1);
}
