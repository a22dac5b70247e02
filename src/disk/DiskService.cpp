#include "disk/DiskService.h"

#include "activity/FDAService.h"
#include "base/GuardedPost.h"
#include "common/CacheLifetime.h"
#include "disk/DiskMeasures.h"
#include "filesystem/FileSystemService.h"
#include "filesystem/SizeProbes.h"

#include <QPointer>
#include <QScopeGuard>

namespace {

constexpr int analyzerDepth = 2; // the root and its folders are listed, what lies below is measured

} // namespace

const QString DiskService::accessContext = QStringLiteral("Disk Analyzer");

DiskService::DiskService(const Platform &platform, SizeProbes &probes, FileSystem fileSystem, Access access)
    : platform_(platform)
    , probes_(probes)
    , fileSystem_(std::move(fileSystem))
    , access_(std::move(access))
    , analyzerScanPath_(platform.home)
{
}

DiskService &DiskService::shared(const Platform &platform, SizeProbes &probes, const FileSystem &fileSystem,
                                 const Access &access)
{
    static DiskService &instance = *new DiskService(platform, probes, fileSystem, access);
    return instance;
}

DiskUsage DiskService::getDiskUsage() const
{
    const auto volume = platform_.systemInfo.rootVolume();
    if (!volume)
        return {0, 0, 0, QStringLiteral("Unknown")};
    return {volume->total, volume->total - volume->available, volume->available,
            volume->name.value_or(QStringLiteral("Macintosh HD"))};
}

double DiskService::cacheLifetime() const
{
    return ::cacheLifetime(platform_.defaults);
}

bool DiskService::isFresh(std::optional<Date> date) const
{
    return date && dates::secondsBetween(*date, platform_.clock.now()) < cacheLifetime();
}

void DiskService::scanStorage(bool force)
{
    if (!force && isFresh(lastBreakdownScan_) && !cachedCategories_.empty())
        return;
    if (!isScanningStorage_)
        runStorage(true);
}

void DiskService::refreshStorage()
{
    if (!isScanningStorage_)
        runStorage(false);
}

void DiskService::runStorage(bool stampsDate)
{
    guarded::post(platform_.mainQueue, QPointer(this), [](DiskService &self) {
        self.isScanningStorage_ = true;
        emit self.isScanningStorageChanged();
    });
    platform_.workQueue.post(WorkPriority::userInitiated, [self = QPointer(this), &platform = platform_,
                                                           &probes = probes_, stampsDate] {
        guarded::post(platform.mainQueue, self,
                      [categories = diskmeasures::storageCategories(*platform.locations, probes),
                       stampsDate](DiskService &service) { service.publishStorage(categories, stampsDate); });
    });
}

void DiskService::publishStorage(const std::vector<StorageCategory> &categories, bool stampsDate)
{
    cachedCategories_ = categories;
    if (stampsDate)
        lastBreakdownScan_ = platform_.clock.now();
    isScanningStorage_ = false;
    emit cachedCategoriesChanged();
    emit lastBreakdownScanChanged();
    emit isScanningStorageChanged();
}

void DiskService::scanLargestDirs(bool force)
{
    // The breakdown's date on purpose: the two results go stale together.
    if (!force && isFresh(lastBreakdownScan_) && !cachedLargeDirs_.empty())
        return;
    refreshLargestDirs();
}

void DiskService::refreshLargestDirs()
{
    if (!isScanningLargestDirs_)
        runLargestDirs();
}

void DiskService::runLargestDirs()
{
    guarded::post(platform_.mainQueue, QPointer(this), [](DiskService &self) {
        self.isScanningLargestDirs_ = true;
        emit self.isScanningLargestDirsChanged();
    });
    platform_.workQueue.post(
        WorkPriority::userInitiated, [self = QPointer(this), &platform = platform_, &probes = probes_] {
            guarded::post(platform.mainQueue, self,
                          [directories = diskmeasures::largestDirectories(*platform.locations, probes)](
                              DiskService &service) { service.publishLargestDirs(directories); });
        });
}

void DiskService::publishLargestDirs(const std::vector<LargeDirectory> &directories)
{
    cachedLargeDirs_ = directories;
    isScanningLargestDirs_ = false;
    emit cachedLargeDirsChanged();
    emit isScanningLargestDirsChanged();
}

