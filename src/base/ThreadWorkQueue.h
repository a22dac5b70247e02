#pragma once

#include "base/WorkQueue.h"

#include <QThreadPool>

/// The work queue on threads. Its size is for jobs that wait for child processes, not for the number of cores.
/// Nothing waits for its jobs at exit: the program ends without running destructors.
class ThreadWorkQueue final : public WorkQueue
{
public:
    ThreadWorkQueue();

    void post(WorkPriority priority, Job job) override;

private:
    QThreadPool pool_;
};
