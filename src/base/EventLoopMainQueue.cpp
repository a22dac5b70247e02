#include "base/EventLoopMainQueue.h"

#include <QElapsedTimer>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <utility>

namespace {

constexpr int longestRun = 4; // ms, after which other events have their turn
constexpr int rest = 2;       // ms

} // namespace

EventLoopMainQueue::EventLoopMainQueue()
{
    timer_.setSingleShot(true);
    timer_.setTimerType(Qt::PreciseTimer);
    timer_.callOnTimeout(&context_, [this] { runBlocks(); });
}

void EventLoopMainQueue::post(Block block)
{
    const std::lock_guard lock(mutex_);
    blocks_.push_back(std::move(block));
    if (!std::exchange(isRunDue_, true))
        QMetaObject::invokeMethod(
            &context_, [this] { runBlocks(); }, Qt::QueuedConnection);
}

/// The next block in its turn; empty when there is none, and then the next post wakes the main thread.
MainQueue::Block EventLoopMainQueue::takeNext()
{
    const std::lock_guard lock(mutex_);
    isRunDue_ = !blocks_.empty();
    if (blocks_.empty())
        return {};
    Block block = std::move(blocks_.front());
    blocks_.pop_front();
    return block;
}

void EventLoopMainQueue::runBlocks()
{
    QElapsedTimer clock;
    clock.start();
    while (const Block block = takeNext()) {
        // Should the block let the event loop turn, the others have to run from there.
        if (!timer_.isActive() || timer_.interval() != 0)
            timer_.start(0);
        block();
        if (clock.elapsed() >= longestRun)
            return;
    }
    // takeNext has found nothing: the blocks of the next moment wait for the timer.
    if (timer_.isActive()) {
        const std::lock_guard lock(mutex_);
        isRunDue_ = true;
        timer_.start(rest);
    }
}

void EventLoopMainQueue::postAfter(double seconds, Block block)
{
    const auto wait = std::chrono::milliseconds(std::llround(std::max(seconds, 0.0) * 1000));
    // A timer belongs to the thread that starts it, so it is started on the main one.
    post([this, wait, block = std::move(block)]() mutable {
        QTimer::singleShot(wait, Qt::PreciseTimer, &context_, std::move(block));
    });
}
