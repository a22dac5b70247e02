#pragma once

#include "activity/HistoryService.h"
#include "base/Paths.h"
#include "duplicates/DuplicateService.h"
#include "filesystem/FileSystemService.h"
#include "support/TestPlatform.h"

#include <filesystem>
#include <memory>
#include <utility>

/// The duplicate finder as the program wires it, over a platform of a test's own.
struct DuplicateServices
{
    TestPlatform test;
    FileSystemService fileSystem{test.platform, test.probes};
    std::unique_ptr<HistoryService> madeHistory; ///< none as long as nobody has asked for it
    DuplicateService duplicates{test.platform, fileSystem, test.access, history()};

    DuplicateService::History history()
    {
        return [this]() -> HistoryService & {
            if (!madeHistory)
                madeHistory = std::make_unique<HistoryService>(test.platform);
            return *madeHistory;
        };
    }

    /// Another service over the same platform, as the next start of the program makes it.
    std::unique_ptr<DuplicateService> makeAnother()
    {
        return std::make_unique<DuplicateService>(test.platform, fileSystem, test.access, history());
    }

    /// A place below the home folder.
    QString inHome(const QString &relative) const { return paths::join(test.home, relative); }

    /// Makes a file below the home folder. Gives its path.
    QString file(const QString &relative, const QByteArray &content = "equal") const
    {
        return test.temp.file(QStringLiteral("home/") + relative, content);
    }

    /// Makes folders below the home folder the scan paths. A scan meets their files in that order, while the order
    /// within a folder is the file system's.
    void useScanPaths(const QStringList &folders)
    {
        duplicates.resetScope();
        duplicates.removeScanPath(test.home);
        for (const QString &folder : folders)
            duplicates.addScanPath(inHome(folder));
    }

    /// A scan from its start to its end.
    void scan()
    {
        duplicates.scan();
        test.settle();
    }

    /// The groups, a text each: the size and the files, those set to go with a minus ("5: a/x b/x-").
    QStringList shown() const
    {
        QStringList groups;
        for (const DuplicateFileGroup &group : duplicates.groups()) {
            QString text = QStringLiteral("%1:").arg(group.size);
            for (const DuplicateFileEntry &entry : group.files)
                text += u' ' + entry.path.mid(test.home.size() + 1)
                        + (entry.keep ? QString() : QStringLiteral("-"));
            groups << text;
        }
        return groups;
    }

    /// The log's entries, once those under way have arrived.
    std::vector<HistoryEntry> records()
    {
        test.mainQueue.run();
        return madeHistory ? madeHistory->entries() : std::vector<HistoryEntry>();
    }

    static void remove(const QString &path) { std::filesystem::remove(paths::toBytes(path).toStdString()); }

    /// What the recycler that `useTrash` sets up says of a path that it refuses.
    static Error refusal() { return {QStringLiteral("Platform"), 7, QStringLiteral("The disk says no.")}; }

    /// A Trash that takes each file but those at the paths named, and answers within the call.
    void useTrash(const QStringList &refused = {})
    {
        test.recycler.answers = [refused](const QStringList &paths, const Recycler::Completion &done) {
            if (refused.contains(paths.constFirst()))
                return done({{}, refusal()});
            remove(paths.constFirst());
            done({{{paths.constFirst(), QString()}}, std::nullopt});
        };
    }
};
