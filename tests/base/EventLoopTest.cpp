#include "base/EventLoop.h"

#include "base/ThreadWorkQueue.h"

#include <QCoreApplication>
#include <QTimer>

#include <semaphore>
#include <thread>

#include <gtest/gtest.h>

namespace {

constexpr double minute = 60; // of a turn that is meant to end before

/// Tells whether a turn went on until half of its minute was over.
class Patience
{
public:
    Patience()
    {
        QTimer::singleShot(30000, &context_, [this] { isOver_ = true; });
    }
    bool isOver() const { return isOver_; }

private:
    QObject context_;
    bool isOver_ = false;
};

} // namespace

TEST(EventLoop, runsOnTheMainThreadAlone)
{
    EXPECT_TRUE(eventloop::isMainThread());
    bool isMain = true;
    std::thread([&isMain] { isMain = eventloop::isMainThread(); }).join();
    EXPECT_FALSE(isMain);
}

TEST(EventLoopTurn, endsByItself)
{
    QObject context;
    bool hasFired = false;
    QTimer::singleShot(0, &context, [&hasFired] { hasFired = true; });
    eventloop::turn(0.02);
    EXPECT_TRUE(hasFired) << "events had their turn";
    eventloop::turn(0);
}

TEST(EventLoopTurn, isEndedFromWithin)
{
    const Patience patience;
    QObject context;
    QTimer::singleShot(0, &context, [] { eventloop::endTurn(); });
    eventloop::turn(minute);
    EXPECT_FALSE(patience.isOver());
}

TEST(EventLoopTurn, isEndedFromAnotherThread)
{
    const Patience patience;
    QObject context;
    std::thread other;
    QTimer::singleShot(0, &context, [&other] { other = std::thread(eventloop::endTurn); });
    eventloop::turn(minute);
    other.join();
    EXPECT_FALSE(patience.isOver());
}

TEST(EventLoopTurn, isEndedAsTheInnermostOfSeveral)
{
    const Patience patience;
    QObject context;
    bool isOuterUnderWay = false;
    bool hasInnerEnded = false;
    QTimer::singleShot(0, &context, [&] {
        QTimer::singleShot(0, &context, [] { eventloop::endTurn(); });
        eventloop::turn(minute);
        hasInnerEnded = true;
        // Once the outer one is the innermost again, it still takes an end of its own.
        QTimer::singleShot(10, &context, [&] {
            isOuterUnderWay = true;
            eventloop::endTurn();
        });
    });
    eventloop::turn(minute);
    EXPECT_TRUE(hasInnerEnded);
    EXPECT_TRUE(isOuterUnderWay);
    EXPECT_FALSE(patience.isOver());
}

TEST(EventLoopTurn, isNotEndedByAnEndThatFoundNone)
{
    const Patience patience;
    QObject context;
    eventloop::endTurn();
    QCoreApplication::processEvents();
    bool hasFired = false;
    QTimer::singleShot(10, &context, [&hasFired] {
        hasFired = true;
        eventloop::endTurn();
    });
    eventloop::turn(minute);
    EXPECT_TRUE(hasFired);
    EXPECT_FALSE(patience.isOver());
}

TEST(EventLoopRunAside, worksOnAnotherThreadAndReturnsAtTheEnd)
{
    ThreadWorkQueue queue;
    bool wasMain = true;
    eventloop::runAside(queue, [&wasMain] { wasMain = eventloop::isMainThread(); });
    EXPECT_FALSE(wasMain);
}

TEST(EventLoopRunAside, letsEventsHaveTheirTurn)
{
    ThreadWorkQueue queue;
    QObject context;
    std::binary_semaphore hasFired(0);
    QTimer::singleShot(0, &context, [&hasFired] { hasFired.release(); });
    bool hasSeen = false;
    eventloop::runAside(queue, [&] { hasSeen = hasFired.try_acquire_for(std::chrono::seconds(30)); });
    EXPECT_TRUE(hasSeen);
}

TEST(EventLoopRunAside, mayBeEnteredAgainFromThere)
{
    ThreadWorkQueue queue;
    QObject context;
    std::binary_semaphore hasEnded(0);
    bool isInnerDone = false;
    QTimer::singleShot(0, &context, [&] {
        eventloop::runAside(queue, [&isInnerDone] { isInnerDone = true; });
        hasEnded.release();
    });
    eventloop::runAside(queue, [&hasEnded] { (void)hasEnded.try_acquire_for(std::chrono::seconds(30)); });
    EXPECT_TRUE(isInnerDone);
}
