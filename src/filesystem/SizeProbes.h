#pragma once

#include "base/ChildProcess.h"
#include "filesystem/ProbeContext.h"
#include "platform/Platform.h"

#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

/// Measures folders through `du`, one process a path, and keeps a registry of those alive, so that a cancel can end them
/// at once. Any thread, many at a time.
class SizeProbes final
{
public:
    using Processes = std::vector<std::shared_ptr<ChildProcess>>;

    explicit SizeProbes(const Platform &platform);
    SizeProbes(const SizeProbes &) = delete;
    SizeProbes &operator=(const SizeProbes &) = delete;

    /// The process's one instance, made at the first call with its argument and never destroyed.
    static SizeProbes &shared(const Platform &platform);

    /// The allocated bytes of everything at and below `path`, by one run of `du -sk`. 0 on any failure, so a
    /// failed probe looks like an empty folder. Blocks until the run has ended; any thread but the main one.
    qint64 probeSize(const QString &path, ProbeContext context);

    /// Ends the live probes of one context, or of all. Loops that probe path by path go on with the next one.
    void cancelProbes(std::optional<ProbeContext> context = std::nullopt);

    /// The probes started and not yet finished.
    std::map<ProbeContext, Processes> liveSizeProbes() const;

private:
    const Platform &platform_;
    mutable std::mutex probeLock_; // guards liveSizeProbes_ and nothing else
    std::map<ProbeContext, Processes> liveSizeProbes_;
};
