#include "apps/screen/AppManagerView.h"

#include "apps/screen/AppExport.h"
#include "base/GuardedPost.h"
#include "common/NotificationNames.h"
#include "filesystem/FileSystemService.h"
#include "filesystem/SizeProbes.h"
#include "platform/Workspace.h"

#include <algorithm>
#include <iterator>

namespace {

const QString stopScan = QStringLiteral("Cancel");
const QString stopping = QStringLiteral("Stopping…");

template<typename Record>
std::vector<Record> tickedOf(const std::vector<Record> &records)
{
    std::vector<Record> ticked;
    std::ranges::copy_if(records, std::back_inserter(ticked), &Record::selected);
    return ticked;
}

} // namespace

AppManagerView::AppManagerView(const Platform &platform, AppService &service, SizeProbes &probes,
                               FileSystemService &fileSystem)
    : platform_(platform)
    , service_(service)
    , probes_(probes)
    , fileSystem_(fileSystem)
    , activeTab_(service.openOnGhostsTab() ? Tab::ghosts : Tab::installed)
    , willScan_(service.apps().empty() && !service.isLoading())
    , lists_(platform.clock, service)
    , banner_(platform.mainQueue)
    , removals_(platform, service, banner_)
    , appDetail_(platform.clock)
    , ghostDetail_(platform.home)
    , sheet_(platform.home, [this] { removals_.uninstall(*sheet_.app(), sheet_.associatedFiles()); })
    , bulkQuestion_([this] { confirmBulk(); })
    , ghostQuestion_([this] { confirmGhosts(); })
{
    service.setOpenOnGhostsTab(false); // the tab is told, and only this once
    observeLists();
    observeParts();
    platform_.notifications.observe(notifications::rescan, this, [this](const QVariant &) { rescan(); });
}

void AppManagerView::observeLists()
{
    connect(&lists_, &AppLists::changed, this, &AppManagerView::takeState);
    connect(&lists_, &AppLists::appsReplaced, this, [this] {
        bulkQuestion_.cancel(); // it has asked about applications that are others now
        sheet_.cancel();
    });
    connect(&lists_, &AppLists::ghostsReplaced, &ghostQuestion_, &Confirmation::cancel);
    connect(&service_, &AppService::isLoadingChanged, this, &AppManagerView::takeState);
    connect(&service_, &AppService::isScanningGhostsChanged, this, &AppManagerView::takeState);
}

void AppManagerView::observeParts()
{
    connect(&removals_, &AppRemovals::changed, this, [this] {
        sheet_.setBusy(sheet_.isUp() && removals_.isUninstalling());
        holdDuringRemovals();
        takeState();
    });
    connect(&removals_, &AppRemovals::uninstallEnded, &sheet_, &UninstallSheet::close);
    connect(&removals_, &AppRemovals::appGone, this, [this] { showApp({}); });
    connect(&removals_, &AppRemovals::ghostGone, this, [this] { showGhost({}); });
    connect(&ghostDetail_, &GhostDetail::ticksChanged, this,
            [this] { service_.takeFileTicks(*ghostDetail_.ghost()); });
    connect(&ghostDetail_, &GhostDetail::changed, this, &AppManagerView::paneChanged);
}

/// A removal goes on to its end, with all that it asks for and tells, also when the screen has been left.
void AppManagerView::holdDuringRemovals()
{
    if (removals_.isRunning())
        self_ = weak_from_this().lock();
    else if (self_) // in a later turn: this may be the last hold, and one of its parts is at work here
        platform_.mainQueue.post([held = std::move(self_)] {});
}

void AppManagerView::takeState()
{
    if (isScanning()) // which ends with another list
        (isGhostTab() ? ghostQuestion_ : bulkQuestion_).cancel();
    emit stateChanged();
    emit listsChanged(); // what may be done with them goes by the state
    emit paneChanged();
}

void AppManagerView::showApp(const std::optional<RealInstalledApp> &app)
{
    appDetail_.show(app);
    lists_.setCurrentApp(app ? app->id : QUuid());
    emit paneChanged();
}

