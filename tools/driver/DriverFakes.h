#pragma once

#include "platform/Applications.h"
#include "platform/Recycler.h"
#include "platform/SystemInfo.h"
#include "platform/SystemLog.h"
#include "platform/Workspace.h"

#include <QString>

#include <optional>

/// A desktop that does nothing.
class NoWorkspace final : public Workspace
{
public:
    void open(const QString &) override {}
    void openAddress(const QByteArray &) override {}
    void openSettingsPage(const QByteArray &) override {}
    void reveal(const QString &) override {}
    void showFolder(const QString &) override {}
    void quickLook(const QString &) override {}
    void openTerminal(const QString &) override {}
    void chooseFolder(const FolderRequest &, PathChosen) override {}
    void chooseSavePath(const SaveRequest &, PathChosen) override {}
    void copyText(const QString &) override {}
};

/// A Trash that takes nothing.
class NoRecycler final : public Recycler
{
public:
    void recycle(const QStringList &, Completion completion) override { completion({}); }
    std::optional<AdminFailure> moveToTrashAsAdministrator(const QString &) override
    {
        return AdminFailure{false};
    }
    void removeForGood(const QStringList &, const QString &) override {}
};

/// A system that knows no applications.
class NoApplications final : public Applications
{
public:
    QStringList runningPaths() const override { return {}; }
    QStringList knownPaths(const QString &) const override { return {}; }
};

/// A log that keeps nothing.
class NoSystemLog final : public SystemLog
{
public:
    void write(LogLevel, const QString &, const QString &) override {}
    QString recentEntries(int) override { return {}; }
};

/// A machine that tells nothing of itself.
class NoSystemInfo final : public SystemInfo
{
public:
    std::optional<Volume> rootVolume() const override { return std::nullopt; }
    std::optional<QString> hardwareModel() const override { return std::nullopt; }
    QString localeIdentifier() const override { return QStringLiteral("en_US"); }
    Version systemVersion() const override { return {}; }
};
