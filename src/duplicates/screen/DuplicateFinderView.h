#pragma once

#include "activity/FDABanner.h"
#include "base/LatestQuestion.h"
#include "base/RecordListModel.h"
#include "base/Throttle.h"
#include "common/Appearing.h"
#include "common/Confirmation.h"
#include "duplicates/DuplicateService.h"
#include "duplicates/KeepRules.h"
#include "duplicates/screen/DeleteNote.h"
#include "duplicates/screen/DuplicateFigures.h"
#include "duplicates/screen/DuplicateRows.h"
#include "duplicates/screen/DuplicateScopeView.h"
#include "duplicates/screen/DuplicateTexts.h"
#include "duplicates/screen/SameFileMarks.h"

#include <QObject>

#include <map>
#include <memory>
#include <optional>
#include <vector>

/// The Duplicate Finder's screen: the scope, the scan, the groups with a filter by file type, the choice of the files that
/// go, and the confirmed delete run. The result and the choice live in the service; the filter lives here and is lost with
/// the screen. Made by std::make_shared, since a delete run keeps it. Main thread.
class DuplicateFinderView final : public QObject,
                                  public Appearing,
                                  public std::enable_shared_from_this<DuplicateFinderView>
{
    Q_OBJECT
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QString symbol READ symbol CONSTANT)
    Q_PROPERTY(DuplicateTexts texts READ texts CONSTANT)
    Q_PROPERTY(FDABanner *banner READ banner CONSTANT)
    Q_PROPERTY(DuplicateScopeView *scope READ scope CONSTANT)
    Q_PROPERTY(QAbstractItemModel *filterRows READ filterRows CONSTANT)
    Q_PROPERTY(GroupRows *rows READ rows CONSTANT)
    Q_PROPERTY(bool showSettings READ showSettings NOTIFY showSettingsChanged)
    Q_PROPERTY(QList<QString> settingsLabels READ settingsLabels CONSTANT)
    Q_PROPERTY(QList<QString> stopLabels READ stopLabels CONSTANT)
    Q_PROPERTY(QList<QString> scanLabels READ scanLabels CONSTANT)
    Q_PROPERTY(QString settingsText READ settingsText NOTIFY showSettingsChanged)
    Q_PROPERTY(bool isScanning READ isScanning NOTIFY stateChanged)
    Q_PROPERTY(bool isDeleting READ isDeleting NOTIFY stateChanged)
    Q_PROPERTY(bool canScan READ canScan NOTIFY stateChanged)
    Q_PROPERTY(bool canChoose READ canChoose NOTIFY stateChanged)
    Q_PROPERTY(bool canSelectAllDuplicates READ canSelectAllDuplicates NOTIFY stateChanged)
    Q_PROPERTY(bool canSelectNone READ canSelectNone NOTIFY stateChanged)
    Q_PROPERTY(bool canKeepNewest READ canKeepNewest NOTIFY stateChanged)
    Q_PROPERTY(bool canKeepOldest READ canKeepOldest NOTIFY stateChanged)
    Q_PROPERTY(bool canDelete READ canDelete NOTIFY stateChanged)
    Q_PROPERTY(bool canStop READ canStop NOTIFY stateChanged)
    Q_PROPERTY(QString stopText READ stopText NOTIFY stateChanged)
    Q_PROPERTY(QString scanText READ scanText NOTIFY stateChanged)
    Q_PROPERTY(QString emptyText READ emptyText NOTIFY stateChanged)
    Q_PROPERTY(double progress READ progress NOTIFY progressChanged)
    Q_PROPERTY(QString percentText READ percentText NOTIFY progressChanged)
    Q_PROPERTY(QString currentPathText READ currentPathText NOTIFY progressChanged)
    Q_PROPERTY(QString endText READ endText NOTIFY stateChanged)
    Q_PROPERTY(bool hasWaste READ hasWaste NOTIFY figuresChanged)
    Q_PROPERTY(bool hasFigures READ hasFigures NOTIFY figuresChanged)
    Q_PROPERTY(QString groupsFigure READ groupsFigure NOTIFY figuresChanged)
    Q_PROPERTY(QString filesFigure READ filesFigure NOTIFY figuresChanged)
    Q_PROPERTY(QString wastedFigure READ wastedFigure NOTIFY figuresChanged)
    Q_PROPERTY(QString toDeleteFigure READ toDeleteFigure NOTIFY figuresChanged)
    Q_PROPERTY(QString footText READ footText NOTIFY figuresChanged)
    Q_PROPERTY(QString deletingText READ deletingText NOTIFY deletingChanged)
    Q_PROPERTY(Confirmation *confirmation READ confirmation CONSTANT)

