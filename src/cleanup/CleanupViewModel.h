#pragma once

#include "cleanup/CleanupSelection.h"
#include "platform/Platform.h"

#include <QMap>
#include <QObject>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

class FDAService;
class FileSystemService;
class HistoryService;
class SizeProbes;

/// Finds what can be cleaned, holds what was found and what the user has chosen of it, and cleans it. Nothing is kept on
/// disk. It is a service, whatever its name says: it outlives its screen and is read by others. Published fields change on
/// the main thread only, set first, then notified. Main thread, all of it; scans, previews and the cleaning run on the work
/// queue, and a stop never waits.
class CleanupViewModel final : public QObject
{
    Q_OBJECT

public:
    /// The activity log, which is made when a cleaning first has something to record.
    using History = std::function<HistoryService &()>;

    CleanupViewModel(const Platform &platform, SizeProbes &probes, const FileSystemService &fileSystem,
                     FDAService &access, History history);

    /// The process's one instance, made at the first call with its arguments and never destroyed.
    static CleanupViewModel &shared(const Platform &platform, SizeProbes &probes,
                                    const FileSystemService &fileSystem, FDAService &access,
                                    const History &history);

    /// The name under which a scan tells whether protected folders could be read.
    static const QString accessContext;

    // Published fields. Those by category go by its id.

    /// Of the last finished scan, largest first.
    const std::vector<CleanupCategory> &categories() const { return categories_; }
    bool isScanning() const
    {
        return isScanning_;
    } ///< until the result is there, also that of a stopped scan
    bool isCleaning() const { return isCleaning_; }
    bool showConfirmClean() const { return showConfirmClean_; } ///< the question before a cleaning is up
    const QMap<QString, bool> &reviewedUnsafe() const { return selection_.reviewedUnsafe; }
    const QMap<QString, bool> &expandedPreviews() const { return expandedPreviews_; }
    const QMap<QString, std::vector<PreviewFile>> &previewFiles() const { return selection_.previewFiles; }
    const QMap<QString, int> &previewVisibleCount() const { return previewVisibleCount_; }
    const QMap<QString, QSet<QString>> &selectedFilePaths() const { return selection_.selectedFilePaths; }
    /// When the last scan that was not stopped has ended.
    std::optional<Date> lastScanTime() const { return lastScanTime_; }

    bool cancelRequested() const { return cancelRequested_; }

    // Derived.

    bool isCacheFresh() const; ///< there is a result, and it is younger than the cache lifetime
    std::vector<CleanupCategory> selectedCategories() const;
    qint64 selectedSize() const;                ///< bytes
    qint64 pickedSize(const QString &id) const; ///< bytes of the files picked in a category's preview
    bool isLocked(const CleanupCategory &category) const;
    QString question() const; ///< what is asked before a cleaning

    // Commands.

    /// Starts a scan and returns at once; all choices go, the old result stays until the new one is there. A caller looks
    /// first that none is running. Of two scans side by side the later one's result counts.
    void scan();
    /// Ends the live size probes, all of them, so that the scan ends soon; its result is dropped then.
    void stopScan();
    /// Loads a category's preview, unless it is there. What a scan's start finds on its way is dropped.
    void loadPreview(const CleanupCategory &category);

    void selectAll();  ///< but for locked categories
    void selectNone(); ///< the files that are picked stay picked
    void toggle(const QString &id);
    void toggleFile(const QString &id, const QString &path);
    void selectAllFiles(const QString &id);
    void selectNoFiles(const QString &id);
    void setReviewed(const QString &id, bool isReviewed);
    void setExpanded(const QString &id, bool isExpanded); ///< an open preview is loaded
    void setPreviewVisibleCount(const QString &id, int count);
    void setShowConfirmClean(bool isShown);

    /// Cleans what is selected now, records it, and then scans anew. Nothing during another cleaning.
    void clean();

signals:
    void categoriesChanged(); ///< another list
    void isScanningChanged();
    void isCleaningChanged();
    void showConfirmCleanChanged();
    void lastScanTimeChanged();
    void categoryChanged(const QString &id); ///< its tick, mark, picked files or preview
    void ticksChanged();                     ///< of all categories
    void choicesEmptied();                   ///< of all that goes by category nothing is left

private:
    void emptyChoices();
    void deliver(std::vector<CleanupCategory> categories, int scan);
    void deliverPreview(const QString &id, std::vector<PreviewFile> files, int scan);
    void endCleaning();

    const Platform &platform_;
    SizeProbes &probes_;
    const FileSystemService &fileSystem_;
    FDAService &access_;
    const History history_;
    const std::shared_ptr<const bool> life_ = std::make_shared<const bool>(true); // jobs hold it weakly

    std::vector<CleanupCategory> categories_;
    bool isScanning_ = false;
    bool isCleaning_ = false;
    bool showConfirmClean_ = false;
    CleanupSelection selection_;
    QMap<QString, bool> expandedPreviews_;
    QMap<QString, int> previewVisibleCount_;
    std::optional<Date> lastScanTime_;
    bool cancelRequested_ = false;
    int scans_ = 0; // that have begun
};
