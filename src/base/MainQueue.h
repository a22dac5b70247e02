#pragma once

#include <functional>

/// The one way to the main thread. Blocks run in the order in which they were posted, never inside the call
/// that posts them; nobody waits for one. Safe from any thread.
class MainQueue
{
public:
    using Block = std::function<void()>;

    MainQueue() = default;
    MainQueue(const MainQueue &) = delete;
    MainQueue &operator=(const MainQueue &) = delete;
    virtual ~MainQueue() = default;

    /// Runs `block` in a later turn of the main loop.
    virtual void post(Block block) = 0;

    /// Runs `block` no earlier than `seconds` from now; 0 and less is "as soon as possible".
    virtual void postAfter(double seconds, Block block) = 0;
};
