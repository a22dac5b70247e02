#include "apps/AppService.h"

#include "apps/catalogue/AppCatalogue.h"
#include "base/GuardedPost.h"

#include <utility>

AppService::AppService(const Platform &platform, SizeProbes &probes)
    : platform_(platform)
    , probes_(probes)
{
}

void AppService::setCancelInstalled(bool isCancelled)
{
    cancelInstalled_->store(isCancelled, std::memory_order_relaxed);
}

void AppService::scanInstalledApps()
{
    isLoading_ = true;
    setCancelInstalled(false);
    ++scans_;
    emit isLoadingChanged();
    platform_.workQueue.post(WorkPriority::userInitiated, [self = QPointer(this), scan = scans_,
                                                           cancel = std::weak_ptr(cancelInstalled_),
                                                           &platform = platform_, &probes = probes_] {
        const auto isStopped = [&cancel] {
            const auto held = cancel.lock();
            return !held || held->load(std::memory_order_relaxed);
        };
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
