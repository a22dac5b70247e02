#pragma once

#include "base/MainQueue.h"
#include "base/WorkQueue.h"

#include <deque>
#include <map>
#include <mutex>

/// A main queue that a test turns by hand; its seconds pass only in `advance`. `post` may come from any thread, all
/// else belongs to the test's.
class SteppedMainQueue final : public MainQueue
{
public:
    void post(Block block) override;
    void postAfter(double seconds, Block block) override;

    /// Runs the oldest block that is due. False when there is none.
    bool step();

    /// Runs blocks until none is due, those that they post included. Gives their number.
    int run();

    /// Lets `seconds` pass, running what falls due on the way in its order.
    void advance(double seconds);

    /// How many blocks wait for their time to come.
    size_t waiting() const;

private:
    mutable std::mutex mutex_;
    std::deque<Block> due_;
    std::multimap<double, Block> later_;
    double now_ = 0;
};

/// A work queue that a test turns by hand, on the test's own thread.
class SteppedWorkQueue final : public WorkQueue
{
public:
    void post(WorkPriority priority, Job job) override;

    /// Runs the oldest job. False when there is none.
    bool step();

    /// Runs jobs until there is none. Gives their number.
    int run();

    /// Lets the jobs that wait go unrun, as if they were slow.
    void drop() { jobs_.clear(); }

    size_t waiting() const { return jobs_.size(); }
    WorkPriority lastPriority() const { return lastPriority_; }

private:
    std::deque<Job> jobs_;
    WorkPriority lastPriority_ = WorkPriority::userInitiated;
};
