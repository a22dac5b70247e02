#include "duplicates/DuplicateService.h"

#include "activity/FDAService.h"
#include "activity/HistoryService.h"
#include "activity/Loggers.h"
#include "base/Error.h"
#include "base/GuardedPost.h"
#include "common/SettingsKeys.h"
#include "duplicates/DeleteRun.h"
#include "duplicates/KeepRules.h"
#include "duplicates/scan/ScanScope.h"

#include <algorithm>
#include <utility>

namespace {

constexpr qint64 usualMinFileSize = 102400; // bytes
constexpr double walkShare = 0.4;           // of the progress, which stands still in the walk

/// Appends what is not there yet. False when it is.
bool appendNew(QStringList &list, const QString &item)
{
    if (list.contains(item))
        return false;
    list.append(item);
    return true;
}

} // namespace

const QString DuplicateService::accessContext = QStringLiteral("Duplicate Finder");

DuplicateService::DuplicateService(const Platform &platform, FileSystemService &fileSystem,
                                   FDAService &access, History history)
    : platform_(platform)
    , fileSystem_(fileSystem)
    , access_(access)
    , history_(std::move(history))
    , scanPaths_(platform.home)
    , ignorePaths_(platform.locations->duplicateIgnoreRules)
    , minFileSize_(platform.defaults.integerIfAny(settings::duplicateMinSize).value_or(usualMinFileSize))
{
}

DuplicateService::~DuplicateService()
{
    setCancelRequested(true);
}

DuplicateService &DuplicateService::shared(const Platform &platform, FileSystemService &fileSystem,
                                           FDAService &access, const History &history)
{
    static DuplicateService &instance = *new DuplicateService(platform, fileSystem, access, history);
    return instance;
}

void DuplicateService::setCancelRequested(bool isRequested)
{
    cancelRequested_->store(isRequested, std::memory_order_relaxed);
}

void DuplicateService::scan()
{
    if (access_.hasFullDiskAccess())
        access_.clearDenied(accessContext);
    else
        access_.markDenied(accessContext);
    reset();
    const duplicatescan::Request request{scanPaths_, ignorePaths_, minFileSize_, markedForDeletion_};
    platform_.workQueue.post(WorkPriority::userInitiated, [self = QPointer(this), request,
                                                           &main = platform_.mainQueue,
                                                           weakCancel = std::weak_ptr(cancelRequested_)] {
        const auto cancel = weakCancel.lock();
        if (!cancel) // the service is gone
            return;
        const auto result =
            std::make_shared<duplicatescan::Result>(duplicatescan::run(request, hooks(self, main, cancel)));
        guarded::post(main, self, [result](DuplicateService &service) { service.publish(*result); });
    });
}

void DuplicateService::reset()
{
    setCancelRequested(false);
    isScanning_ = true;
    progress_ = 0;
    groups_.clear();
    currentPath_.clear();
    hashFailureCount_ = 0;
    emit groupsChanged();
    emit isScanningChanged();
    emit progressChanged();
    emit currentPathChanged();
}

/// What a run tells on its way, each as a block of its own on the main queue.
duplicatescan::Hooks DuplicateService::hooks(const QPointer<DuplicateService> &self, MainQueue &main,
                                             const std::shared_ptr<std::atomic<bool>> &cancel)
{
    const auto post = [self, &main](auto block) { guarded::post(main, self, std::move(block)); };
    return {
        [cancel] { return cancel->load(std::memory_order_relaxed); },
        [post](const QString &folder) {
            post([folder](DuplicateService &service) { service.setCurrentPath(folder); });
        },
        [post] {
            post([](DuplicateService &service) {
                service.currentPath_ = QStringLiteral("Comparing file hashes...");
                service.setProgress(walkShare);
                emit service.currentPathChanged();
            });
        },
        [post](size_t done, size_t total) {
            const double share =
                static_cast<double>(done) * (1 - walkShare) / static_cast<double>(std::max<size_t>(total, 1));
            post(
                [progress = walkShare + share](DuplicateService &service) { service.setProgress(progress); });
        },
    };
}

void DuplicateService::setCurrentPath(const QString &path)
{
    currentPath_ = path;
    emit currentPathChanged();
}

void DuplicateService::setProgress(double progress)
{
    progress_ = progress;
    emit progressChanged();
}

void DuplicateService::publish(duplicatescan::Result &result)
{
    const bool isComplete = !result.wasCancelled;
    groups_ = std::move(result.groups);
    isScanning_ = false;
    progress_ = isComplete ? 1 : 0;
    currentPath_ = isComplete || result.wasCancelledInWalk ? QString() : QStringLiteral("Cancelled");
    hashFailureCount_ = result.hashFailureCount;
    emit groupsChanged();
    emit progressChanged();
    emit currentPathChanged();
    emit isScanningChanged();
}

