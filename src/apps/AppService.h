#pragma once

#include "apps/catalogue/RealInstalledApp.h"
#include "apps/ghosts/GhostApp.h"
#include "apps/uninstall/Uninstall.h"
#include "platform/Platform.h"

#include <QObject>

#include <atomic>
#include <memory>
#include <vector>

class FileSystemService;
class SizeProbes;

/// Finds the installed applications and what gone ones have left behind, and holds what was found and what the user has
/// ticked of it. Nothing is kept on disk. Published fields change on the main thread only, set first, then notified. Main
/// thread, all of it but what says otherwise; scans run on the work queue.
class AppService final : public QObject
{
    Q_OBJECT

public:
    /// The activity log, which is made when a removal first has something to record.
    using History = std::function<HistoryService &()>;

    AppService(const Platform &platform, SizeProbes &probes, const FileSystemService &fileSystem,
               History history);

    /// The process's one instance, made at the first call with its arguments and never destroyed.
    static AppService &shared(const Platform &platform, SizeProbes &probes,
                              const FileSystemService &fileSystem, const History &history);

    // Published fields.

    /// Of the last scan, also of a stopped one, which has as far as it came; largest bundle first.
    const std::vector<RealInstalledApp> &apps() const { return apps_; }
    /// The same of the groups of files that gone applications have left, the largest first.
    const std::vector<GhostApp> &ghosts() const { return ghosts_; }
    bool isLoading() const { return isLoading_; } ///< until the result is there
    bool isScanningGhosts() const { return isScanningGhosts_; }
    bool hasScannedGhosts() const { return hasScannedGhosts_; } ///< a scan has ended once, also a stopped one

    bool openOnGhostsTab() const { return openOnGhostsTab_; } ///< the screen's first tab, for once
    void setOpenOnGhostsTab(bool opens) { openOnGhostsTab_ = opens; }

    bool cancelInstalled() const { return cancelInstalled_->load(std::memory_order_relaxed); }
    /// True is the whole of the command to stop the scan for applications, which looks at it ahead of each; the live size
    /// probe is ended through SizeProbes.
    void setCancelInstalled(bool isCancelled);
    bool cancelGhosts() const { return cancelGhosts_->load(std::memory_order_relaxed); }
    void setCancelGhosts(bool isCancelled); ///< likewise, ahead of each entry of the folders

    /// A removal is under way. There is one at a time, whichever screen model has begun it.
    bool isRemoving() const { return isRemoving_; }
    void setRemoving(bool isRemoving);

    // Commands.

    /// Starts a scan and returns at once; the old list stays until the new one is there. A caller looks first that none is
    /// running. Of two side by side the later one's result counts.
    void scanInstalledApps();
    /// Starts a search for what applications have left that are neither among `apps`, as they are now, nor found again.
    /// Returns at once; of two side by side the later one's result counts.
    void scanGhosts();

    // Ticks; nothing for an id that is no longer in the list.
    void toggleApp(const QUuid &id);
    void clearSelection(); ///< of the applications
    void toggleGhost(const QUuid &id);
    void selectAllGhosts(bool isSelected);
    /// Takes the ticks of a group's files from a copy of it.
    void takeFileTicks(const GhostApp &ghost);

    /// Moves an application and its selected files to the Trash, logs and records it. Blocks; any thread.
    UninstallReport uninstall(const RealInstalledApp &app, const std::vector<AssociatedFile> &files) const;
    /// What removals work with; outlives the service.
    const appuninstall::Tools &tools() const { return tools_; }

    /// Take what is gone out of the lists, and out of that of a scan under way, which may have passed by before. A scan makes
    /// records of its own, so they are also known by where they lie, and by their key.
    void takeOut(const std::vector<RealInstalledApp> &gone);
    void takeOut(const std::vector<GhostApp> &gone);

signals:
    void appsChanged(); ///< another list
    void appsShrunk();  ///< the same list with fewer
    void appChanged(size_t index);
    void appTicksChanged(); ///< of all
    void ghostsChanged();
    void ghostsShrunk();
    void ghostChanged(size_t index);
    void ghostTicksChanged();
    void isLoadingChanged();
    void isScanningGhostsChanged();
    void hasScannedGhostsChanged();
    void isRemovingChanged();

private:
    using CancelFlag = std::shared_ptr<std::atomic<bool>>;

    void deliver(std::vector<RealInstalledApp> apps, int scan);
    void deliverGhosts(std::vector<GhostApp> ghosts, int scan);

    const Platform &platform_;
    SizeProbes &probes_;
    const appuninstall::Tools tools_;

    std::vector<RealInstalledApp> apps_;
    std::vector<GhostApp> ghosts_;
    // Taken out since the last scan began.
    std::vector<RealInstalledApp> goneApps_;
    std::vector<GhostApp> goneGhosts_;
    bool isLoading_ = false;
    bool isScanningGhosts_ = false;
    bool hasScannedGhosts_ = false;
    bool openOnGhostsTab_ = false;
    bool isRemoving_ = false;
    /// Jobs hold them weakly: without them their service is gone.
    CancelFlag cancelInstalled_ = std::make_shared<std::atomic<bool>>(false);
    CancelFlag cancelGhosts_ = std::make_shared<std::atomic<bool>>(false);
    int scans_ = 0;      // for applications, that have begun
    int ghostScans_ = 0; // likewise
};
