#pragma once

#include "disk/DiskUsage.h"
#include "disk/LargeDirectory.h"
#include "disk/StorageCategory.h"
#include "filesystem/FileEntry.h"
#include "platform/Platform.h"

#include <QObject>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

class FDAService;
class FileSystemService;
class SizeProbes;

/// Where the disk's bytes are: the volume's usage, and the three cached scans that measure through `du`.
/// Published fields change on the main thread only, set first, then notified. Scans return at once; their flag is
/// set in a later turn of the main loop, and a cancel never waits.
class DiskService final : public QObject
{
    Q_OBJECT

public:
    // Handed over as accessors: this is the first service to come alive at start, and these wait for a scan.
    using FileSystem = std::function<FileSystemService &()>;
    using Access = std::function<FDAService &()>;

    DiskService(const Platform &platform, SizeProbes &probes, FileSystem fileSystem, Access access);

    /// The process's one instance, made at the first call with its arguments and never destroyed.
    static DiskService &shared(const Platform &platform, SizeProbes &probes, const FileSystem &fileSystem,
                               const Access &access);

    /// Never fails visibly: zeros and the name "Unknown" when the volume can't be asked. Any thread.
    DiskUsage getDiskUsage() const;

    // Published fields.

    const std::vector<StorageCategory> &cachedCategories() const { return cachedCategories_; }
    const std::vector<LargeDirectory> &cachedLargeDirs() const { return cachedLargeDirs_; }
    bool isScanningStorage() const { return isScanningStorage_; }
    bool isScanningLargestDirs() const { return isScanningLargestDirs_; }
    std::optional<Date> lastBreakdownScan() const { return lastBreakdownScan_; }
    const std::shared_ptr<const FileEntry> &analyzerRoot() const { return analyzerRoot_; }
    const QString &analyzerScanPath() const { return analyzerScanPath_; }
    bool isScanningAnalyzer() const { return isScanningAnalyzer_; }
    std::optional<Date> lastAnalyzerScan() const { return lastAnalyzerScan_; }
    /// True while `moveToTrash` runs, which lets the event loop turn; screens come and go meanwhile.
    bool isTrashing() const { return isTrashing_; }

    // Commands; main thread.

    /// Seconds for which a scan's result is reused, from the settings as they stand now.
    double cacheLifetime() const;

    /// The size of each main folder, unless a fresh result is there (`force` passes that over) or a run is on.
    void scanStorage(bool force);
    /// The biggest items of the main folders, on the same terms. It reads the breakdown's date and never sets it,
    /// so that the two go stale together.
    void scanLargestDirs(bool force);
    /// A new run that leaves the date of the last full scan alone.
    void refreshStorage();
    void refreshLargestDirs();
    /// Ends the probe at work. The run itself goes on, and its partial figures are published as its result.
    void cancelStorageScan();
    void cancelLargestDirsScan();

    /// The name under which the analyzer tells whether protected folders could be read.
    static const QString accessContext;

    /// Measures the folder at `path` two levels deep into `analyzerRoot`. The old tree goes at once.
    void scanAnalyzer(const QString &path, bool force);
    /// Ends every generic probe and the walk. What was measured so far is published as the tree.
    void cancelAnalyzerScan();
    /// Chooses the folder that the next analyzer scan shows before it begins.
    void setAnalyzerScanPath(const QString &path);

    /// Moves an entry to the Trash, and lets the event loop turn meanwhile; the measured tree stays as it is. A second call
    /// during a move does nothing. Throws Error where the entry stays.
    void moveToTrash(const QString &path);

    // What the scans measure, as told in diskmeasures. Each blocks; any thread but the main one.

    std::vector<LargeDirectory> drillChildren(const QString &path);
    std::vector<StorageCategory> computeStorageCategories();
    std::vector<LargeDirectory> computeLargestDirectories();

signals:
    void cachedCategoriesChanged();
    void cachedLargeDirsChanged();
    void isScanningStorageChanged();
    void isScanningLargestDirsChanged();
    void lastBreakdownScanChanged();
    void analyzerRootChanged();
    void analyzerScanPathChanged();
    void isScanningAnalyzerChanged();
    void lastAnalyzerScanChanged();
    void isTrashingChanged();

private:
    bool isFresh(std::optional<Date> date) const;
    void runStorage(bool stampsDate);
    void publishStorage(const std::vector<StorageCategory> &categories, bool stampsDate);
    void runLargestDirs();
    void publishLargestDirs(const std::vector<LargeDirectory> &directories);
    void setTrashing(bool isTrashing);
    void publishAnalyzer(std::shared_ptr<const FileEntry> tree, const QString &path, int generation);

    const Platform &platform_;
    SizeProbes &probes_;
    const FileSystem fileSystem_;
    const Access access_;

    std::vector<StorageCategory> cachedCategories_;
    std::vector<LargeDirectory> cachedLargeDirs_;
    bool isScanningStorage_ = false;
    bool isScanningLargestDirs_ = false;
    std::optional<Date> lastBreakdownScan_;
    std::shared_ptr<const FileEntry> analyzerRoot_;
    QString analyzerScanPath_;
    bool isScanningAnalyzer_ = false;
    std::optional<Date> lastAnalyzerScan_;
    bool isTrashing_ = false;
    std::optional<QString> analyzerLastScannedPath_;
    int analyzerScanGeneration_ = 0;
};
