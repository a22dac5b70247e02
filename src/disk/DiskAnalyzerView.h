#pragma once

#include "activity/FDABanner.h"
#include "base/LatestQuestion.h"
#include "base/RecordListModel.h"
#include "common/AgePillView.h"
#include "common/Appearing.h"
#include "disk/AnalyzerTexts.h"
#include "disk/DiskService.h"
#include "disk/TreemapView.h"
#include "filesystem/FileEntry.h"

#include <QObject>

#include <memory>
#include <vector>

class FileSystemService;

/// The Disk Analyzer's screen: where the bytes of one folder go, as a map and as a table, with drilling into the
/// folders below. The measured tree lives in the service; the way into it lives here and is lost with the screen.
class DiskAnalyzerView final : public QObject,
                               public Appearing,
                               public std::enable_shared_from_this<DiskAnalyzerView>
{
    Q_OBJECT
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QString symbol READ symbol CONSTANT)
    Q_PROPERTY(AnalyzerTexts texts READ texts CONSTANT)
    Q_PROPERTY(QString refreshSequence READ refreshSequence CONSTANT)
    Q_PROPERTY(bool isScanning READ isScanning NOTIFY scanChanged)
    Q_PROPERTY(bool canScan READ canScan NOTIFY scanChanged)
    Q_PROPERTY(bool isAnalyzing READ isAnalyzing NOTIFY contentChanged)
    Q_PROPERTY(QString progressText READ progressText NOTIFY contentChanged)
    Q_PROPERTY(QString stoppedText READ stoppedText NOTIFY contentChanged)
    Q_PROPERTY(bool hasStopped READ hasStopped NOTIFY contentChanged)
    Q_PROPERTY(bool isListAwaited READ isListAwaited NOTIFY contentChanged)
    Q_PROPERTY(bool hasEntry READ hasEntry NOTIFY contentChanged)
    Q_PROPERTY(QString location READ location NOTIFY contentChanged)
    Q_PROPERTY(AgePillView *pill READ pill CONSTANT)
    Q_PROPERTY(bool canGoBack READ canGoBack NOTIFY contentChanged)
    Q_PROPERTY(QString mapSummary READ mapSummary NOTIFY contentChanged)
    Q_PROPERTY(bool isMapEmpty READ isMapEmpty NOTIFY contentChanged)
    Q_PROPERTY(QString contentsHeader READ contentsHeader NOTIFY contentChanged)
    Q_PROPERTY(QString parentRowText READ parentRowText NOTIFY contentChanged)
    Q_PROPERTY(bool isScanningDeeper READ isScanningDeeper NOTIFY contentChanged)
    Q_PROPERTY(bool isEmptyDirectory READ isEmptyDirectory NOTIFY contentChanged)
    Q_PROPERTY(QAbstractItemModel *breadcrumbs READ breadcrumbs CONSTANT)
    Q_PROPERTY(QAbstractItemModel *contents READ contents CONSTANT)
    Q_PROPERTY(FDABanner *banner READ banner CONSTANT)
    Q_PROPERTY(QString trashText READ trashText NOTIFY scanChanged)
    Q_PROPERTY(bool canTrash READ canTrash NOTIFY scanChanged)
    Q_PROPERTY(TreemapView *treemap READ treemap CONSTANT)

