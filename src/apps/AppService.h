#pragma once

#include "apps/catalogue/RealInstalledApp.h"
#include "apps/ghosts/GhostApp.h"
#include "platform/Platform.h"

#include <QObject>

#include <atomic>
#include <memory>
#include <vector>

class SizeProbes;

/// Finds the installed applications, and what gone ones have left behind, and holds what was found. Nothing is kept on disk. Published fields change on the
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

    /// Of the last search, also of a stopped one; the largest first.
    const std::vector<GhostApp> &ghosts() const { return ghosts_; }
    bool isScanningGhosts() const { return isScanningGhosts_; } ///< until the result is there
    bool hasScannedGhosts() const { return hasScannedGhosts_; } ///< a search has ended once, stopped or not

    bool cancelInstalled() const { return cancelInstalled_->load(std::memory_order_relaxed); }
    /// True is the whole of the command to stop the scan for applications, which looks at it ahead of each; the live size
    /// probe is ended through SizeProbes.
    void setCancelInstalled(bool isCancelled);

    bool cancelGhosts() const { return cancelGhosts_->load(std::memory_order_relaxed); }
    /// The same for the search for ghosts, which looks at it ahead of each entry.
    void setCancelGhosts(bool isCancelled);

    /// Starts a scan and returns at once; the old list stays until the new one is there. A caller looks first that none is
    /// running. Of two side by side the later one's result counts.
    void scanInstalledApps();

    /// Starts a search for what applications have left that are neither among `apps`, as they are now, nor found again.
    /// Returns at once; of two side by side the later one's result counts.
    void scanGhosts();

signals:
    void appsChanged(); ///< another list
    void isLoadingChanged();
    void ghostsChanged(); ///< another list
    void isScanningGhostsChanged();
    void hasScannedGhostsChanged();

private:
    using CancelFlag = std::shared_ptr<std::atomic<bool>>;

    void deliver(std::vector<RealInstalledApp> apps, int scan);
    void deliverGhosts(std::vector<GhostApp> ghosts, int scan);

    const Platform &platform_;
    SizeProbes &probes_;

    std::vector<RealInstalledApp> apps_;
    bool isLoading_ = false;
    std::vector<GhostApp> ghosts_;
    bool isScanningGhosts_ = false;
    bool hasScannedGhosts_ = false;
    /// Jobs hold them weakly: without them their service is gone.
    CancelFlag cancelInstalled_ = std::make_shared<std::atomic<bool>>(false);
    CancelFlag cancelGhosts_ = std::make_shared<std::atomic<bool>>(false);
    int scans_ = 0; // that have begun
    int ghostScans_ = 0;
};
