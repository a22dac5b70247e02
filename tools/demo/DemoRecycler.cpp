#include "DemoRecycler.h"

#include "base/Paths.h"
#include "DemoApplications.h"

#include <cerrno>
#include <future>
#include <utility>

namespace {

bool isGuarded(const QString &path)
{
    const QString name = paths::lastComponent(path);
    return name == demoapplications::guarded || name == demoapplications::guardedToo
           || name == demoapplications::immovable;
}

} // namespace

DemoRecycler::DemoRecycler(Recycler &trash)
    : trash_(trash)
{
}

void DemoRecycler::recycle(const QStringList &paths, Completion completion)
{
    QStringList allowed;
    for (const QString &path : paths) {
        if (!isGuarded(path))
            allowed << path;
    }
    const bool isRefused = allowed.size() < paths.size();
    const auto done = [isRefused, completion = std::move(completion)](Result result) {
        if (isRefused && !result.error)
            result.error = errors::fromErrno(EACCES);
        completion(std::move(result));
    };
    if (allowed.isEmpty())
        done({});
    else
        trash_.recycle(allowed, done);
}

std::optional<Recycler::AdminFailure> DemoRecycler::moveToTrashAsAdministrator(const QString &path)
{
    const QString name = paths::lastComponent(path);
    if (name == demoapplications::guardedToo)
        return AdminFailure{.number = cancelled};
    if (name == demoapplications::immovable)
        return AdminFailure{.number = EPERM, .message = errors::fromErrno(EPERM).description};
    std::promise<std::optional<Error>> moved;
    trash_.recycle({path}, [&moved](const Result &result) { moved.set_value(result.error); });
    const std::optional<Error> error = moved.get_future().get();
    if (error)
        return AdminFailure{.number = error->code, .message = error->description};
    return std::nullopt;
}

void DemoRecycler::removeForGood(const QStringList &items, const QString &trash)
{
    trash_.removeForGood(items, trash);
}