void AppManagerView::showGhost(const std::optional<GhostApp> &ghost)
{
    ghostDetail_.show(ghost);
    lists_.setCurrentGhost(ghost ? ghost->id : QUuid());
}

void AppManagerView::appear()
{
    willScan_ = false;
    if (service_.apps().empty() && !service_.isLoading())
        service_.scanInstalledApps();
    emit stateChanged();
}

AppTabTexts AppManagerView::tabTexts() const
{
    return isGhostTab() ? AppTabTexts::ofGhosts(platform_.keyStyle)
                        : AppTabTexts::ofInstalled(platform_.keyStyle);
}

QStringList AppManagerView::tabLabels() const
{
    return {QStringLiteral("Installed"), QStringLiteral("Ghost Files")};
}

void AppManagerView::chooseTab(int tab)
{
    if (tab < 0 || tab >= tabLabels().size() || tab == activeTab())
        return;
    activeTab_ = static_cast<Tab>(tab);
    bulkQuestion_.cancel();
    ghostQuestion_.cancel();
    sheet_.cancel();
    showApp({});
    showGhost({});
    lists_.setSearchText({});
    takeState();
    if (isGhostTab() && service_.ghosts().empty() && !service_.isScanningGhosts())
        service_.scanGhosts();
}

bool AppManagerView::isScanning() const
{
    return isGhostTab() ? service_.isScanningGhosts() : service_.isLoading();
}

bool AppManagerView::isSearching() const
{
    if (isGhostTab())
        return service_.ghosts().empty() && isScanning();
    return service_.apps().empty() && (isScanning() || willScan_);
}

QString AppManagerView::emptyText() const
{
    if (isSearching() || (isGhostTab() ? lists_.ghostCount() : lists_.installedCount()) > 0)
        return {};
    if (isGhostTab() && service_.ghosts().empty())
        return service_.hasScannedGhosts() ? QStringLiteral("No ghost files found") : QString();
    return service_.apps().empty() && !isGhostTab() ? QStringLiteral("No applications found")
                                                    : QStringLiteral("No matches");
}

QString AppManagerView::emptyDetail() const
{
    const bool hasNoGhosts = isGhostTab() && service_.ghosts().empty() && !emptyText().isEmpty();
    return hasNoGhosts ? QStringLiteral("Your system is clean of leftover app files.") : QString();
}

bool AppManagerView::canStop() const
{
    return isScanning() && !(isGhostTab() ? service_.cancelGhosts() : service_.cancelInstalled());
}

QString AppManagerView::stopText() const
{
    // The scan may be waiting for a disk that does not answer; the click shows all the same.
    return isScanning() && !canStop() ? stopping : stopScan;
}

QStringList AppManagerView::stopLabels() const
{
    return {stopScan, stopping};
}

bool AppManagerView::hasSelection() const
{
    return (isGhostTab() ? lists_.selectedGhosts().count : lists_.selectedApps().count) > 0;
}

QString AppManagerView::selectionText() const
{
    return isGhostTab() ? selectiontexts::bar(lists_.selectedGhosts())
                        : selectiontexts::bar(lists_.selectedApps());
}

QString AppManagerView::selectionAction() const
{
    return isGhostTab() ? selectiontexts::button(lists_.selectedGhosts())
                        : selectiontexts::button(lists_.selectedApps());
}

QString AppManagerView::pane() const
{
    if (isGhostTab())
        return ghostDetail_.ghost() ? QStringLiteral("ghost") : QStringLiteral("empty");
    if (hasSelection() && !(isAppChosen_ && appDetail_.app()))
        return QStringLiteral("bulk");
    return appDetail_.app() ? QStringLiteral("app") : QStringLiteral("empty");
}

void AppManagerView::rescan()
{
    if (!canRescan())
        return;
    if (isGhostTab())
        service_.scanGhosts();
    else
        service_.scanInstalledApps();
}

void AppManagerView::stop()
{
    if (!canStop())
        return;
    if (isGhostTab())
        service_.setCancelGhosts(true);
    else
        service_.setCancelInstalled(true);
    probes_.cancelProbes();
    emit stateChanged();
}

