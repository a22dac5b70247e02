#include "base/ThreadWorkQueue.h"

#include <QRunnable>

#include <atomic>

namespace {

constexpr int mostThreads = 64;

/// A job on its way to a thread. The pool orders the hand-over inside Qt, where the thread sanitizer does not look: the
/// flag, written after the job and read before it, tells the same where it does.
class PostedJob final : public QRunnable
{
public:
    explicit PostedJob(WorkQueue::Job job)
        : job_(std::move(job))
    {
        isWhole_.store(true, std::memory_order_release);
    }

    void run() override
    {
        if (isWhole_.load(std::memory_order_acquire))
            job_();
    }

private:
    WorkQueue::Job job_;
    std::atomic<bool> isWhole_ = false;
};

} // namespace

ThreadWorkQueue::ThreadWorkQueue()
{
    pool_.setMaxThreadCount(mostThreads);
}

void ThreadWorkQueue::post(WorkPriority priority, Job job)
{
    // The pool deletes it after its run, and so lets go of what it holds.
    pool_.start(new PostedJob(std::move(job)), priority == WorkPriority::userInitiated ? 1 : 0);
}
