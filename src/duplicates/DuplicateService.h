#pragma once

#include "duplicates/DuplicateFileGroup.h"
#include "duplicates/scan/DuplicateScan.h"
#include "platform/Platform.h"

#include <QObject>
#include <QPointer>
#include <QSet>
#include <QStringList>

#include <atomic>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

class FDAService;
class FileSystemService;
class HistoryService;

/// Finds files of equal content below the user's scan paths, holds the result, and moves the files set to go to the
/// Trash. Nothing of a scan is kept on disk. Published fields change on the main thread only, set first, then notified.
/// Main thread, all of it; the scan itself runs on the work queue, and a cancel never waits.
class DuplicateService final : public QObject
{
    Q_OBJECT

public:
    /// The activity log, which is made when a delete run first has something to record.
    using History = std::function<HistoryService &()>;

    DuplicateService(const Platform &platform, FileSystemService &fileSystem, FDAService &access,
                     History history);
    ~DuplicateService() override;

    /// The process's one instance, made at the first call with its arguments and never destroyed.
    static DuplicateService &shared(const Platform &platform, FileSystemService &fileSystem,
                                    FDAService &access, const History &history);

    /// The name under which a scan tells whether protected folders could be read.
    static const QString accessContext;

    // Published fields.

    /// By wasted bytes, largest first.
    const std::vector<DuplicateFileGroup> &groups() const { return groups_; }
    bool isScanning() const { return isScanning_; }
    double progress() const { return progress_; } ///< 0 to 1
    /// The folder being walked, or a stage's text.
    const QString &currentPath() const { return currentPath_; }
    const QSet<QString> &markedForDeletion() const { return markedForDeletion_; } ///< marked one by one
    /// Files not opened or read in the last finished scan.
    int hashFailureCount() const { return hashFailureCount_; }
    const QStringList &scanPaths() const { return scanPaths_; }
    const QStringList &ignorePaths() const { return ignorePaths_; }
    qint64 minFileSize() const { return minFileSize_; }

    bool cancelRequested() const { return cancelRequested_->load(std::memory_order_relaxed); }
    /// True is the whole of the cancel command; the scan looks at it on its way.
    void setCancelRequested(bool isRequested);

    /// True while `deleteMarked` runs, which lets the event loop turn.
    bool isDeleting() const { return isDeleting_; }
    size_t deletedFiles() const { return deletedFiles_; }   ///< the run is done with them, one way or another
    size_t filesToDelete() const { return filesToDelete_; } ///< how many it began with

    /// Starts a scan and returns at once; the old result goes. A caller looks first that none is running.
    void scan();

    // The scope. A running scan goes on with the one that it began with. Paths are not looked at.

    void addScanPath(const QString &path); ///< nothing where the list holds it
    /// Puts `replacement` in the place of `old`; where the list holds it elsewhere, only takes `old` away.
    void replaceScanPath(const QString &old, const QString &replacement);
    void removeScanPath(const QString &path);
    void addIgnorePath(const QString &rule); ///< nothing where the list holds it
    void removeIgnorePath(const QString &rule);
    void resetScope();                         ///< both lists as at the start
    bool isScopeAsAtStart() const;             ///< both lists are
    void setMinFileSize(qint64 bytes);         ///< kept in the settings
    bool isBuiltIn(const QString &rule) const; ///< one of the default rules
    /// A built-in rule that a scan path leads into, so that its folder is scanned after all.
    bool isOverridden(const QString &rule) const;

    // Which files stay. A group is known by its index in `groups`, not in a filtered list, or by its id; what is not
    // there is passed over.

    /// The index of a group in `groups`; none when it is not there (any more).
    std::optional<size_t> indexOf(const QUuid &group) const;

    /// Lets one file stay or go, and keeps the choice for the next scan.
    void toggleKeep(size_t group, size_t file);
    void keepOnly(size_t group, size_t file); ///< the others go
    void keepNewest(const QUuid &group);      ///< all that share the latest date
    void keepOldest(const QUuid &group);      ///< all that share the earliest date
    void keepFirstInAllGroups();
    void keepAllInAllGroups();
    void keepNewestInAllGroups();
    void keepOldestInAllGroups();

    /// Moves every file set to go to the Trash, whatever a screen filters, and gives the bytes freed, by the sizes of the
    /// scan. Lets the event loop turn meanwhile, so that everything here may be called from within. What goes was set to
    /// go at the start, and has come to be kept neither by the user since nor by a scan from within; such a scan brings
    /// nothing into the run. A second call during a run does nothing and gives 0. Throws Error (DeleteRun::errorDomain)
    /// when a file could not be moved, after all is done and recorded.
    qint64 deleteMarked();

signals:
    void groupsChanged(); ///< another list
    void groupsShrunk();  ///< the same one, without files or groups that went
    void fileChanged(size_t group, size_t file);
    void groupChanged(size_t group); ///< the flags of its files
    void keepChanged();              ///< the flags of all groups
    void isScanningChanged();
    void progressChanged();
    void currentPathChanged();
    void scopeChanged();
    void minFileSizeChanged();
    void deletingChanged();

private:
    static duplicatescan::Hooks hooks(const QPointer<DuplicateService> &self, MainQueue &main,
                                      const std::shared_ptr<std::atomic<bool>> &cancel);
    void reset();
    void setCurrentPath(const QString &path);
    void setProgress(double progress);
    void publish(duplicatescan::Result &result);

    bool isThere(size_t group, size_t file) const;

    void changeAllGroups(void (*rule)(DuplicateFileGroup &group));
    void setDeleting(bool isDeleting, size_t files);

    const Platform &platform_;
    FileSystemService &fileSystem_;
    FDAService &access_;
    const History history_;

    std::vector<DuplicateFileGroup> groups_;
    bool isScanning_ = false;
    std::shared_ptr<std::atomic<bool>> cancelRequested_ = std::make_shared<std::atomic<bool>>(false);
    double progress_ = 0;
    QString currentPath_;
    QSet<QString> markedForDeletion_;
    int hashFailureCount_ = 0;
    QStringList scanPaths_;
    QStringList ignorePaths_;
    qint64 minFileSize_ = 0;
    bool isDeleting_ = false;
    size_t deletedFiles_ = 0;
    size_t filesToDelete_ = 0;
};
