#include "base/Throttle.h"

#include "support/SteppedQueues.h"

#include <optional>
#include <type_traits>

#include <gtest/gtest.h>

TEST(Throttle, tellsOnceForAllRequestsOfAPeriod)
{
    SteppedMainQueue queue;
    int told = 0;
    Throttle throttle(queue, 0.5, [&told] { ++told; });
    throttle.request();
    queue.advance(0.4);
    throttle.request();
    EXPECT_EQ(told, 0);
    queue.advance(0.1);
    EXPECT_EQ(told, 1);
    queue.advance(5);
    EXPECT_EQ(told, 1);
}

TEST(Throttle, tellsAgainAfterTheNextRequest)
{
    SteppedMainQueue queue;
    int told = 0;
    Throttle throttle(queue, 0.5, [&told] { ++told; });
    throttle.request();
    queue.advance(0.5);
    throttle.request();
    queue.advance(0.5);
    EXPECT_EQ(told, 2);
}

TEST(Throttle, letsItsBlockRequestAgain)
{
    SteppedMainQueue queue;
    int told = 0;
    std::optional<Throttle> throttle;
    throttle.emplace(queue, 0.5, [&] {
        if (++told == 1)
            throttle->request();
    });
    throttle->request();
    queue.advance(2);
    EXPECT_EQ(told, 2);
}

TEST(Throttle, hasNoCopies)
{
    EXPECT_FALSE(std::is_copy_constructible_v<Throttle>);
    EXPECT_FALSE(std::is_copy_assignable_v<Throttle>);
}

TEST(Throttle, tellsNothingOnceItHasGone)
{
    SteppedMainQueue queue;
    int told = 0;
    {
        Throttle throttle(queue, 0.5, [&told] { ++told; });
        throttle.request();
    }
    queue.advance(1);
    EXPECT_EQ(told, 0);
}
