#include "apps/uninstall/BulkUninstall.h"

#include "base/Ids.h"
#include "base/Sums.h"

#include <algorithm>
#include <utility>

BulkUninstall::BulkUninstall(std::vector<RealInstalledApp> apps)
    : apps_(std::move(apps))
{
}

void BulkUninstall::run(const Ways &ways)
{
    for (const RealInstalledApp &app : apps_)
        uninstall(app, ways);
    for (const Retry &again : retries_)
        retry(again, ways);
}

void BulkUninstall::uninstall(const RealInstalledApp &app, const Ways &ways)
{
    const UninstallReport report = ways.uninstall(app);
    items_ += report.filesRemoved + (report.appWasMoved ? 1 : 0);
    freed_ = sums::saturated(freed_, report.freedSize);
    if (report.isComplete()) {
        ++done_;
        gone_.push_back(app);
        return;
    }
    if (!report.appWasMoved && report.filesRemoved > 0)
        ++partial_;
    retries_.push_back({app, report.filesRemoved});
}

/// Also where the bundle has gone and only files had to stay: the administrator's move finds nothing there then, and the
/// application counts as done.
void BulkUninstall::retry(const Retry &again, const Ways &ways)
{
    if (!ways.asAdministrator(again.app))
        return;
    ++done_;
    ++items_;
    freed_ = sums::saturated(freed_, again.app.size);
    if (again.filesRemoved > 0)
        partial_ = std::max(0, partial_ - 1);
    gone_.push_back(again.app);
}

UninstallResult BulkUninstall::result() const
{
    const QString done = QString::number(done_);
    const QString total = QString::number(apps_.size());
    UninstallResult result;
    result.id = ids::fresh();
    result.removedCount = items_;
    result.freedSize = freed_;
    result.success = static_cast<size_t>(done_) == apps_.size();
    if (result.success) {
        result.appName = QStringLiteral("%1 apps").arg(total);
    } else if (partial_ < 1) {
        result.appName = QStringLiteral("%1 of %2 apps").arg(done, total);
        result.error = QStringLiteral("Some apps could not be uninstalled.");
    } else {
        result.appName =
            QStringLiteral("%1 of %2 apps (%3 partial)").arg(done, total, QString::number(partial_));
        result.error = QStringLiteral("Some apps couldn't be moved to Trash, but their associated files were "
                                      "cleaned. Reveal those apps in "
                                      "Finder to remove them manually — no ghost files left behind.");
    }
    return result;
}
