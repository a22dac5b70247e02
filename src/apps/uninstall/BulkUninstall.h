#pragma once

#include "apps/uninstall/UninstallReport.h"
#include "apps/uninstall/UninstallResult.h"

#include <functional>
#include <vector>

/// One run over several applications: a list made at its start, what became of each, and what is told of it at the end. An
/// application whose bundle or files had to stay is tried again as an administrator once all others are through, so that the
/// user is asked for a password at the end and in one go.
class BulkUninstall
{
public:
    /// How one application goes.
    struct Ways
    {
        std::function<UninstallReport(const RealInstalledApp &)> uninstall;
        /// False where the bundle is still there.
        std::function<bool(const RealInstalledApp &)> asAdministrator;
    };

    explicit BulkUninstall(std::vector<RealInstalledApp> apps);

    /// Tries all of them. What `ways` do may let the event loop turn.
    void run(const Ways &ways);

    /// Of the applications that are gone.
    const std::vector<RealInstalledApp> &gone() const { return gone_; }

    UninstallResult result() const;

private:
    struct Retry
    {
        RealInstalledApp app;
        int filesRemoved = 0;
    };

    void uninstall(const RealInstalledApp &app, const Ways &ways);
    void retry(const Retry &again, const Ways &ways);

    std::vector<RealInstalledApp> apps_;
    std::vector<Retry> retries_;
    std::vector<RealInstalledApp> gone_;
    int done_ = 0;
    int partial_ = 0; // the files went and the bundle stayed
    int items_ = 0;
    qint64 freed_ = 0;
};
