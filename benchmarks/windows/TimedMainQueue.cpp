#include "TimedMainQueue.h"

#include <QAbstractEventDispatcher>

#include <algorithm>
#include <ctime>

namespace {

/// CPU seconds of the calling thread.
double threadTime()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

} // namespace

TimedMainQueue::TimedMainQueue(MainQueue &queue)
    : queue_(queue)
{
    QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake, &context_,
                     [this] { turn_ = 0; });
}

void TimedMainQueue::post(Block block)
{
    queue_.post(timed(std::move(block)));
}

void TimedMainQueue::postAfter(double seconds, Block block)
{
    queue_.postAfter(seconds, timed(std::move(block)));
}

void TimedMainQueue::reset()
{
    turn_ = 0;
    longestTurn_ = 0;
}

MainQueue::Block TimedMainQueue::timed(Block block)
{
    return [this, block = std::move(block)] {
        const double start = threadTime();
        block();
        turn_ += threadTime() - start;
        longestTurn_ = std::max(longestTurn_, turn_);
    };
}
