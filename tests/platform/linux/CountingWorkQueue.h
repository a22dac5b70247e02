#pragma once

#include "base/ThreadWorkQueue.h"
#include "WaitUntil.h"

#include <atomic>

/// The work queue on threads, of which a test can tell when all is done.
class CountingWorkQueue final : public WorkQueue
{
public:
    void post(WorkPriority priority, Job job) override
    {
        ++pending_;
        queue_.post(priority, [this, job = std::move(job)] {
            job();
            --pending_;
        });
    }

    /// Turns the event loop until no job is left.
    bool waitUntilIdle() const
    {
        return waitUntil([this] { return pending_ == 0; });
    }

private:
    std::atomic<int> pending_ = 0;
    ThreadWorkQueue queue_; // first to go: its jobs count down
};
