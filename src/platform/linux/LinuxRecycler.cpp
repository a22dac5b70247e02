#include "platform/linux/LinuxRecycler.h"

#include "base/ChildProcess.h"
#include "base/Files.h"
#include "base/Paths.h"
#include "platform/linux/GioTrash.h"
#include "platform/linux/TrashFolder.h"

#include <cerrno>
#include <thread>

using AdminFailure = Recycler::AdminFailure;

namespace {

constexpr int dismissed = 126;           // the exit code of pkexec whose dialog was called off
constexpr qsizetype longestMessage = 1000; // characters that a person may be shown

/// `sentence` with the item's name in the place of "%1", between curly quotes.
QString aboutItem(const QString &sentence, const QString &item)
{
    return sentence.arg(u'“' + paths::display(paths::lastComponent(item)) + u'”');
}

Error aboutItem(const Error &error, const QString &item)
{
    return {error.domain, error.code,
            aboutItem(QStringLiteral("%1 can't be moved to the Trash: "), item) + error.description};
}

bool isOnVolumeOf(const QString &item, const QString &folder)
{
    const auto one = TrashFolder::identity(item);
    const auto other = TrashFolder::identity(paths::join(folder, QStringLiteral("."))); // behind a link
    return one && other && one->device == other->device;
}

/// The Trash that the library uses for an item. None when it has yet to make it, on another volume than home.
std::optional<TrashFolder> trashFor(const QString &item)
{
    if (isOnVolumeOf(item, giotrash::homeFolder()))
        return TrashFolder::ofHome(giotrash::dataFolder());
    return TrashFolder::ofVolume(item);
}

Error otherVolume(const QString &item)
{
    return {LinuxRecycler::errorDomain, LinuxRecycler::trashIsOnOtherVolume,
            aboutItem(QStringLiteral("%1 can't be moved to the Trash, because the Trash is on another volume."),
                      item)};
}

Error errorOf(const giotrash::Failure &failure, const QString &item)
{
    if (!failure.hasNoTrash)
        return {failure.domain, failure.code, failure.description};
    if (isOnVolumeOf(item, giotrash::homeFolder()))
        return otherVolume(item);
    return {LinuxRecycler::errorDomain, LinuxRecycler::volumeHasNoTrash,
            aboutItem(QStringLiteral("%1 can't be moved to the Trash, because its volume has no Trash."), item)};
}

/// Moves an item without the library. Throws Error.
QString moveOurselves(const QString &item, const TrashFolder &trash)
{
    const TrashFolder::Entry entry = trash.reserve(item);
    try {
        files::move(item, entry.file);
    } catch (const Error &error) {
        TrashFolder::release(entry);
        if (error.code == EXDEV)
            throw otherVolume(item);
        throw;
    }
    return entry.file;
}

/// The place of an item that the library has moved; empty when it isn't found. On a full disk the library moves
/// an item and leaves its note empty without a word, and so it does for names that are nearly too long. Nothing
/// could be restored from that: the note is written here, or else the item goes back. Throws Error.
QString ensureNote(const QString &item, const TrashFolder::Identity &identity)
{
    const std::optional<TrashFolder> trash = [&]() -> std::optional<TrashFolder> {
        const auto home = TrashFolder::ofHome(giotrash::dataFolder());
        return home.find(paths::lastComponent(item), identity) ? home : TrashFolder::ofVolume(item);
    }();
    return trash ? trash->path() : QString();
}

} // namespace