void DuplicateService::addScanPath(const QString &path)
{
    if (appendNew(scanPaths_, path))
        emit scopeChanged();
}

void DuplicateService::replaceScanPath(const QString &old, const QString &replacement)
{
    if (replacement != old && scanPaths_.contains(replacement))
        scanPaths_.removeAll(old);
    else
        std::replace(scanPaths_.begin(), scanPaths_.end(), QString(old), QString(replacement));
    emit scopeChanged();
}

void DuplicateService::removeScanPath(const QString &path)
{
    if (scanPaths_.removeAll(path) > 0)
        emit scopeChanged();
}

void DuplicateService::addIgnorePath(const QString &rule)
{
    if (appendNew(ignorePaths_, rule))
        emit scopeChanged();
}

void DuplicateService::removeIgnorePath(const QString &rule)
{
    if (ignorePaths_.removeAll(rule) > 0)
        emit scopeChanged();
}

void DuplicateService::resetScope()
{
    scanPaths_ = {platform_.home};
    ignorePaths_ = platform_.locations->duplicateIgnoreRules;
    emit scopeChanged();
}

bool DuplicateService::isScopeAsAtStart() const
{
    return scanPaths_ == QStringList{platform_.home}
           && ignorePaths_ == platform_.locations->duplicateIgnoreRules;
}

void DuplicateService::setMinFileSize(qint64 bytes)
{
    minFileSize_ = bytes;
    platform_.defaults.set(settings::duplicateMinSize, bytes);
    emit minFileSizeChanged();
}

bool DuplicateService::isBuiltIn(const QString &rule) const
{
    return platform_.locations->duplicateIgnoreRules.contains(rule);
}

bool DuplicateService::isOverridden(const QString &rule) const
{
    return isBuiltIn(rule) && scope::isLifted(rule, scanPaths_);
}

std::optional<size_t> DuplicateService::indexOf(const QUuid &group) const
{
    const auto found = std::find_if(groups_.begin(), groups_.end(),
                                    [&group](const DuplicateFileGroup &known) { return known.id == group; });
    if (found == groups_.end())
        return std::nullopt;
    return static_cast<size_t>(found - groups_.begin());
}

bool DuplicateService::isThere(size_t group, size_t file) const
{
    return group < groups_.size() && file < groups_[group].files.size();
}

void DuplicateService::toggleKeep(size_t group, size_t file)
{
    if (!isThere(group, file))
        return;
    DuplicateFileEntry &entry = groups_[group].files[file];
    entry.keep = !entry.keep;
    if (entry.keep)
        markedForDeletion_.remove(entry.path);
    else
        markedForDeletion_.insert(entry.path);
    emit fileChanged(group, file);
}

void DuplicateService::keepOnly(size_t group, size_t file)
{
    if (!isThere(group, file))
        return;
    keeprules::keepOnly(groups_[group], file);
    emit groupChanged(group);
}

void DuplicateService::keepNewest(const QUuid &group)
{
    if (const auto index = indexOf(group)) {
        keeprules::keepNewest(groups_[*index]);
        emit groupChanged(*index);
    }
}

void DuplicateService::keepOldest(const QUuid &group)
{
    if (const auto index = indexOf(group)) {
        keeprules::keepOldest(groups_[*index]);
        emit groupChanged(*index);
    }
}

void DuplicateService::changeAllGroups(void (*rule)(DuplicateFileGroup &group))
{
    std::for_each(groups_.begin(), groups_.end(), rule);
    emit keepChanged();
}

void DuplicateService::keepFirstInAllGroups()
{
    changeAllGroups(keeprules::keepFirst);
}

void DuplicateService::keepAllInAllGroups()
{
    changeAllGroups(keeprules::keepAll);
}

void DuplicateService::keepNewestInAllGroups()
{
    changeAllGroups(keeprules::keepNewest);
}

void DuplicateService::keepOldestInAllGroups()
{
    changeAllGroups(keeprules::keepOldest);
}

qint64 DuplicateService::deleteMarked()
{
    if (isDeleting_)
        return 0;
    DeleteRun run(groups_);
    setDeleting(true, run.fileCount());
    for (size_t number = 0; number < run.fileCount(); ++number) {
        run.move(number, groups_, fileSystem_);
        ++deletedFiles_;
        emit deletingChanged();
    }
    run.takeOutOf(groups_);
    const QStringList &gone = run.tally().done;
    markedForDeletion_.subtract({gone.begin(), gone.end()});
    emit groupsShrunk();
    setDeleting(false, 0);
    Loggers(platform_.systemLog).duplicates.info(run.logLine());
    history_().record(run.record(platform_.clock.now()));
    if (const auto error = run.error())
        throw Error(*error);
    return run.tally().bytes;
}

void DuplicateService::setDeleting(bool isDeleting, size_t files)
{
    isDeleting_ = isDeleting;
    deletedFiles_ = 0;
    filesToDelete_ = files;
    emit deletingChanged();
}
