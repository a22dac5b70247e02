#include "platform/linux/TrashRemoval.h"

#include "base/Error.h"
#include "base/Paths.h"
#include "platform/linux/OpenTrash.h"

#include <cerrno>
#include <ctime>
#include <optional>

namespace {

/// By the clock that dates files, which goes in steps: the exact time may be ahead of a file that is written later.
Date fileTime()
{
    timespec now = {};
    clock_gettime(CLOCK_REALTIME_COARSE, &now);
    return dates::fromUnix(now.tv_sec, now.tv_nsec);
}

/// Opens the Trash anew for each item: a large one takes its time, and it may have become a link meanwhile.
void removeItem(const QString &item, const QString &trash, Date begin)
{
    const auto relative = paths::below(item, trash);
    if (!relative)
        throw errors::fromErrno(EINVAL);
    OpenTrash(trash).remove(*relative, begin);
}

} // namespace

namespace trashremoval {

void remove(const QStringList &items, const QString &trash)
{
    if (items.isEmpty())
        return;
    const Date begin = fileTime();
    std::optional<Error> first;
    for (const QString &item : items) {
        try {
            removeItem(item, trash, begin);
        } catch (const Error &error) {
            if (!first)
                first = error;
        }
    }
    try {
        OpenTrash(trash).forgetWhatIsGone();
    } catch (const Error &) {
        // What can't be opened is told by the items.
    }
    if (first)
        throw Error(*first);
}

} // namespace trashremoval
