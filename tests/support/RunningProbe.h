#pragma once

#include "filesystem/SizeProbes.h"

#include <thread>

/// One probe on a thread of its own.
class RunningProbe
{
public:
    RunningProbe(SizeProbes &probes, const QString &path, ProbeContext context)
        : thread_([this, &probes, path, context] { size_ = probes.probeSize(path, context); })
    {
    }
    ~RunningProbe()
    {
        if (thread_.joinable())
            thread_.join();
    }
    RunningProbe(const RunningProbe &) = delete;
    RunningProbe &operator=(const RunningProbe &) = delete;

    /// Waits for the probe's end.
    qint64 size()
    {
        thread_.join();
        return size_;
    }

private:
    qint64 size_ = -1;
    std::thread thread_;
};
