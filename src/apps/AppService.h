#pragma once

#include "apps/catalogue/RealInstalledApp.h"
#include "platform/Platform.h"

#include <QObject>

#include <atomic>
#include <memory>
#include <vector>

class SizeProbes;

/// Finds the installed applications and holds what was found. Nothing is kept on disk. Published fields change on the
/// main thread only, set first, then notified. Main thread, all of it; scans run on the work queue.
class AppService final : public QObject
{
    Q_OBJECT

public:
    AppService(const Platform &platform, SizeProbes &probes);

    // Published fields.

    /// Of the last scan, also of a stopped one, which has as far as it came; largest bundle first.
    const std::vector<RealInstalledApp> &apps() const { return apps_; }
    bool isLoading() const { return isLoading_; } ///< until the result is there

    bool cancelInstalled() const { return cancelInstalled_->load(std::memory_order_relaxed); }
    /// True is the whole of the command to stop the scan for applications, which looks at it ahead of each; the live size
    /// probe is ended through SizeProbes.
    void setCancelInstalled(bool isCancelled);

    /// Starts a scan and returns at once; the old list stays until the new one is there. A caller looks first that none is
    /// running. Of two side by side the later one's result counts.
    void scanInstalledApps();

signals:
    void appsChanged(); ///< another list
    void isLoadingChanged();

private:
    void deliver(std::vector<RealInstalledApp> apps, int scan);

    const Platform &platform_;
    SizeProbes &probes_;

    std::vector<RealInstalledApp> apps_;
    bool isLoading_ = false;
    /// Jobs hold it weakly: without it their service is gone.
    std::shared_ptr<std::atomic<bool>> cancelInstalled_ = std::make_shared<std::atomic<bool>>(false);
    int scans_ = 0; // that have begun
};
