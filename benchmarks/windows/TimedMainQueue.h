#pragma once

#include "base/MainQueue.h"

#include <QObject>

/// A main queue that measures what its blocks cost: the CPU time of the main thread in all blocks of one turn of the
/// event loop. Painting comes from the window, not from a block, and is not counted.
class TimedMainQueue final : public MainQueue
{
public:
    /// Runs its blocks through `queue`. Construct it on the main thread, with the application there.
    explicit TimedMainQueue(MainQueue &queue);

    void post(Block block) override;
    void postAfter(double seconds, Block block) override;

    /// Forgets what was measured so far. Main thread, like `longestTurn`.
    void reset();

    /// Seconds in the longest turn since the last `reset`.
    double longestTurn() const { return longestTurn_; }

private:
    Block timed(Block block);

    MainQueue &queue_;
    QObject context_; // of the event loop's signals
    double turn_ = 0;
    double longestTurn_ = 0;
};
