#pragma once

#include "base/Clock.h"
#include "base/Error.h"
#include "platform/Applications.h"
#include "platform/Recycler.h"
#include "platform/SystemInfo.h"
#include "platform/SystemLog.h"
#include "platform/Workspace.h"

#include <QMap>
#include <QStringList>

#include <atomic>
#include <functional>
#include <optional>
#include <vector>

/// A clock that a test sets.
class FakeClock final : public Clock
{
public:
    Date now() const override { return now_.load(); }
    double steadySeconds() const override { return steadySeconds_; }
    /// As a user or the network does: no time passes.
    void set(Date now) { now_ = now; }
    void advance(double seconds)
    {
        steadySeconds_ = steadySeconds_ + seconds;
        now_ =
            now_.load() + std::chrono::duration_cast<Date::duration>(std::chrono::duration<double>(seconds));
    }

private:
    std::atomic<Date> now_ = Date(std::chrono::hours(24 * 365 * 50));
    std::atomic<double> steadySeconds_ = 1000;
};

/// A desktop that writes down what it is asked for, a line a call.
class FakeWorkspace final : public Workspace
{
public:
    QStringList calls;       ///< "reveal /a/b", in order
    QByteArray address;      ///< the last one opened
    QByteArray settingsPage; ///< the last one opened
    QString clipboard;
    FolderRequest folderRequest;           ///< the last one
    std::optional<QString> chosenFolder;   ///< what the user will choose; none cancels
    SaveRequest saveRequest;               ///< the last one
    std::optional<QString> chosenSavePath; ///< what the user will choose; none cancels
    bool leavesSavePanelUp = false;
    PathChosen savePanel; ///< takes the answer to the one that was left up

    void open(const QString &path) override { calls << QStringLiteral("open ") + path; }
    void openAddress(const QByteArray &text) override { address = text; }
    void openSettingsPage(const QByteArray &text) override { settingsPage = text; }
    void reveal(const QString &path) override { calls << QStringLiteral("reveal ") + path; }
    void showFolder(const QString &path) override { calls << QStringLiteral("show ") + path; }
    void quickLook(const QString &path) override { calls << QStringLiteral("quick look ") + path; }
    void openTerminal(const QString &folder) override { calls << QStringLiteral("terminal ") + folder; }
    void copyText(const QString &text) override { clipboard = text; }
    void chooseFolder(const FolderRequest &request, PathChosen chosen) override
    {
        folderRequest = request;
        chosen(chosenFolder);
    }
    void chooseSavePath(const SaveRequest &request, PathChosen chosen) override
    {
        saveRequest = request;
        if (leavesSavePanelUp)
            savePanel = std::move(chosen);
        else
            chosen(chosenSavePath);
    }
};

/// A Trash that a test rules. It answers inside the call unless `answers` is taken away.
class FakeRecycler final : public Recycler
{
public:
    QStringList recycled; ///< what it was asked to move
    QStringList moved;    ///< what an administrator was asked to move
    QStringList removed;  ///< what it was asked to remove for good
    /// What a removal does; nothing unless a test says more.
    std::function<void(const QStringList &, const QString &trash)> remover = [](const QStringList &,
                                                                                const QString &) {};
    /// What a recycle does and answers; moves nothing and lists nothing unless a test says more.
    std::function<void(const QStringList &, Completion)> answers = [](const QStringList &,
                                                                      const Completion &done) { done({}); };
    /// What an administrator's move does and answers.
    std::function<std::optional<AdminFailure>(const QString &)> administrator = [](const QString &) {
        return std::optional<AdminFailure>();
    };

    void recycle(const QStringList &paths, Completion completion) override
    {
        recycled << paths;
        answers(paths, std::move(completion));
    }
    std::optional<AdminFailure> moveToTrashAsAdministrator(const QString &path) override
    {
        moved << path;
        return administrator(path);
    }
    void removeForGood(const QStringList &items, const QString &trash) override
    {
        removed << items;
        remover(items, trash);
    }
};

/// A system that knows the applications that a test names.
class FakeApplications final : public Applications
{
public:
    QStringList running;              ///< paths
    QMap<QString, QStringList> known; ///< paths by identifier

    QStringList runningPaths() const override { return running; }
    QStringList knownPaths(const QString &identifier) const override { return known.value(identifier); }
};

/// A system log in memory.
class FakeSystemLog final : public SystemLog
{
public:
    QStringList lines; ///< "error General: message"
    QString recent;    ///< what `recentEntries` gives
    int askedHours = 0;
    std::optional<Error> failure; ///< what it throws instead, where there is one

    void write(LogLevel level, const QString &category, const QString &message) override
    {
        const char *names[] = {"debug", "info", "error"};
        lines << QStringLiteral("%1 %2: %3")
                     .arg(QLatin1StringView(names[static_cast<int>(level)]), category, message);
    }
    QString recentEntries(int hours) override
    {
        askedHours = hours;
        if (failure)
            throw Error(*failure);
        return recent;
    }
};

/// A machine that says what a test wants.
class FakeSystemInfo final : public SystemInfo
{
public:
    std::optional<Volume> volume = Volume{1000, 400, QStringLiteral("Disk")};
    std::optional<QString> model = QStringLiteral("Model One");
    QString locale = QStringLiteral("en_US");
    Version version{14, 2, 1};
    mutable std::atomic<int> volumeQueries = 0;

    std::optional<Volume> rootVolume() const override
    {
        ++volumeQueries;
        return volume;
    }
    std::optional<QString> hardwareModel() const override { return model; }
    QString localeIdentifier() const override { return locale; }
    Version systemVersion() const override { return version; }
};
