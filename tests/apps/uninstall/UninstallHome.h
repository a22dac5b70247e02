#pragma once

#include "activity/HistoryService.h"
#include "apps/uninstall/Uninstall.h"
#include "base/Files.h"
#include "base/Ids.h"
#include "base/Paths.h"
#include "filesystem/FileSystemService.h"
#include "support/TestPlatform.h"

#include <filesystem>
#include <memory>
#include <optional>

/// A home with a folder for applications, and a Trash that takes what it is not told to refuse: what goes lies in the folder
/// "trash" then, under its own name.
struct UninstallHome
{
    TestPlatform test;
    FileSystemService fileSystem{test.platform, test.probes};
    std::unique_ptr<HistoryService> madeHistory; ///< none as long as nobody has asked for it
    QStringList refused;                         ///< paths that the Trash does not take
    /// What an administrator's move answers; it takes the item where this is none.
    std::optional<Recycler::AdminFailure> administratorFails;
    bool administratorOnlyClaims = false; ///< reports a success, and takes nothing

    UninstallHome()
    {
        test.recycler.answers = [this](const QStringList &paths, const Recycler::Completion &done) {
            if (refused.contains(paths.constFirst()))
                return done({{}, refusal()});
            take(paths.constFirst());
            done({{{paths.constFirst(), QString()}}, std::nullopt});
        };
        test.recycler.administrator = [this](const QString &path) {
            if (!administratorFails && !administratorOnlyClaims)
                take(path);
            return administratorFails;
        };
    }

    static Error refusal() { return {QStringLiteral("Platform"), 7, QStringLiteral("The disk says no.")}; }
    static Recycler::AdminFailure cancel() { return {true, Recycler::cancelled, QStringLiteral("-")}; }

    appuninstall::Tools tools()
    {
        return {test.platform, fileSystem, [this]() -> HistoryService & {
                    if (!madeHistory)
                        madeHistory = std::make_unique<HistoryService>(test.platform);
                    return *madeHistory;
                }};
    }

    /// The log's entries, once those under way have arrived.
    std::vector<HistoryEntry> records()
    {
        test.mainQueue.run();
        return madeHistory ? madeHistory->entries() : std::vector<HistoryEntry>();
    }

    QString inApplications(const QString &name) const
    {
        return test.temp.at(QStringLiteral("Applications/") + name);
    }
    QString inLibrary(const QString &relative) const
    {
        return paths::join(test.home, QStringLiteral("Library/") + relative);
    }

    /// A bundle on the disk and its record, as a scan would list it.
    RealInstalledApp app(const QString &name, qint64 size = 1000) const
    {
        RealInstalledApp made;
        made.id = ids::fresh();
        made.name = name;
        made.bundleID = QStringLiteral("com.example.") + name;
        made.version = QStringLiteral("1.0");
        made.size = size;
        made.path = inApplications(name + QStringLiteral(".app"));
        test.temp.file(QStringLiteral("Applications/%1.app/Contents/program").arg(name), "program");
        return made;
    }

    /// A file below the library, on the disk and as a record.
    AssociatedFile file(const QString &relative, qint64 size = 10,
                        const QString &category = QStringLiteral("Cache")) const
    {
        test.temp.file(QStringLiteral("home/Library/") + relative, "left");
        return {ids::fresh(), inLibrary(relative), category, size, true};
    }

    static bool isThere(const QString &path) { return files::attributes(path).has_value(); }
    bool isTrashed(const QString &path) const
    {
        return isThere(paths::join(test.temp.at(QStringLiteral("trash")), paths::lastComponent(path)));
    }

private:
    void take(const QString &path) const
    {
        std::error_code ignored; // what has vanished can't be moved
        std::filesystem::rename(
            paths::toBytes(path).toStdString(),
            paths::toBytes(paths::join(test.temp.folder(QStringLiteral("trash")), paths::lastComponent(path)))
                .toStdString(),
            ignored);
    }
};