public:
    /// A node of a measured tree; the pointer keeps the whole tree alive.
    using Entry = std::shared_ptr<const FileEntry>;

    DiskAnalyzerView(const Platform &platform, DiskService &diskService, FileSystemService &fileSystem,
                     FDAService &access);

    QString title() const;
    QString symbol() const;
    AnalyzerTexts texts() const { return {}; }
    QString refreshSequence() const; ///< the key of `refresh`
    bool isScanning() const { return diskService_.isScanningAnalyzer(); }
    bool canScan() const { return !isScanning(); }
    bool isAnalyzing() const { return isScanning() && !currentEntry(); } ///< no tree to show yet
    QString progressText() const;
    /// What stands in the place of a tree that does not come, since its scan was cancelled; else empty.
    QString stoppedText() const;
    bool hasStopped() const { return isTreeMissing() && stop_ == Stop::stopped; } ///< nobody waits any more
    bool isListAwaited() const; ///< a moment brings the rows: of a deeper level, or of what was stopped
    bool hasEntry() const { return currentEntry() != nullptr; }
    QString location() const; ///< the path of the entry on view, which `openInFinder` shows
    bool canGoBack() const { return !breadcrumb_.empty(); }
    QString mapSummary() const;
    bool isMapEmpty() const;
    QString contentsHeader() const;
    QString parentRowText() const; ///< empty at the top, where there is no parent row
    bool isScanningDeeper() const { return isScanningDeeper_; }
    bool isEmptyDirectory() const;

    /// Rows: entryName.
    QAbstractItemModel *breadcrumbs() { return &breadcrumbRows_; }
    /// Rows: symbol, entryName, sizeText, shareText, spokenText (both), share (0 to 1), isFolder.
    QAbstractItemModel *contents() { return &contentRows_; }
    TreemapView *treemap() { return &treemap_; }
    FDABanner *banner() { return &banner_; }
    AgePillView *pill() { return &pill_; }
    QString trashText() const;
    bool canTrash() const { return !isScanning() && !diskService_.isTrashing(); }

    const std::vector<Entry> &breadcrumb() const { return breadcrumb_; }
    /// The last of the breadcrumb, else the service's tree; none while there is neither.
    Entry currentEntry() const;

    /// Scans, unless a fresh result is there.
    void appear() override;
    Q_INVOKABLE void refresh(); ///< the key's command: a rescan unless a scan is running
    Q_INVOKABLE void rescan();
    Q_INVOKABLE void changeFolder();
    Q_INVOKABLE void cancelScan();
    Q_INVOKABLE void goBack();
    Q_INVOKABLE void goHome();
    Q_INVOKABLE void goTo(int index); ///< cuts the breadcrumb back to that entry
    Q_INVOKABLE void openInFinder();  ///< shows the entry on view
    // Of a row of the table:
    Q_INVOKABLE void openRow(int row);     ///< into a folder; nothing on a file
    Q_INVOKABLE void activateRow(int row); ///< the first item of its menu: into a folder, or opens a file
    Q_INVOKABLE QString openText(int row) const; ///< how the menu calls `activateRow`
    Q_INVOKABLE void revealRow(int row);
    Q_INVOKABLE void copyPath(int row);
    Q_INVOKABLE void openTerminal(int row);
    Q_INVOKABLE void moveToTrash(int row); ///< begins in a later turn of the main loop

    void openEntry(const Entry &entry);

signals:
    void scanChanged();
    void contentChanged();
    void entryWillChange(); ///< the table is about to show another entry, from its top
    void wentBack(int row); ///< from what is in that row now

private:
    /// A cancelled scan unwinds at once unless the disk does not answer, and then nobody knows when it will.
    enum class Stop { none, stopping, stopped };

    struct Row
    {
        Entry entry;
        double share = 0;
    };

    bool isTreeMissing() const { return !isScanning() && !hasEntry(); }
    void takeScanState();
    Entry child(int row) const;
    void openChildNamed(const QString &name);
    void scanDeeper(const QString &path);
    void runTrash(const Entry &entry);
    void startScan(const QString &path);
    void append(const Entry &entry);
    void setBreadcrumb(std::vector<Entry> breadcrumb);
    void showAge();
    void showCurrentEntry();

    const Platform &platform_;
    DiskService &diskService_;
    FileSystemService &fileSystem_;
    std::vector<Entry> breadcrumb_;
    bool isScanningDeeper_ = false;
    Stop stop_ = Stop::none;
    LatestQuestion stopWait_; // for the tree of a cancelled scan
    AgePillView pill_;
    RecordListModel<Entry> breadcrumbRows_;
    RecordListModel<Row> contentRows_;
    TreemapView treemap_;
    FDABanner banner_;
};
