#include "cleanup/CleanupViewModel.h"

#include "activity/FDAService.h"
#include "activity/HistoryService.h"
#include "activity/Loggers.h"
#include "base/GuardedPost.h"
#include "cleanup/CleaningRun.h"
#include "cleanup/CleanupCatalogue.h"
#include "cleanup/PreviewList.h"
#include "common/CacheLifetime.h"
#include "filesystem/SizeProbes.h"

#include <utility>

const QString CleanupViewModel::accessContext = QStringLiteral("Smart Cleanup");

CleanupViewModel::CleanupViewModel(const Platform &platform, SizeProbes &probes,
                                   const FileSystemService &fileSystem, FDAService &access, History history)
    : platform_(platform)
    , probes_(probes)
    , fileSystem_(fileSystem)
    , access_(access)
    , history_(std::move(history))
{
}

CleanupViewModel &CleanupViewModel::shared(const Platform &platform, SizeProbes &probes,
                                           const FileSystemService &fileSystem, FDAService &access,
                                           const History &history)
{
    static CleanupViewModel &instance = *new CleanupViewModel(platform, probes, fileSystem, access, history);
    return instance;
}

bool CleanupViewModel::isCacheFresh() const
{
    return !categories_.empty() && lastScanTime_
           && dates::secondsBetween(*lastScanTime_, platform_.clock.now())
                  < cacheLifetime(platform_.defaults);
}

std::vector<CleanupCategory> CleanupViewModel::selectedCategories() const
{
    return cleanupselection::selected(categories_);
}

qint64 CleanupViewModel::selectedSize() const
{
    return cleanupselection::selectedSize(categories_, selection_);
}

qint64 CleanupViewModel::pickedSize(const QString &id) const
{
    return cleanupselection::pickedSize(id, selection_);
}

bool CleanupViewModel::isLocked(const CleanupCategory &category) const
{
    return cleanupselection::isLocked(category, selection_);
}

QString CleanupViewModel::question() const
{
    return CleaningRun(categories_, selection_).question();
}

void CleanupViewModel::emptyChoices()
{
    selection_ = {};
    expandedPreviews_.clear();
    previewVisibleCount_.clear();
    emit choicesEmptied();
}

void CleanupViewModel::scan()
{
    isScanning_ = true;
    cancelRequested_ = false;
    ++scans_; // ahead of any signal, so that no preview on its way comes in between
    emptyChoices();
    emit isScanningChanged();
    if (access_.hasFullDiskAccess())
        access_.clearDenied(accessContext);
    else
        access_.markDenied(accessContext);
    platform_.workQueue.post(WorkPriority::userInitiated, [self = QPointer(this), life = std::weak_ptr(life_),
                                                           scan = scans_, &platform = platform_,
                                                           &probes = probes_] {
        if (life.expired()) // the service is gone
            return;
        auto categories = cleanupcatalogue::build(*platform.locations, platform.programs, probes);
        guarded::post(platform.mainQueue, self,
                      [categories = std::move(categories), scan](CleanupViewModel &service) {
                          service.deliver(categories, scan);
                      });
    });
}

void CleanupViewModel::deliver(std::vector<CleanupCategory> categories, int scan)
{
    if (scan != scans_) // a later one has begun meanwhile
        return;
    isScanning_ = false;
    if (!cancelRequested_) {
        categories_ = std::move(categories);
        lastScanTime_ = platform_.clock.now();
        emit categoriesChanged();
        emit lastScanTimeChanged();
    }
    emit isScanningChanged();
}

void CleanupViewModel::stopScan()
{
    cancelRequested_ = true;
    probes_.cancelProbes();
}

void CleanupViewModel::loadPreview(const CleanupCategory &category)
{
    if (selection_.previewFiles.contains(category.id))
        return;
    platform_.workQueue.post(WorkPriority::userInitiated, [self = QPointer(this), life = std::weak_ptr(life_),
                                                           category, scan = scans_, &platform = platform_] {
        if (life.expired())
            return;
        auto files = previewlist::load(category, platform.clock.now());
        guarded::post(platform.mainQueue, self,
                      [id = category.id, files = std::move(files), scan](CleanupViewModel &service) {
                          service.deliverPreview(id, files, scan);
                      });
    });
}

void CleanupViewModel::deliverPreview(const QString &id, std::vector<PreviewFile> files, int scan)
{
    if (scan != scans_) // of a list that has been emptied since
        return;
    cleanupselection::takePreview(id, std::move(files), categories_, selection_);
    emit categoryChanged(id);
}

void CleanupViewModel::selectAll()
{
    cleanupselection::selectAll(categories_, selection_);
    emit ticksChanged();
}

void CleanupViewModel::selectNone()
{
    cleanupselection::selectNone(categories_);
    emit ticksChanged();
}

void CleanupViewModel::toggle(const QString &id)
{
    const bool needsPreview = cleanupselection::toggle(id, categories_, selection_);
    if (const CleanupCategory *category = needsPreview ? cleanupselection::find(id, categories_) : nullptr)
        loadPreview(*category);
    emit categoryChanged(id);
}

void CleanupViewModel::toggleFile(const QString &id, const QString &path)
{
    cleanupselection::toggleFile(id, path, categories_, selection_);
    emit categoryChanged(id);
}

void CleanupViewModel::selectAllFiles(const QString &id)
{
    cleanupselection::selectAllFiles(id, categories_, selection_);
    emit categoryChanged(id);
}

void CleanupViewModel::selectNoFiles(const QString &id)
{
    cleanupselection::selectNoFiles(id, categories_, selection_);
    emit categoryChanged(id);
}

void CleanupViewModel::setReviewed(const QString &id, bool isReviewed)
{
    cleanupselection::setReviewed(id, isReviewed, categories_, selection_);
    emit categoryChanged(id);
}

void CleanupViewModel::setExpanded(const QString &id, bool isExpanded)
{
    expandedPreviews_[id] = isExpanded;
    if (const CleanupCategory *category = isExpanded ? cleanupselection::find(id, categories_) : nullptr)
        loadPreview(*category);
    emit categoryChanged(id);
}

void CleanupViewModel::setPreviewVisibleCount(const QString &id, int count)
{
    previewVisibleCount_[id] = count;
    emit categoryChanged(id);
}

void CleanupViewModel::setShowConfirmClean(bool isShown)
{
    showConfirmClean_ = isShown;
    emit showConfirmCleanChanged();
}

void CleanupViewModel::clean()
{
    if (isCleaning_)
        return;
    isCleaning_ = true;
    emit isCleaningChanged();
    platform_.workQueue.post(WorkPriority::userInitiated, [self = QPointer(this), life = std::weak_ptr(life_),
                                                           run = CleaningRun(categories_, selection_),
                                                           &platform = platform_, &fileSystem = fileSystem_,
                                                           history = history_] {
        if (life.expired())
            return;
        run.run(fileSystem, platform.recycler);
        Loggers(platform.systemLog).cleanup.info(run.logLine());
        history().record(run.record(platform.clock.now()));
        guarded::post(platform.mainQueue, self, [](CleanupViewModel &service) { service.endCleaning(); });
    });
}

void CleanupViewModel::endCleaning()
{
    isCleaning_ = false;
    emit isCleaningChanged();
    scan(); // which empties the choices
}
