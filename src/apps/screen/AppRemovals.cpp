#include "apps/screen/AppRemovals.h"

#include "apps/uninstall/BulkUninstall.h"
#include "apps/uninstall/GhostRemoval.h"
#include "apps/uninstall/RunningCheck.h"
#include "base/EventLoop.h"
#include "base/Files.h"
#include "base/GuardedPost.h"
#include "base/Ids.h"
#include "base/Sums.h"
#include "common/Formatters.h"
#include "filesystem/FileSystemService.h"
#include "platform/Applications.h"

#include <utility>

namespace {

// Seconds for which a result stays.
constexpr double shortly = 3;
constexpr double longer = 5;

UninstallResult failure(const QString &name, const QString &error)
{
    UninstallResult result;
    result.id = ids::fresh();
    result.appName = name;
    result.error = error;
    return result;
}

QString cancelText(int removed, qint64 freed)
{
    return QStringLiteral("Admin auth cancelled. Removed %1 leftover file%2 (%3); the app itself is still in "
                          "/Applications.")
        .arg(QString::number(removed), removed == 1 ? QString() : QStringLiteral("s"), sizeText(freed));
}

} // namespace

AppRemovals::AppRemovals(const Platform &platform, AppService &service, ResultBanner &banner)
    : platform_(platform)
    , service_(service)
    , banner_(banner)
{
    connect(&service, &AppService::isRemovingChanged, this, &AppRemovals::changed);
}

void AppRemovals::begin(bool isUninstalling)
{
    isRunning_ = true;
    isUninstalling_ = isUninstalling;
    service_.setRemoving(true);
}

void AppRemovals::end()
{
    isRunning_ = false;
    isUninstalling_ = false;
    service_.setRemoving(false);
}

bool AppRemovals::isAppRunning(const RealInstalledApp &app) const
{
    const QStringList running = platform_.applications.runningPaths();
    // The system tells where programs really lie, and the folder for applications may be reached by a link.
    return runningcheck::isRunning(app.path, running)
           || runningcheck::isRunning(files::realPath(app.path).value_or(app.path), running);
}

void AppRemovals::uninstall(const RealInstalledApp &app, const std::vector<AssociatedFile> &files)
{
    if (!canBegin())
        return;
    if (isAppRunning(app)) {
        emit uninstallEnded();
        banner_.show(
            failure(app.name,
                    QStringLiteral("%1 is currently running. Quit it first, then try again.").arg(app.name)),
            longer);
        return;
    }
    begin(true);
    platform_.workQueue.post(
        WorkPriority::userInitiated,
        [self = QPointer(this), app, files, tools = service_.tools(), &main = platform_.mainQueue] {
            guarded::post(main, self,
                          [app, report = appuninstall::run(app, files, tools)](AppRemovals &removals) {
                              removals.takeReport(app, report);
                          });
        });
}

void AppRemovals::takeReport(const RealInstalledApp &app, const UninstallReport &report)
{
    setUninstalling(false);
    emit uninstallEnded();
    const Removed removed{report.filesRemoved, report.freedSize};
    // Also where the bundle has gone and only files had to stay.
    if (report.appError || report.filesFailedCount > 0) {
        askAdministrator(app, removed);
        return;
    }
    end();
    emit appGone();
    tellSuccess(app.name, {removed.count + 1, removed.size});
    service_.scanInstalledApps();
}

void AppRemovals::setUninstalling(bool isUninstalling)
{
    isUninstalling_ = isUninstalling;
    emit changed();
}

void AppRemovals::retry(const RealInstalledApp &app)
{
    if (!canBegin())
        return;
    begin(false);
    askAdministrator(app, {});
}

void AppRemovals::askAdministrator(const RealInstalledApp &app, Removed before)
{
    banner_.clear();
    platform_.workQueue.post(
        WorkPriority::userInitiated,
        [self = QPointer(this), app, before, tools = service_.tools(), &main = platform_.mainQueue] {
            std::optional<Error> failure;
            try {
                appuninstall::runAsAdministrator(app.path, tools);
            } catch (const Error &error) {
                failure = error;
            }
            guarded::post(main, self, [app, before, failure](AppRemovals &removals) {
                removals.takeAnswer(app, before, failure);
            });
        });
}

void AppRemovals::takeAnswer(const RealInstalledApp &app, Removed before, const std::optional<Error> &error)
{
    end();
    if (!error) {
        emit appGone();
        tellSuccess(app.name, {before.count + 1, sums::saturated(before.size, app.size)});
        service_.scanInstalledApps();
        return;
    }
    const bool wasCancelled = error->code == FileSystemService::adminCancelled;
    if (wasCancelled && before.count < 1)
        return;
    UninstallResult result =
        failure(app.name, wasCancelled
                              ? cancelText(before.count, before.size)
                              : QStringLiteral("Couldn't remove the app bundle: %1").arg(error->description));
    result.removedCount = before.count;
    result.freedSize = before.size;
    result.failedPath = app.path;
    result.retryableApp = app;
    banner_.show(std::move(result));
}

void AppRemovals::tellSuccess(const QString &name, Removed removed)
{
    banner_.show({ids::fresh(), name, removed.count, removed.size, true, {}, {}, {}}, shortly);
}

void AppRemovals::uninstallAll(const std::vector<RealInstalledApp> &apps)
{
    if (!canBegin() || apps.empty())
        return;
    begin(true);
    BulkUninstall run(apps);
    run.run({[this](const RealInstalledApp &app) { return service_.uninstall(app, app.associatedFiles); },
             [this](const RealInstalledApp &app) { return removeAside(app.path); }});
    service_.takeOut(run.gone());
    emit appGone();
    end();
    UninstallResult result = run.result();
    const double seconds = result.success ? shortly : longer;
    banner_.show(std::move(result), seconds);
}

/// As an administrator, for whom one may have to wait for as long as the user likes: off the main thread, whose event loop
/// turns meanwhile. False where the bundle is still there.
bool AppRemovals::removeAside(const QString &bundle)
{
    bool isGone = false;
    eventloop::runAside(platform_.workQueue, [&isGone, &bundle, tools = service_.tools()] {
        try {
            appuninstall::runAsAdministrator(bundle, tools);
            isGone = true;
        } catch (const Error &) {
            // The result counts it as one that stayed.
        }
    });
    return isGone;
}

void AppRemovals::removeAll(const std::vector<GhostApp> &ghosts)
{
    if (!canBegin() || ghosts.empty())
        return;
    begin(false);
    GhostRemoval removal;
    for (const GhostApp &ghost : ghosts)
        removal.remove(ghost.files, service_.tools().fileSystem, *platform_.locations);
    service_.takeOut(ghosts);
    emit ghostGone();
    end();
}

void AppRemovals::removeFiles(const GhostApp &ghost)
{
    if (!canBegin())
        return;
    begin(false);
    platform_.workQueue.post(WorkPriority::userInitiated,
                             [self = QPointer(this), ghost, tools = service_.tools()] {
                                 GhostRemoval removal;
                                 removal.remove(ghost.files, tools.fileSystem, *tools.platform.locations);
                                 guarded::post(tools.platform.mainQueue, self,
                                               [name = ghost.inferredName, removal](AppRemovals &removals) {
                                                   removals.end();
                                                   removals.tellSuccess(name, {removal.count, removal.size});
                                                   emit removals.ghostGone();
                                                   removals.service_.scanGhosts();
                                               });
                             });
}
