#pragma once

#include "activity/HistoryService.h"
#include "base/FileRemoval.h"
#include "base/Files.h"
#include "base/Paths.h"
#include "cleanup/CleanupViewModel.h"
#include "filesystem/FileSystemService.h"
#include "support/TestPlatform.h"

#include <algorithm>
#include <memory>
#include <optional>

/// The cleanup as the program wires it, over a platform of a test's own with a Trash that works: what is moved there lies in
/// ".Trash" of the home folder, and what is removed for good is gone.
struct CleanupServices
{
    TestPlatform test;
    FileSystemService fileSystem{test.platform, test.probes};
    std::unique_ptr<HistoryService> madeHistory; ///< none as long as nobody has asked for it
    std::unique_ptr<CleanupViewModel> cleanup = makeCleanup();
    QStringList refused; ///< paths that neither the Trash takes nor a removal

    CleanupServices()
    {
        test.recycler.answers = [this](const QStringList &paths, const Recycler::Completion &done) {
            done(moveToTrash(paths.constFirst()));
        };
        test.recycler.remover = [this](const QStringList &items, const QString &) {
            for (const QString &item : items) {
                if (!refused.contains(item))
                    files::removeTree(item);
            }
        };
    }

    std::unique_ptr<CleanupViewModel> makeCleanup()
    {
        return std::make_unique<CleanupViewModel>(
            test.platform, test.probes, fileSystem, test.access, [this]() -> HistoryService & {
                if (!madeHistory)
                    madeHistory = std::make_unique<HistoryService>(test.platform);
                return *madeHistory;
            });
    }

    /// A place below the home folder.
    QString inHome(const QString &relative) const { return paths::join(test.home, relative); }

    /// These make an entry below the home folder and give its path.
    QString file(const QString &relative, const QByteArray &content = "content") const
    {
        return test.temp.file(QStringLiteral("home/") + relative, content);
    }
    QString folder(const QString &relative) const
    {
        return test.temp.folder(QStringLiteral("home/") + relative);
    }
    QString link(const QString &relative, const QString &target) const
    {
        return test.temp.link(QStringLiteral("home/") + relative, target);
    }

    /// The names in a folder below the home folder, in their order.
    QStringList names(const QString &relative) const
    {
        QStringList all;
        for (const QString &name : files::list(inHome(relative)).value_or(std::vector<QString>()))
            all << name;
        all.sort();
        return all;
    }

    /// A scan from its start to its end.
    void scan()
    {
        cleanup->scan();
        test.settle();
    }

    std::optional<CleanupCategory> category(const QString &id) const
    {
        const auto &all = cleanup->categories();
        const auto found =
            std::find_if(all.begin(), all.end(), [&id](const auto &one) { return one.id == id; });
        return found == all.end() ? std::nullopt : std::optional(*found);
    }

    QStringList ids() const
    {
        QStringList all;
        for (const CleanupCategory &one : cleanup->categories())
            all << one.id;
        return all;
    }

    /// Ticks a category, unlocked, without any file picked.
    void tickWhole(const QString &id)
    {
        cleanup->setReviewed(id, true);
        cleanup->toggle(id);
        test.mainQueue.run(); // but not the preview's job, which would pick all files
        test.workQueue.drop();
    }

    /// Loads a category's preview.
    void loadPreview(const QString &id)
    {
        cleanup->loadPreview(*category(id));
        test.settle();
    }

    /// Ticks a category by picking these files of its preview.
    void pick(const QString &id, const QStringList &paths)
    {
        loadPreview(id);
        cleanup->setReviewed(id, true);
        for (const QString &path : paths)
            cleanup->toggleFile(id, path);
    }

    /// A cleaning from its start to the end of the scan that follows.
    void clean()
    {
        cleanup->clean();
        test.settle();
    }

private:
    Recycler::Result moveToTrash(const QString &path) const
    {
        if (refused.contains(path))
            return {{}, Error{QStringLiteral("Platform"), 7, QStringLiteral("The disk says no.")}};
        const QString trash = folder(QStringLiteral(".Trash"));
        QString place = paths::join(trash, paths::lastComponent(path));
        while (files::attributes(place))
            place += QStringLiteral(" 2");
        try {
            files::move(path, place);
        } catch (const Error &error) {
            return {{}, error};
        }
        return {{{path, place}}, std::nullopt};
    }
};