std::vector<StorageCategory> DiskService::computeStorageCategories()
{
    return diskmeasures::storageCategories(*platform_.locations, probes_);
}

std::vector<LargeDirectory> DiskService::computeLargestDirectories()
{
    return diskmeasures::largestDirectories(*platform_.locations, probes_);
}

std::vector<LargeDirectory> DiskService::drillChildren(const QString &path)
{
    return diskmeasures::drillChildren(path, probes_);
}

void DiskService::cancelStorageScan()
{
    probes_.cancelProbes(ProbeContext::storage);
    guarded::post(platform_.mainQueue, QPointer(this), [](DiskService &self) {
        self.isScanningStorage_ = false;
        emit self.isScanningStorageChanged();
    });
    if (isScanningAnalyzer_)
        cancelAnalyzerScan();
}

void DiskService::cancelLargestDirsScan()
{
    probes_.cancelProbes(ProbeContext::largestDirs);
    guarded::post(platform_.mainQueue, QPointer(this), [](DiskService &self) {
        self.isScanningLargestDirs_ = false;
        emit self.isScanningLargestDirsChanged();
    });
    if (isScanningAnalyzer_)
        cancelAnalyzerScan();
}

void DiskService::setAnalyzerScanPath(const QString &path)
{
    analyzerScanPath_ = path;
    emit analyzerScanPathChanged();
}

void DiskService::scanAnalyzer(const QString &path, bool force)
{
    if (!force && analyzerLastScannedPath_ == path && isFresh(lastAnalyzerScan_) && analyzerRoot_)
        return;
    if (isScanningAnalyzer_)
        return;
    FDAService &access = access_();
    if (access.hasFullDiskAccess())
        access.clearDenied(accessContext);
    else
        access.markDenied(accessContext);
    const int generation = ++analyzerScanGeneration_;
    guarded::post(platform_.mainQueue, QPointer(this), [path](DiskService &self) {
        self.isScanningAnalyzer_ = true;
        self.analyzerRoot_.reset();
        self.analyzerScanPath_ = path;
        emit self.isScanningAnalyzerChanged();
        emit self.analyzerRootChanged();
        emit self.analyzerScanPathChanged();
    });
    platform_.workQueue.post(WorkPriority::userInitiated, [self = QPointer(this), &main = platform_.mainQueue,
                                                           &fileSystem = fileSystem_(), path, generation] {
        fileSystem.scanCancelled.store(false, std::memory_order_relaxed);
        auto tree = std::make_shared<const FileEntry>(fileSystem.scanTree(path, 0, analyzerDepth));
        guarded::post(main, self, [tree = std::move(tree), path, generation](DiskService &service) {
            service.publishAnalyzer(tree, path, generation);
        });
    });
}

void DiskService::publishAnalyzer(std::shared_ptr<const FileEntry> tree, const QString &path, int generation)
{
    if (analyzerScanGeneration_ != generation) // a later scan has begun while this one unwound
        return;
    analyzerRoot_ = std::move(tree);
    analyzerLastScannedPath_ = path;
    lastAnalyzerScan_ = platform_.clock.now();
    isScanningAnalyzer_ = false;
    emit analyzerRootChanged();
    emit lastAnalyzerScanChanged();
    emit isScanningAnalyzerChanged();
}

void DiskService::moveToTrash(const QString &path)
{
    if (isTrashing_)
        return;
    setTrashing(true);
    const auto ending = qScopeGuard([this] { setTrashing(false); });
    fileSystem_().moveToTrash(path);
}

void DiskService::setTrashing(bool isTrashing)
{
    isTrashing_ = isTrashing;
    emit isTrashingChanged();
}

void DiskService::cancelAnalyzerScan()
{
    fileSystem_().scanCancelled.store(true, std::memory_order_relaxed);
    probes_.cancelProbes(ProbeContext::generic);
    guarded::post(platform_.mainQueue, QPointer(this), [](DiskService &self) {
        self.isScanningAnalyzer_ = false;
        emit self.isScanningAnalyzerChanged();
    });
}
