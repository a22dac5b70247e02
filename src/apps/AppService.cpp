#include "apps/AppService.h"

#include "apps/catalogue/AppCatalogue.h"
#include "apps/ghosts/GhostScan.h"
#include "base/GuardedPost.h"

#include <functional>
#include <utility>

namespace {

/// Whether a job is to end: it was told to, or its service has gone.
std::function<bool()> stopOf(const std::shared_ptr<std::atomic<bool>> &flag)
{
    return [cancel = std::weak_ptr(flag)] {
        const auto held = cancel.lock();
        return !held || held->load(std::memory_order_relaxed);
    };
}

} // namespace

AppService::AppService(const Platform &platform, SizeProbes &probes)
    : platform_(platform)
    , probes_(probes)
{
}

void AppService::setCancelInstalled(bool isCancelled)
{
    cancelInstalled_->store(isCancelled, std::memory_order_relaxed);
}

void AppService::setCancelGhosts(bool isCancelled)
{
    cancelGhosts_->store(isCancelled, std::memory_order_relaxed);
}

void AppService::scanInstalledApps()
{
    isLoading_ = true;
    setCancelInstalled(false);
    ++scans_;
    emit isLoadingChanged();
    platform_.workQueue.post(WorkPriority::userInitiated, [self = QPointer(this), scan = scans_,
                                                           isStopped = stopOf(cancelInstalled_),
                                                           &platform = platform_, &probes = probes_] {
        guarded::post(platform.mainQueue, self,
                      [apps = appcatalogue::build(*platform.locations, probes, isStopped),
                       scan](AppService &service) { service.deliver(apps, scan); });
    });
}

void AppService::deliver(std::vector<RealInstalledApp> apps, int scan)
{
    if (scan != scans_) // a later one has begun meanwhile, and this one may hold what has been removed since
        return;
    apps_ = std::move(apps);
    isLoading_ = false;
    emit appsChanged();
    emit isLoadingChanged();
}

void AppService::scanGhosts()
{
    isScanningGhosts_ = true;
    setCancelGhosts(false);
    ++ghostScans_;
    emit isScanningGhostsChanged();
    platform_.workQueue.post(WorkPriority::userInitiated, [self = QPointer(this), scan = ghostScans_,
                                                           apps = apps_, isStopped = stopOf(cancelGhosts_),
                                                           &platform = platform_, &probes = probes_] {
        const ghostscan::Hooks hooks{isStopped, [&platform](const QString &identifier) {
                                         return platform.applications.knownPaths(identifier);
                                     }};
        guarded::post(platform.mainQueue, self,
                      [ghosts = ghostscan::run({apps, *platform.locations}, probes, hooks),
                       scan](AppService &service) { service.deliverGhosts(ghosts, scan); });
    });
}

void AppService::deliverGhosts(std::vector<GhostApp> ghosts, int scan)
{
    if (scan != ghostScans_) // as above
        return;
    ghosts_ = std::move(ghosts);
    isScanningGhosts_ = false;
    const bool isFirst = !std::exchange(hasScannedGhosts_, true);
    emit ghostsChanged();
    emit isScanningGhostsChanged();
    if (isFirst)
        emit hasScannedGhostsChanged();
}
