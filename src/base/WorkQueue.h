#pragma once

#include <functional>

/// How soon a user waits for the result of a piece of background work.
enum class WorkPriority {
    userInitiated,
    utility,
};

/// The one way off the main thread. Jobs run side by side, each serial within itself; most of them wait for a
/// child process. Safe from any thread.
class WorkQueue
{
public:
    using Job = std::function<void()>;

    WorkQueue() = default;
    WorkQueue(const WorkQueue &) = delete;
    WorkQueue &operator=(const WorkQueue &) = delete;
    virtual ~WorkQueue() = default;

    /// Runs `job` on a thread of its own choice, soon.
    virtual void post(WorkPriority priority, Job job) = 0;
};
