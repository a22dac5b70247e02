#pragma once

#include "activity/HistoryService.h"
#include "apps/AppService.h"
#include "base/Paths.h"
#include "filesystem/FileSystemService.h"
#include "makers/MadeBundle.h"
#include "support/TestPlatform.h"

#include <algorithm>
#include <memory>
#include <optional>

/// The App Manager's service as the program wires it, over a platform of a test's own with bundles in "Applications".
struct AppServices
{
    TestPlatform test;
    FileSystemService fileSystem{test.platform, test.probes};
    std::unique_ptr<HistoryService> madeHistory; ///< none as long as nobody has asked for it
    std::unique_ptr<AppService> apps =
        std::make_unique<AppService>(test.platform, test.probes, fileSystem, [this]() -> HistoryService & {
            if (!madeHistory)
                madeHistory = std::make_unique<HistoryService>(test.platform);
            return *madeHistory;
        });

    /// A place in the folder for applications, and one in the user's library.
    QString inApplications(const QString &relative) const
    {
        return test.temp.at(QStringLiteral("Applications/") + relative);
    }
    QString inLibrary(const QString &relative) const
    {
        return paths::join(test.home, QStringLiteral("Library/") + relative);
    }

    /// Makes a bundle below the folder for applications. Gives its path.
    QString bundle(const QString &relative, const QJsonObject &description = {}, qint64 size = 4096,
                   MadeBundle::Form form = MadeBundle::Form::xml) const
    {
        const MadeBundle made{inApplications(relative), description, form, size};
        made.make();
        return made.path;
    }

    /// Makes a file in the user's library, and the folders above it. Gives its path.
    QString file(const QString &relative, qsizetype size = 5000) const
    {
        return test.temp.file(QStringLiteral("home/Library/") + relative, QByteArray(size, 'x'));
    }

    /// A scan from its start to its end.
    void scan()
    {
        apps->scanInstalledApps();
        test.settle();
    }

    QStringList names() const
    {
        QStringList all;
        for (const RealInstalledApp &app : apps->apps())
            all << app.name;
        return all;
    }

    /// What the last scan found at that place; none where it didn't.
    std::optional<RealInstalledApp> at(const QString &path) const
    {
        const auto &all = apps->apps();
        const auto found = std::ranges::find(all, path, &RealInstalledApp::path);
        return found == all.end() ? std::nullopt : std::optional(*found);
    }
};
