#include "support/SteppedQueues.h"

#include <utility>

void SteppedMainQueue::post(Block block)
{
    const std::lock_guard lock(mutex_);
    due_.push_back(std::move(block));
}

void SteppedMainQueue::postAfter(double seconds, Block block)
{
    if (seconds <= 0)
        return post(std::move(block));
    const std::lock_guard lock(mutex_);
    later_.emplace(now_ + seconds, std::move(block));
}

bool SteppedMainQueue::step()
{
    Block block;
    {
        const std::lock_guard lock(mutex_);
        if (due_.empty())
            return false;
        block = std::move(due_.front());
        due_.pop_front();
    }
    block();
    return true;
}

int SteppedMainQueue::run()
{
    int count = 0;
    while (step())
        ++count;
    return count;
}

void SteppedMainQueue::advance(double seconds)
{
    run();
    const double end = now_ + seconds;
    while (!later_.empty() && later_.begin()->first <= end) {
        now_ = later_.begin()->first;
        post(std::move(later_.begin()->second));
        later_.erase(later_.begin());
        run();
    }
    now_ = end;
}

size_t SteppedMainQueue::waiting() const
{
    const std::lock_guard lock(mutex_);
    return later_.size();
}

void SteppedWorkQueue::post(WorkPriority priority, Job job)
{
    lastPriority_ = priority;
    jobs_.push_back(std::move(job));
}

bool SteppedWorkQueue::step()
{
    if (jobs_.empty())
        return false;
    const Job job = std::move(jobs_.front());
    jobs_.pop_front();
    job();
    return true;
}

int SteppedWorkQueue::run()
{
    int count = 0;
    while (step())
        ++count;
    return count;
}
