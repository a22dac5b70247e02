#include "screens/TrashFolder.h"

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
}

void TrashFolder::reset()
{
    refused_.clear();
    doing_ = {};
}

void TrashFolder::take(const QString &path, const Recycler::Completion &done)
{
    if (refused_.contains(path))
        return done({{}, Error{QStringLiteral("Trash"), 1, QStringLiteral("It is locked.")}});
    // A folder for each, as the names may be the same.
    const QString folder = home_.folder(QStringLiteral("trash/%1").arg(++count_));
    const QString place = paths::join(folder, paths::lastComponent(path));
    files::move(path, place);
    done({{{path, place}}, {}});
}
