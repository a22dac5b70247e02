#pragma once

#include "apps/AppService.h"
#include "apps/screen/AppDetail.h"
#include "apps/screen/AppLists.h"
#include "apps/screen/AppManagerTexts.h"
#include "apps/screen/AppRemovals.h"
#include "apps/screen/AppTabTexts.h"
#include "apps/screen/GhostDetail.h"
#include "apps/screen/ResultBanner.h"
#include "apps/screen/UninstallSheet.h"
#include "common/Appearing.h"
#include "common/Confirmation.h"

#include <QObject>

#include <memory>

/// The App Manager's screen: two tabs over the service's lists, a pane of details, ticks for several at once, and the export.
/// The lists outlive it; tab, search and order are lost with it. Made by std::make_shared, since removals of several begin in
/// a later turn of the main loop. It is kept until a removal that it has begun has ended. Main thread.
class AppManagerView final : public QObject,
                             public Appearing,
                             public std::enable_shared_from_this<AppManagerView>
{
    Q_OBJECT
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QString symbol READ symbol CONSTANT)
    Q_PROPERTY(AppManagerTexts texts READ texts CONSTANT)
    Q_PROPERTY(AppTabTexts tabTexts READ tabTexts NOTIFY stateChanged)
    Q_PROPERTY(AppLists *lists READ lists CONSTANT)
    Q_PROPERTY(ResultBanner *banner READ banner CONSTANT)
    Q_PROPERTY(AppDetail *appDetail READ appDetail CONSTANT)
    Q_PROPERTY(GhostDetail *ghostDetail READ ghostDetail CONSTANT)
    Q_PROPERTY(UninstallSheet *sheet READ sheet CONSTANT)
    Q_PROPERTY(Confirmation *bulkQuestion READ bulkQuestion CONSTANT)
    Q_PROPERTY(Confirmation *ghostQuestion READ ghostQuestion CONSTANT)
    Q_PROPERTY(QList<QString> tabLabels READ tabLabels CONSTANT)
    Q_PROPERTY(int activeTab READ activeTab NOTIFY stateChanged)
    Q_PROPERTY(bool isGhostTab READ isGhostTab NOTIFY stateChanged)
    Q_PROPERTY(bool isScanning READ isScanning NOTIFY stateChanged)
    Q_PROPERTY(bool isSearching READ isSearching NOTIFY stateChanged)
    Q_PROPERTY(QString emptyText READ emptyText NOTIFY stateChanged)
    Q_PROPERTY(QString emptyDetail READ emptyDetail NOTIFY stateChanged)
    Q_PROPERTY(bool canRescan READ canRescan NOTIFY stateChanged)
    Q_PROPERTY(bool canStop READ canStop NOTIFY stateChanged)
    Q_PROPERTY(QString stopText READ stopText NOTIFY stateChanged)
    Q_PROPERTY(QList<QString> stopLabels READ stopLabels CONSTANT)
    Q_PROPERTY(bool hasGhosts READ hasGhosts NOTIFY listsChanged)
    Q_PROPERTY(bool hasSelection READ hasSelection NOTIFY listsChanged)
    Q_PROPERTY(QString selectionText READ selectionText NOTIFY listsChanged)
    Q_PROPERTY(QString selectionAction READ selectionAction NOTIFY listsChanged)
    Q_PROPERTY(QString bulkTitle READ bulkTitle NOTIFY questionChanged)
    Q_PROPERTY(QString ghostTitle READ ghostTitle NOTIFY questionChanged)
    Q_PROPERTY(bool canRemoveSelected READ canRemoveSelected NOTIFY listsChanged)
    Q_PROPERTY(bool canChoose READ canChoose NOTIFY stateChanged)
    Q_PROPERTY(bool canUninstall READ canUninstall NOTIFY paneChanged)
    Q_PROPERTY(bool canRemoveFiles READ canRemoveFiles NOTIFY paneChanged)
    Q_PROPERTY(QString pane READ pane NOTIFY paneChanged)