void AppManagerView::exportList()
{
    if (isGhostTab())
        appexport::saveGhosts(platform_, service_);
    else
        appexport::saveInstalled(platform_, service_);
}

void AppManagerView::clearSelection()
{
    if (canChoose())
        service_.clearSelection();
}

void AppManagerView::selectAllGhosts(bool isSelected)
{
    if (canChoose())
        service_.selectAllGhosts(isSelected);
}

void AppManagerView::askToRemoveSelected()
{
    if (!canRemoveSelected())
        return;
    if (isGhostTab()) {
        pendingGhostRemove_ = lists_.selectedGhosts();
        ghostQuestion_.ask(selectiontexts::question(pendingGhostRemove_));
    } else {
        pendingUninstall_ = lists_.selectedApps();
        bulkQuestion_.ask(selectiontexts::question(pendingUninstall_));
    }
    emit questionChanged();
}

void AppManagerView::confirmBulk()
{
    guarded::runLater(platform_.mainQueue, *this, [apps = tickedOf(service_.apps())](AppManagerView &view) {
        view.removals_.uninstallAll(apps);
    });
}

void AppManagerView::confirmGhosts()
{
    guarded::runLater(
        platform_.mainQueue, *this,
        [ghosts = tickedOf(service_.ghosts())](AppManagerView &view) { view.removals_.removeAll(ghosts); });
}

const RealInstalledApp *AppManagerView::appAt(int row) const
{
    return isGhostTab() ? nullptr : lists_.appAt(row);
}

const GhostApp *AppManagerView::ghostAt(int row) const
{
    return isGhostTab() ? lists_.ghostAt(row) : nullptr;
}

void AppManagerView::select(int row)
{
    if (const RealInstalledApp *app = appAt(row)) {
        isAppChosen_ = true;
        showApp(*app);
    }
    if (const GhostApp *ghost = ghostAt(row))
        showGhost(*ghost);
}

void AppManagerView::toggleTick(int row)
{
    if (!canChoose())
        return;
    if (const RealInstalledApp *app = appAt(row)) {
        isAppChosen_ = false;
        service_.toggleApp(app->id);
    }
    if (const GhostApp *ghost = ghostAt(row))
        service_.toggleGhost(ghost->id);
}

void AppManagerView::openApp(int row)
{
    if (const RealInstalledApp *app = appAt(row))
        platform_.workspace.open(app->path);
}

void AppManagerView::revealApp(int row)
{
    if (const RealInstalledApp *app = appAt(row))
        fileSystem_.revealInFinder(app->path);
}

void AppManagerView::copyBundleID(int row)
{
    if (const RealInstalledApp *app = appAt(row))
        platform_.workspace.copyText(app->bundleID);
}

void AppManagerView::copyPath(int row)
{
    if (const RealInstalledApp *app = appAt(row))
        platform_.workspace.copyText(app->path);
}

void AppManagerView::askToUninstall()
{
    if (canUninstall())
        sheet_.ask(*appDetail_.app());
}

void AppManagerView::revealSelected()
{
    if (const auto &app = appDetail_.app())
        fileSystem_.revealInFinder(app->path);
}

void AppManagerView::toggleFile(int row)
{
    if (canChoose())
        ghostDetail_.toggle(row);
}

void AppManagerView::selectAllFiles(bool isSelected)
{
    if (canChoose())
        ghostDetail_.selectAll(isSelected);
}

void AppManagerView::revealFile(int row)
{
    if (const AssociatedFile *file = ghostDetail_.fileAt(row))
        fileSystem_.revealInFinder(file->path);
}

void AppManagerView::removeFiles()
{
    if (canRemoveFiles())
        removals_.removeFiles(*ghostDetail_.ghost());
}

void AppManagerView::retry()
{
    if (banner_.hasRetry())
        removals_.retry(RealInstalledApp(*banner_.result()->retryableApp));
}

void AppManagerView::revealFailed()
{
    if (banner_.result() && banner_.result()->failedPath)
        fileSystem_.revealInFinder(*banner_.result()->failedPath);
}