public:
    DuplicateFinderView(const Platform &platform, DuplicateService &service, FileSystemService &fileSystem,
                        FDAService &access);

    /// The type filters in their order, "all" first, and the extensions of each of the others in lower case.
    static const QStringList &filters();
    static const std::map<QString, QStringList> &extMap();

    QString title() const { return QStringLiteral("Duplicate Finder"); }
    QString symbol() const { return QStringLiteral("doc.on.doc"); }
    DuplicateTexts texts() const { return {}; }
    FDABanner *banner() { return &banner_; }
    DuplicateScopeView *scope() { return &scope_; }

    /// The chips. Rows: label (a filter's name as a word of its own), countText (always empty), isSelected.
    QAbstractItemModel *filterRows() { return &filterRows_; }
    /// Rows: see DuplicateRows.
    GroupRows *rows() { return &rows_; }

    const QString &filter() const { return filter_; }
    /// The groups that pass the filter, by index in the service's list. A group is judged by its first file alone.
    const std::vector<size_t> &filteredGroups() const { return filteredGroups_; }

    bool showSettings() const { return showSettings_; }
    QString settingsText() const;
    // All that the texts of these commands may read, so that their buttons keep one width.
    QStringList settingsLabels() const;
    QStringList stopLabels() const;
    QStringList scanLabels() const;
    bool isScanning() const { return service_.isScanning(); }
    bool isDeleting() const { return service_.isDeleting(); }
    bool canScan() const;
    bool canChoose() const; ///< there are files, and nothing is at work on them
    // The choices for all groups at once, where they would change anything, also in groups that the filter hides.
    bool canSelectAllDuplicates() const { return canChooseBy(keeprules::isFirstKept); }
    bool canSelectNone() const { return canChooseBy(keeprules::isAllKept); }
    bool canKeepNewest() const { return canChooseBy(keeprules::isNewestKept); }
    bool canKeepOldest() const { return canChooseBy(keeprules::isOldestKept); }
    bool canDelete() const; ///< a file on view is set to go
    bool canStop() const { return isScanning() && !service_.cancelRequested(); }
    QString stopText() const;
    QString scanText() const;
    QString emptyText() const; ///< what stands in the place of the groups; empty while there are some on view
    QString endText() const;   ///< how the last scan ended, where it was stopped
    double progress() const { return service_.progress(); }
    QString percentText() const;
    QString currentPathText() const;

    // Figures over the filtered groups.

    qint64 filesToDelete() const { return figures_.filesToDelete; }
    qint64 bytesToDelete() const { return figures_.bytesToDelete; }
    bool hasWaste() const { return figures_.wasted > 0; }
    bool hasFigures() const { return figures_.groups > 0; }
    QString groupsFigure() const;
    QString filesFigure() const;
    QString wastedFigure() const;
    QString toDeleteFigure() const; ///< empty while nothing is set to go
    QString footText() const;
    QString deletingText() const; ///< how far the delete run is

    /// The question before the run. Its text names the files on view that go; its note tells what else the run means, and
    /// is completed when the disk has been asked.
    Confirmation *confirmation() { return &confirmation_; }
    bool showDeleteConfirm() const { return confirmation_.isUp(); }
    /// The bytes that the last delete run freed; none after a partial failure.
    std::optional<qint64> deleteResult() const { return deleteResult_; }

    void appear() override;

    Q_INVOKABLE void scan();
    Q_INVOKABLE void stop();
    Q_INVOKABLE void toggleSettings();
    Q_INVOKABLE void chooseFilter(int chip);
    Q_INVOKABLE void selectAllDuplicates();
    Q_INVOKABLE void selectNone();
    Q_INVOKABLE void keepNewest();
    Q_INVOKABLE void keepOldest();
    // Of a row of the list; nothing on a row that is no head, or no file.
    Q_INVOKABLE void keepNewestOf(int row);
    Q_INVOKABLE void keepOldestOf(int row);
    Q_INVOKABLE void toggleKeep(int row);
    Q_INVOKABLE void keepOnly(int row);
    Q_INVOKABLE QString toggleText(int row) const; ///< how the menu calls `toggleKeep`
    Q_INVOKABLE bool isFile(int row) const;
    Q_INVOKABLE void open(int row);
    Q_INVOKABLE void quickLook(int row);
    Q_INVOKABLE void reveal(int row);
    Q_INVOKABLE void copyPath(int row);
    /// Puts the question. The run that it leads to begins in a later turn of the main loop.
    Q_INVOKABLE void askToDelete();

signals:
    void showSettingsChanged();
    void stateChanged();
    void progressChanged();
    void figuresChanged();
    void deletingChanged();
    void rowsWillChange(); ///< the list is about to show others, from its top

private:
    bool canChooseBy(bool (*isSo)(const DuplicateFileGroup &group)) const
    {
        return canChoose() && !keeprules::isSoInAll(service_.groups(), isSo);
    }
    void observeService();
    void showGroups();
    void takeFigures();
    void addKeptOtherwise(DeleteNote note);
    void runDelete();
    const DuplicateFileEntry *fileAt(int row) const;

    const Platform &platform_;
    DuplicateService &service_;
    FileSystemService &fileSystem_;
    QString filter_;
    bool showSettings_ = true;
    std::optional<qint64> deleteResult_;
    std::vector<size_t> filteredGroups_; // taken anew with the groups and with the filter, not at each click
    DuplicateFigures figures_;
    Throttle progressChanges_;
    Confirmation confirmation_;
    LatestQuestion keptOtherwise_; // what the disk is asked for the confirmation's note
    FDABanner banner_;
    DuplicateScopeView scope_;
    RecordListModel<QString> filterRows_;
    SameFileMarks sameFiles_;
    DuplicateRows rows_;
};
