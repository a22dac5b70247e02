#include "screens/TrashFolder.h"

#include "base/FileRemoval.h"
#include "base/Files.h"
#include "base/Paths.h"

#include <QTimer>

#include <utility>

TrashFolder::TrashFolder(const TempHome &home, FakeRecycler &recycler)
    : home_(home)
{
    recycler.answers = [this](const QStringList &paths, const Recycler::Completion &done) {
        const QString path = paths.constFirst();
        const auto doing = std::exchange(doing_, {});
        if (!doing)
            return take(path, done);
        QTimer::singleShot(0, [this, path, done, doing] {
            doing();
            take(path, done);
        });
    };
    recycler.remover = [this](const QStringList &items, const QString &) {
        for (const QString &item : items) {
            if (!refused_.contains(item))
                files::removeTree(item);
        }
    };
}

void TrashFolder::reset()
{
    refused_.clear();
    doing_ = {};
    folder_.clear();
}

void TrashFolder::take(const QString &path, const Recycler::Completion &done)
{
    if (refused_.contains(path))
        return done({{}, Error{QStringLiteral("Trash"), 1, QStringLiteral("It is locked.")}});
    const QString trashed = place(path);
    files::move(path, trashed);
    done({{{path, trashed}}, {}});
}

QString TrashFolder::place(const QString &path)
{
    // A folder for each, as the names may be the same.
    if (folder_.isEmpty())
        return paths::join(home_.folder(QStringLiteral("trash/%1").arg(++count_)),
                           paths::lastComponent(path));
    QString free = paths::join(folder_, paths::lastComponent(path));
    while (files::attributes(free))
        free += QStringLiteral(" 2");
    return free;
}
