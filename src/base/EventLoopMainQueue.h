#pragma once

#include "base/MainQueue.h"

#include <QTimer>

#include <deque>
#include <mutex>

/// The main queue of a program with a Qt event loop. Construct it on the main thread.
///
/// A worker may post thousands of blocks a second. Each of them runs, in its place; but the main thread is not woken for
/// each: after it has run some it rests for a moment, in which more gather. Nor does it run them on end while other events
/// wait.
class EventLoopMainQueue final : public MainQueue
{
public:
    EventLoopMainQueue();

    void post(Block block) override;
    void postAfter(double seconds, Block block) override;

private:
    void runBlocks();
    Block takeNext();

    std::mutex mutex_; // guards the next two
    std::deque<Block> blocks_;
    bool isRunDue_ = false; ///< an event or the timer will call `runBlocks`
    QObject context_;       ///< lives on the main thread
    QTimer timer_;          ///< likewise
};
