#pragma once

#include "apps/ghosts/GhostScan.h"
#include "base/Paths.h"
#include "makers/PropertyLists.h"
#include "support/TestPlatform.h"

#include <QHash>
#include <QJsonObject>
#include <QStringList>

#include <algorithm>
#include <functional>
#include <optional>

/// A home folder with a Library, and one run of the search for ghosts in it.
class GhostScanRun
{
public:
    TestPlatform test;
    std::vector<RealInstalledApp> apps;
    std::function<bool()> isCancelled = [] { return false; };
    QHash<QString, QStringList> known; ///< to the system: the paths of an identifier
    QStringList asked;                 ///< of the system

    /// Bytes that are worth a row.
    static QByteArray enough() { return QByteArray(5000, 'x'); }

    /// A path below the Library.
    QString inLibrary(const QString &relative) const
    {
        return paths::join(test.home, QStringLiteral("Library/") + relative);
    }

    /// A folder below the Library that holds something.
    QString leftover(const QString &relative) const
    {
        const QString folder = inLibrary(relative);
        test.temp.file(QStringLiteral("home/Library/") + relative + QStringLiteral("/data"), enough());
        return folder;
    }

    QString preferences(const QString &file, qsizetype size = 5000) const
    {
        return test.temp.file(QStringLiteral("home/Library/Preferences/") + file, QByteArray(size, 'x'));
    }

    /// A bundle below the test's own folder, with that property list.
    QString bundle(const QString &relative, const QJsonObject &list) const
    {
        test.temp.file(relative + QStringLiteral("/Contents/Info.plist"), propertylists::xml(list));
        return test.temp.at(relative);
    }

    /// An application in the applications folder.
    QString app(const QString &name, const QString &identifier) const
    {
        return bundle(
            QStringLiteral("Applications/") + name + QStringLiteral(".app"),
            {{QStringLiteral("CFBundleName"), name}, {QStringLiteral("CFBundleIdentifier"), identifier}});
    }

    std::vector<GhostApp> run()
    {
        return ghostscan::run({apps, *test.locations}, test.probes,
                              {[this] { return isCancelled(); },
                               [this](const QString &identifier) {
                                   asked << identifier;
                                   return known.value(identifier);
                               }});
    }

    /// The keys of the groups, in their order.
    QStringList keys()
    {
        QStringList all;
        for (const GhostApp &ghost : run())
            all << ghost.bundleID;
        return all;
    }

    /// The same in the order of the alphabet.
    QStringList sortedKeys()
    {
        QStringList all = keys();
        all.sort();
        return all;
    }

    /// The group of that key; one without files where there is none.
    GhostApp ghost(const QString &key)
    {
        const std::vector<GhostApp> all = run();
        const auto found =
            std::ranges::find_if(all, [&key](const GhostApp &ghost) { return ghost.bundleID == key; });
        return found == all.end() ? GhostApp() : *found;
    }

    static QStringList pathsOf(const GhostApp &ghost)
    {
        QStringList all;
        for (const AssociatedFile &file : ghost.files)
            all << file.path;
        return all;
    }
};
