#pragma once

#include "base/Ticker.h"
#include "platform/Platform.h"

#include <QObject>
#include <QSet>

#include <atomic>
#include <functional>

/// Whether the program may read the folders that the system protects, and which tools ran without. The system offers no
/// question for it, so it is inferred from listing such a folder. A grant takes effect only in a new process, which
/// `relaunch` starts. Published fields change on the main thread only.
class FDAService final : public QObject
{
    Q_OBJECT

public:
    /// What the program does about itself.
    struct Program
    {
        QString executable;                ///< absolute path of the running program
        std::function<void()> letGo;       ///< gives up what a second process would take for a running one
        std::function<void()> requestQuit; ///< the way out that any request to quit takes
    };

    FDAService(const Platform &platform, Program program);

    /// The process's one instance, made at the first call with its arguments and never destroyed.
    static FDAService &shared(const Platform &platform, const Program &program);

    // Published fields.

    const QSet<QString> &deniedContexts() const { return deniedContexts_; }
    const QSet<QString> &dismissedContexts() const { return dismissedContexts_; }
    /// The grant came while this process ran; never falls again.
    bool grantedAfterPrompt() const { return grantedAfterPrompt_; }

    bool isPolling() const { return grantPollTimer_.isActive(); }

    /// The answer of the last probe, or of a fresh one where it was cleared. Lists at most two folders; any thread.
    bool hasFullDiskAccess();

    /// Asks the disk again.
    void recheck();

    // A context is a tool's name. Each of these takes effect in a later turn of the main loop; any thread.
    void markDenied(const QString &context);
    void clearDenied(const QString &context);
    void dismiss(const QString &context); ///< hides the tool's banner for the session

    /// True for a tool that ran without access and whose banner was not hidden.
    bool shouldShowBanner(const QString &context) const;

    // Main thread.

    /// Looks every 3 seconds, for two minutes, whether the grant has come. A second call begins anew.
    void startGrantPolling();
    void openSystemSettings();
    /// Starts the program anew a second from now and asks this one to quit, whether that start worked or not.
    void relaunch();

    /// The shell line of `relaunch`. The path stands in double quotes, unescaped.
    static QString relaunchLine(const QString &executable);

signals:
    void changed();

private:
    enum class Access {
        unknown,
        denied,
        granted,
    };

    bool canListProtectedFolder() const;
    void poll(double start);

    const Platform &platform_;
    const Program program_;
    QSet<QString> deniedContexts_;
    QSet<QString> dismissedContexts_;
    bool grantedAfterPrompt_ = false;
    Ticker grantPollTimer_;
    std::atomic<Access> cachedProbeResult_ = Access::unknown; ///< handed out until it is cleared
    std::atomic<Access> lastProbeResult_ = Access::unknown;   ///< kept to see a change
};
