#pragma once

#include "base/MainQueue.h"

#include <memory>

/// Tells of what changes more often than anyone can read: the first request sets a delay going, those that come during it
/// are covered by its end. Main thread only.
class Throttle
{
public:
    /// Runs `block` `period` seconds after a request at the earliest. `main` outlives the throttle; nothing runs once the
    /// throttle has gone.
    Throttle(MainQueue &main, double period, MainQueue::Block block);
    Throttle(const Throttle &) = delete; // a copy would share the delay
    Throttle &operator=(const Throttle &) = delete;

    void request();

private:
    struct State;

    MainQueue &main_;
    const double period_;
    std::shared_ptr<State> state_; // the posted block holds it weakly
};
