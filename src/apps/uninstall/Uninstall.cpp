#include "apps/uninstall/Uninstall.h"

#include "activity/Loggers.h"
#include "apps/uninstall/RemovalPlaces.h"
#include "base/Files.h"
#include "base/Ids.h"
#include "base/Sums.h"
#include "filesystem/FileSystemService.h"

#include <algorithm>
#include <cerrno>

namespace appuninstall {
namespace {

/// Throws where the path is no bundle that a scan could have listed, or lies elsewhere by now.
void requireListed(const QString &bundle, const Tools &tools)
{
    const Locations &locations = *tools.platform.locations;
    if (!removalplaces::isForBundles(bundle, locations)
        || removalplaces::leadsOutOfThoseForBundles(bundle, locations))
        throw errors::fromErrno(EPERM);
}

void moveBundle(const RealInstalledApp &app, const Tools &tools, UninstallReport &report)
{
    try {
        requireListed(app.path, tools);
        tools.fileSystem.moveToTrash(app.path);
        report.appWasMoved = true;
        report.freedSize = app.size;
    } catch (const Error &error) {
        report.appError = error;
    }
}

void moveFile(const AssociatedFile &file, const Tools &tools, UninstallReport &report)
{
    if (!files::exists(file.path))
        return;
    if (!removalplaces::isForAssociatedFiles(file.path, *tools.platform.locations)) {
        ++report.filesFailedCount;
        return;
    }
    try {
        tools.fileSystem.moveToTrash(file.path);
        ++report.filesRemoved;
        report.freedSize = sums::saturated(report.freedSize, file.size);
    } catch (const Error &) {
        ++report.filesFailedCount;
    }
}

void log(const QString &name, const UninstallReport &report, const Logger &logger)
{
    if (!report.appWasMoved)
        logger.error(QStringLiteral("Uninstall %1 failed: %2").arg(name, report.appError->description));
    else if (report.filesFailedCount > 0)
        logger.error(QStringLiteral("Uninstall %1 partial: %2 files failed")
                         .arg(name, QString::number(report.filesFailedCount)));
    else
        logger.info(
            QStringLiteral("Uninstalled %1: %2 items, %3 bytes")
                .arg(name, QString::number(report.filesRemoved + 1), QString::number(report.freedSize)));
}

/// Lists all that was to go, also what stayed or had vanished.
HistoryEntry record(const RealInstalledApp &app, const std::vector<AssociatedFile> &files,
                    const UninstallReport &report, Date now)
{
    HistoryEntry entry;
    entry.id = ids::fresh();
    entry.timestamp = now;
    entry.kind = HistoryEntry::Kind::uninstall;
    entry.title =
        (report.isComplete() ? QStringLiteral("Uninstalled %1") : QStringLiteral("Uninstall failed: %1"))
            .arg(app.name);
    entry.paths << app.path;
    for (const AssociatedFile &file : files) {
        if (file.selected && entry.paths.size() < HistoryEntry::mostPaths)
            entry.paths << file.path;
    }
    entry.bytesAffected = report.freedSize;
    entry.success = report.isComplete();
    if (!report.appWasMoved)
        entry.detail = report.appError->description;
    else if (report.filesFailedCount > 0)
        entry.detail =
            QStringLiteral("%1 associated file(s) couldn't be moved.").arg(report.filesFailedCount);
    return entry;
}

} // namespace

UninstallReport run(const RealInstalledApp &app, const std::vector<AssociatedFile> &files, const Tools &tools)
{
    UninstallReport report;
    report.appPath = app.path;
    moveBundle(app, tools, report);
    for (const AssociatedFile &file : files) {
        if (file.selected)
            moveFile(file, tools, report);
    }
    log(app.name, report, Loggers(tools.platform.systemLog).appManager);
    tools.history().record(record(app, files, report, tools.platform.clock.now()));
    return report;
}

void runAsAdministrator(const QString &bundle, const Tools &tools)
{
    requireListed(bundle, tools);
    tools.fileSystem.adminTrash(bundle);
}

} // namespace appuninstall
