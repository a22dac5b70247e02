#pragma once

#include "base/MainQueue.h"

#include <QObject>

/// The main queue of a program with a Qt event loop. Construct it on the main thread.
class EventLoopMainQueue final : public MainQueue
{
public:
    void post(Block block) override;
    void postAfter(double seconds, Block block) override;

private:
    QObject context_; // lives on the main thread; its events are the queue
};
