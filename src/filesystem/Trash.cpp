#include "filesystem/Trash.h"

#include "base/EventLoop.h"
#include "base/Files.h"
#include "base/Paths.h"

#include <algorithm>
#include <cerrno>
#include <memory>
#include <semaphore>

namespace {

constexpr double turnLength = 0.05; // seconds for which the event loop runs at most between two looks
constexpr int stillThere = -2;
const QString trashDomain = QStringLiteral("Quillmere.Trash");
const QString adminDomain = QStringLiteral("Quillmere.AdminTrash");

/// What the recycle service has answered; shared with its thread, which may outlive an impatient caller.
struct Answer
{
    std::binary_semaphore isThere{0};
    Recycler::Result result;
};

/// Waits for the recycle service on any thread. The main one goes on with its events meanwhile.
Recycler::Result recycled(Recycler &recycler, const QString &path)
{
    const auto answer = std::make_shared<Answer>();
    recycler.recycle({path}, [answer](Recycler::Result result) {
        answer->result = std::move(result);
        answer->isThere.release();
        eventloop::endTurn();
    });
    if (!eventloop::isMainThread()) {
        answer->isThere.acquire();
    } else {
        while (!answer->isThere.try_acquire())
            eventloop::turn(turnLength);
    }
    return answer->result;
}

/// The entry itself: a link whose target is gone is still there.
bool isThere(const QString &path)
{
    return files::attributes(path).has_value();
}

/// True when the system says that nothing is there; false also when it can't be asked.
bool isGone(const QString &path)
{
    return !isThere(path) && (errno == ENOENT || errno == ENOTDIR);
}

bool isListedAsMoved(const Recycler::Result &result, const QString &path)
{
    return std::any_of(result.moved.begin(), result.moved.end(), [&path](const auto &move) {
        return paths::standardized(move.first) == paths::standardized(path);
    });
}

Error refusal(const QString &path)
{
    return {trashDomain, stillThere,
            QStringLiteral(
                "Couldn't move “%1” to the Trash. If it's an app, make sure it's quit first. Some apps in "
                "/Applications also need admin permission to remove.")
                .arg(paths::display(paths::lastComponent(path)))};
}

Error adminError(const Recycler::AdminFailure &failure)
{
    if (!failure.wasConstructed)
        return {adminDomain, -3, QStringLiteral("Couldn't construct the admin trash script.")};
    const int number = failure.number.value_or(-1);
    if (number == Recycler::cancelled)
        return {adminDomain, number, QStringLiteral("Admin authorization was cancelled.")};
    return {adminDomain, number, failure.message.value_or(QStringLiteral("Admin trash failed"))};
}

} // namespace

namespace trash {

void move(Recycler &recycler, const QString &path)
{
    const Recycler::Result result = recycled(recycler, path);
    if (isGone(path)) // the disk decides, whatever the service says
        return;
    if (result.error)
        throw Error(*result.error);
    if (!isListedAsMoved(result, path))
        throw refusal(path);
}

void moveAsAdministrator(Recycler &recycler, const QString &path)
{
    if (!isThere(path))
        return;
    if (const auto failure = recycler.moveToTrashAsAdministrator(path))
        throw adminError(*failure);
    if (isThere(path))
        throw Error{adminDomain, stillThere,
                    QStringLiteral("Admin trash reported success but the file is still in place.")};
}

} // namespace trash
