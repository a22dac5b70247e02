#pragma once

#include "apps/AppService.h"
#include "apps/screen/ResultBanner.h"

#include <QObject>

#include <vector>

/// The removals that the App Manager's screen sets going, one at a time, and what is told of them. Those of one application
/// or one ghost run on the work queue. Those over several run on the main thread, which lets the event loop turn while it
/// waits: they begin in a later turn of the main loop, and whoever owns this is kept until they have ended. Main thread.
class AppRemovals final : public QObject
{
    Q_OBJECT

public:
    AppRemovals(const Platform &platform, AppService &service, ResultBanner &banner);

    bool isUninstalling() const { return isUninstalling_; } ///< not while an administrator is asked for
    bool isRunning() const { return isRunning_; }           ///< one of this object's
    bool canBegin() const { return !service_.isRemoving(); }

    // Each does nothing while another one runs.

    /// An application with those of `files` that are selected, unless it is running. What can't go is tried again as an
    /// administrator at once.
    void uninstall(const RealInstalledApp &app, const std::vector<AssociatedFile> &files);
    /// The bundle alone, as an administrator.
    void retry(const RealInstalledApp &app);
    void uninstallAll(const std::vector<RealInstalledApp> &apps); ///< turns the event loop
    void removeAll(const std::vector<GhostApp> &ghosts);          ///< likewise
    void removeFiles(const GhostApp &ghost);

signals:
    void changed();
    void uninstallEnded(); ///< of one application, or refused
    void appGone();        ///< what is shown of one is over
    void ghostGone();

private:
    struct Removed
    {
        int count = 0;
        qint64 size = 0; // bytes
    };

    void begin(bool isUninstalling);
    void end();
    void setUninstalling(bool isUninstalling);
    bool isAppRunning(const RealInstalledApp &app) const;
    void takeReport(const RealInstalledApp &app, const UninstallReport &report);
    void askAdministrator(const RealInstalledApp &app, Removed before);
    void takeAnswer(const RealInstalledApp &app, Removed before, const std::optional<Error> &error);
    void tellSuccess(const QString &name, Removed removed);
    bool removeAside(const QString &bundle);

    const Platform &platform_;
    AppService &service_;
    ResultBanner &banner_;
    bool isUninstalling_ = false;
    bool isRunning_ = false;
};
