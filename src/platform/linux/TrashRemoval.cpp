#include "platform/linux/TrashRemoval.h"

#include "base/Error.h"
#include "base/FileRemoval.h"
#include "base/Files.h"
#include "base/Paths.h"
#include "platform/linux/TrashFolder.h"

#include <cerrno>
#include <optional>

namespace {

bool isInside(const QString &item, const QString &folder)
{
    return item != folder && paths::standardized(item) == item && paths::isAtOrBelow(item, folder);
}

/// Looked at before each item, since a large Trash takes its time.
bool isLink(const QString &folder)
{
    const auto attributes = files::attributes(folder);
    return attributes && attributes->kind == files::Kind::link;
}

} // namespace

namespace trashremoval {

void remove(const QStringList &items, const QString &trash)
{
    std::optional<Error> first;
    QStringList names; // of the items directly in the Trash
    for (const QString &item : items) {
        try {
            if (!isInside(item, trash) || isLink(trash))
                throw errors::fromErrno(EINVAL);
            if (paths::parent(item) == trash)
                names.append(paths::lastComponent(item));
            files::removeTree(item);
        } catch (const Error &error) {
            if (!first)
                first = error;
        }
    }
    if (const auto folder = names.isEmpty() ? std::nullopt : TrashFolder::ofItems(trash))
        folder->forget(names);
    if (first)
        throw Error(*first);
}

} // namespace trashremoval
