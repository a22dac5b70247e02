#include "base/ThreadWorkQueue.h"

namespace {
constexpr int mostThreads = 64;
}

ThreadWorkQueue::ThreadWorkQueue()
{
    pool_.setMaxThreadCount(mostThreads);
}

void ThreadWorkQueue::post(WorkPriority priority, Job job)
{
    pool_.start(std::move(job), priority == WorkPriority::userInitiated ? 1 : 0);
}