public:
    enum class Tab { installed, ghosts };

    AppManagerView(const Platform &platform, AppService &service, SizeProbes &probes,
                   FileSystemService &fileSystem);

    QString title() const { return QStringLiteral("App Manager"); }
    QString symbol() const { return QStringLiteral("app.badge.checkmark"); }
    AppManagerTexts texts() const { return {}; }
    AppTabTexts tabTexts() const; ///< of the tab on view
    AppLists *lists() { return &lists_; }
    ResultBanner *banner() { return &banner_; }
    AppDetail *appDetail() { return &appDetail_; }
    GhostDetail *ghostDetail() { return &ghostDetail_; }
    UninstallSheet *sheet() { return &sheet_; }
    /// Each goes by itself when a scan takes away what it asks about.
    Confirmation *bulkQuestion() { return &bulkQuestion_; }
    Confirmation *ghostQuestion() { return &ghostQuestion_; }

    QStringList tabLabels() const;
    int activeTab() const { return static_cast<int>(activeTab_); }
    bool isGhostTab() const { return activeTab_ == Tab::ghosts; }

    bool isScanning() const;   ///< for the list of the tab on view
    bool isSearching() const;  ///< the same with nothing to show yet, be it about to begin
    QString emptyText() const; ///< what stands in the place of the list; empty while that or a scan does
    QString emptyDetail() const;
    bool canRescan() const { return !isScanning() && canChoose(); }
    bool canStop() const;
    QString stopText() const;
    QStringList stopLabels() const; ///< all that it may read, so that its button keeps one width

    bool hasGhosts() const { return !service_.ghosts().empty(); }
    bool hasSelection() const; ///< something is ticked on the tab on view
    QString selectionText() const;
    QString selectionAction() const;
    QString bulkTitle() const { return selectiontexts::title(pendingUninstall_); }
    QString ghostTitle() const { return selectiontexts::title(pendingGhostRemove_); }
    /// Not during a scan, which ends with another list.
    bool canRemoveSelected() const { return hasSelection() && canChoose() && !isScanning(); }
    bool canChoose() const
    {
        return removals_.canBegin();
    } ///< ticks may change, and something may be removed
    bool canUninstall() const { return appDetail_.app() && canChoose(); }
    bool canRemoveFiles() const { return ghostDetail_.hasTicked() && canChoose(); }
    /// "ghost"; "bulk" while applications are ticked, unless one was chosen later; "app"; "empty".
    QString pane() const;

    void appear() override;

    Q_INVOKABLE void chooseTab(int tab);
    Q_INVOKABLE void rescan();
    Q_INVOKABLE void stop();
    Q_INVOKABLE void exportList();
    Q_INVOKABLE void clearSelection();
    Q_INVOKABLE void selectAllGhosts(bool isSelected);
    Q_INVOKABLE void askToRemoveSelected();
    // Of a row of the list on view; nothing where there is none.
    Q_INVOKABLE void select(int row); ///< shows it in the pane
    Q_INVOKABLE void toggleTick(int row);
    Q_INVOKABLE void openApp(int row);
    Q_INVOKABLE void revealApp(int row);
    Q_INVOKABLE void copyBundleID(int row);
    Q_INVOKABLE void copyPath(int row);
    // Of the pane.
    Q_INVOKABLE void askToUninstall();
    Q_INVOKABLE void revealSelected();
    Q_INVOKABLE void toggleFile(int row);
    Q_INVOKABLE void selectAllFiles(bool isSelected);
    Q_INVOKABLE void revealFile(int row);
    Q_INVOKABLE void removeFiles();
    // Of the banner.
    Q_INVOKABLE void retry();
    Q_INVOKABLE void revealFailed();
    Q_INVOKABLE void dismissBanner() { banner_.clear(); }

signals:
    void stateChanged();
    void listsChanged();
    void paneChanged();
    void questionChanged();

private:
    void observeLists();
    void observeParts();
    void holdDuringRemovals();
    void takeState();
    void showApp(const std::optional<RealInstalledApp> &app);
    void showGhost(const std::optional<GhostApp> &ghost);
    const RealInstalledApp *appAt(int row) const; // null on the other tab, too
    const GhostApp *ghostAt(int row) const;
    void confirmBulk();
    void confirmGhosts();

    const Platform &platform_;
    AppService &service_;
    SizeProbes &probes_;
    FileSystemService &fileSystem_;
    Tab activeTab_ = Tab::installed;
    bool isAppChosen_ = false;                      // later than any tick
    bool willScan_ = false;                         // as soon as the screen has been seen
    selectiontexts::SelectedApps pendingUninstall_; // what the questions speak of
    ghostlist::Pending pendingGhostRemove_;
    AppLists lists_;
    ResultBanner banner_;
    AppRemovals removals_;
    AppDetail appDetail_;
    GhostDetail ghostDetail_;
    UninstallSheet sheet_;
    Confirmation bulkQuestion_;
    Confirmation ghostQuestion_;
    std::shared_ptr<AppManagerView> self_; // while a removal runs
};
