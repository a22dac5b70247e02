#include "apps/AppService.h"

#include "apps/catalogue/AppCatalogue.h"
#include "apps/ghosts/GhostScan.h"
#include "base/GuardedPost.h"

#include <QSet>

#include <algorithm>
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

/// Where the record with that id stands; the end's number where there is none.
template<typename Record>
size_t indexOf(const std::vector<Record> &records, const QUuid &id)
{
    return static_cast<size_t>(std::ranges::find(records, id, &Record::id) - records.begin());
}

template<typename Record>
void tickAll(std::vector<Record> &records, bool isSelected)
{
    for (Record &record : records)
        record.selected = isSelected;
}

template<typename Record>
void takeOutOf(std::vector<Record> &records, const std::vector<Record> &gone, QString Record::*name)
{
    QSet<QUuid> ids;
    QSet<QString> names;
    for (const Record &record : gone) {
        ids.insert(record.id);
        names.insert(record.*name);
    }
    std::erase_if(records, [&](const Record &record) {
        return ids.contains(record.id) || names.contains(record.*name);
    });
}

} // namespace

AppService::AppService(const Platform &platform, SizeProbes &probes, const FileSystemService &fileSystem,
                       History history)
    : platform_(platform)
    , probes_(probes)
    , tools_{platform, fileSystem, std::move(history)}
{
}

AppService &AppService::shared(const Platform &platform, SizeProbes &probes,
                               const FileSystemService &fileSystem, const History &history)
{
    static AppService &instance = *new AppService(platform, probes, fileSystem, history);
    return instance;
}

void AppService::setCancelInstalled(bool isCancelled)
{
    cancelInstalled_->store(isCancelled, std::memory_order_relaxed);
}

void AppService::setCancelGhosts(bool isCancelled)
{
    cancelGhosts_->store(isCancelled, std::memory_order_relaxed);
}

void AppService::setRemoving(bool isRemoving)
{
    isRemoving_ = isRemoving;
    emit isRemovingChanged();
}

void AppService::scanInstalledApps()
{
    isLoading_ = true;
    setCancelInstalled(false);
    goneApps_.clear();
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
    takeOutOf(apps_, goneApps_, &RealInstalledApp::path);
    isLoading_ = false;
    emit appsChanged();
    emit isLoadingChanged();
}

void AppService::scanGhosts()
{
    isScanningGhosts_ = true;
    setCancelGhosts(false);
    goneGhosts_.clear();
    ++ghostScans_;
    emit isScanningGhostsChanged();
    platform_.workQueue.post(WorkPriority::userInitiated, [self = QPointer(this), scan = ghostScans_,
                                                           apps = apps_, isStopped = stopOf(cancelGhosts_),
                                                           &platform = platform_, &probes = probes_] {
        const auto knownPaths = [&platform](const QString &identifier) {
            return platform.applications.knownPaths(identifier);
        };
        guarded::post(platform.mainQueue, self,
                      [ghosts = ghostscan::run({apps, *platform.locations}, probes, {isStopped, knownPaths}),
                       scan](AppService &service) { service.deliverGhosts(ghosts, scan); });
    });
}

void AppService::deliverGhosts(std::vector<GhostApp> ghosts, int scan)
{
    if (scan != ghostScans_) // as above
        return;
    ghosts_ = std::move(ghosts);
    takeOutOf(ghosts_, goneGhosts_, &GhostApp::bundleID);
    isScanningGhosts_ = false;
    const bool isFirst = !std::exchange(hasScannedGhosts_, true);
    emit ghostsChanged();
    emit isScanningGhostsChanged();
    if (isFirst)
        emit hasScannedGhostsChanged();
}

void AppService::toggleApp(const QUuid &id)
{
    const size_t index = indexOf(apps_, id);
    if (index == apps_.size())
        return;
    apps_[index].selected = !apps_[index].selected;
    emit appChanged(index);
}

void AppService::clearSelection()
{
    tickAll(apps_, false);
    emit appTicksChanged();
}

void AppService::toggleGhost(const QUuid &id)
{
    const size_t index = indexOf(ghosts_, id);
    if (index == ghosts_.size())
        return;
    ghosts_[index].selected = !ghosts_[index].selected;
    emit ghostChanged(index);
}

void AppService::selectAllGhosts(bool isSelected)
{
    tickAll(ghosts_, isSelected);
    emit ghostTicksChanged();
}

void AppService::takeFileTicks(const GhostApp &ghost)
{
    const size_t index = indexOf(ghosts_, ghost.id);
    if (index == ghosts_.size())
        return;
    ghosts_[index].files = ghost.files;
    emit ghostChanged(index);
}

UninstallReport AppService::uninstall(const RealInstalledApp &app,
                                      const std::vector<AssociatedFile> &files) const
{
    return appuninstall::run(app, files, tools_);
}

void AppService::takeOut(const std::vector<RealInstalledApp> &gone)
{
    takeOutOf(apps_, gone, &RealInstalledApp::path);
    goneApps_.insert(goneApps_.end(), gone.begin(), gone.end());
    emit appsShrunk();
}

void AppService::takeOut(const std::vector<GhostApp> &gone)
{
    takeOutOf(ghosts_, gone, &GhostApp::bundleID);
    goneGhosts_.insert(goneGhosts_.end(), gone.begin(), gone.end());
    emit ghostsShrunk();
}
