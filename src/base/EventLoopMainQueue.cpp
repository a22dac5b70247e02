#include "base/EventLoopMainQueue.h"

#include <QTimer>

#include <algorithm>
#include <chrono>
#include <cmath>

void EventLoopMainQueue::post(Block block)
{
    QMetaObject::invokeMethod(&context_, std::move(block), Qt::QueuedConnection);
}

void EventLoopMainQueue::postAfter(double seconds, Block block)
{
    const auto wait = std::chrono::milliseconds(std::llround(std::max(seconds, 0.0) * 1000));
    // A timer belongs to the thread that starts it, so it is started on the main one.
    post([this, wait, block = std::move(block)]() mutable {
        QTimer::singleShot(wait, Qt::PreciseTimer, &context_, std::move(block));
    });
}
