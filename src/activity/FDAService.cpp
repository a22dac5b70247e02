#include "activity/FDAService.h"

#include "base/ChildProcess.h"
#include "base/Files.h"
#include "base/GuardedPost.h"
#include "common/NotificationNames.h"

namespace {

constexpr double pollPeriod = 3;    // seconds
constexpr double longestPoll = 120; // seconds
const QByteArray settingsPage = "x-apple.systempreferences:com.apple.preference.security?Privacy_AllFiles";

/// To its end, since one that fails on the way has not let itself be listed. An empty one has.
bool canBeListed(const QString &folder)
{
    files::DirectoryReader reader(folder);
    while (reader.next()) {}
    return reader.isOpen() && !reader.hasFailed();
}

} // namespace

FDAService::FDAService(const Platform &platform, Program program)
    : platform_(platform)
    , program_(std::move(program))
    , grantPollTimer_(platform.mainQueue)
{
    platform_.notifications.observe(notifications::becameActive, this,
                                    [this](const QVariant &) { recheck(); });
}

FDAService &FDAService::shared(const Platform &platform, const Program &program)
{
    static FDAService &instance = *new FDAService(platform, program);
    return instance;
}

bool FDAService::canListProtectedFolder() const
{
    const QStringList &folders = platform_.locations->accessProbeFolders;
    return std::any_of(folders.begin(), folders.end(), canBeListed);
}

bool FDAService::hasFullDiskAccess()
{
    const Access cached = cachedProbeResult_.load(std::memory_order_relaxed);
    if (cached != Access::unknown)
        return cached == Access::granted;
    const bool isGranted = canListProtectedFolder();
    const Access result = isGranted ? Access::granted : Access::denied;
    const Access earlier = lastProbeResult_.exchange(result, std::memory_order_relaxed);
    cachedProbeResult_.store(result, std::memory_order_relaxed);
    if (isGranted && earlier == Access::denied) {
        guarded::post(platform_.mainQueue, QPointer(this), [](FDAService &self) {
            self.grantedAfterPrompt_ = true;
            emit self.changed();
        });
    }
    return isGranted;
}

void FDAService::recheck()
{
    cachedProbeResult_.store(Access::unknown, std::memory_order_relaxed);
    hasFullDiskAccess();
}

void FDAService::markDenied(const QString &context)
{
    guarded::post(platform_.mainQueue, QPointer(this), [context](FDAService &self) {
        self.deniedContexts_.insert(context);
        emit self.changed();
    });
}

void FDAService::clearDenied(const QString &context)
{
    guarded::post(platform_.mainQueue, QPointer(this), [context](FDAService &self) {
        self.deniedContexts_.remove(context);
        emit self.changed();
    });
}

void FDAService::dismiss(const QString &context)
{
    guarded::post(platform_.mainQueue, QPointer(this), [context](FDAService &self) {
        self.dismissedContexts_.insert(context);
        emit self.changed();
    });
}

bool FDAService::shouldShowBanner(const QString &context) const
{
    return deniedContexts_.contains(context) && !dismissedContexts_.contains(context);
}

void FDAService::startGrantPolling()
{
    grantPollTimer_.start(pollPeriod, [this, start = platform_.clock.steadySeconds()] { poll(start); });
}

void FDAService::poll(double start)
{
    if (platform_.clock.steadySeconds() - start > longestPoll) {
        grantPollTimer_.stop();
        return;
    }
    recheck();
    if (!hasFullDiskAccess())
        return;
    grantPollTimer_.stop();
    guarded::post(platform_.mainQueue, QPointer(this), [](FDAService &self) {
        self.grantedAfterPrompt_ = true;
        self.deniedContexts_.clear();
        emit self.changed();
    });
}

void FDAService::openSystemSettings()
{
    recheck(); // so that a change is seen against what held before the user acts
    platform_.workspace.openSettingsPage(settingsPage);
    startGrantPolling();
}

QString FDAService::relaunchLine(const QString &executable)
{
    return QStringLiteral("sleep 1 && \"") + executable + QStringLiteral("\" & disown; exit 0");
}

void FDAService::relaunch()
{
    program_.letGo();
    // A start that fails shows no message; the program just quits.
    ChildProcess::launchDetached(platform_.programs.sh,
                                 {QStringLiteral("-c"), relaunchLine(program_.executable)});
    platform_.mainQueue.post(program_.requestQuit);
}
