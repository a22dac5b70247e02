#pragma once

#include "base/MainQueue.h"

#include <memory>

/// A repeating timer on the main queue: runs its block once a period until it is stopped, restarted or
/// destroyed. Main thread only.
class Ticker
{
public:
    /// `main` outlives the ticker.
    explicit Ticker(MainQueue &main);
    ~Ticker();
    Ticker(const Ticker &) = delete;
    Ticker &operator=(const Ticker &) = delete;

    /// Runs `block` every `period` seconds from now on, in place of what ran before.
    void start(double period, MainQueue::Block block);

    void stop();

    bool isActive() const { return run_ != nullptr; }

private:
    struct Run;
    static void schedule(const std::shared_ptr<Run> &run);

    MainQueue &main_;
    std::shared_ptr<Run> run_; // the posted block holds it weakly, so that a stop ends the chain
};
