#include "platform/linux/LinuxRecycler.h"

#include "base/ChildProcess.h"
#include "base/Files.h"
#include "base/Paths.h"
#include "base/Threads.h"
#include "platform/linux/GioTrash.h"
#include "platform/linux/TrashFolder.h"
#include "platform/linux/TrashRemoval.h"

#include <cerrno>

using AdminFailure = Recycler::AdminFailure;

namespace {

constexpr int dismissed = 126;             // the exit code of pkexec when its dialog was called off
constexpr qsizetype longestMessage = 1000; // characters

struct Item
{
    QString path;
    files::Identity identity;
};

QString quotedName(const QString &path)
{
    return u'“' + paths::display(paths::lastComponent(path)) + u'”';
}

/// `sentence` with the item's name between curly quotes in the place of "%1".
QString aboutItem(const QString &sentence, const QString &path)
{
    return sentence.arg(quotedName(path));
}

bool isOnHomeVolume(const Item &item)
{
    // The dot is there for a home folder that is a link.
    const auto home = files::identity(paths::join(giotrash::homeFolder(), QStringLiteral(".")));
    return home && home->device == item.identity.device;
}

/// The Trash that the library uses for an item; none when it has yet to make it on the item's volume.
std::optional<TrashFolder> trashFor(const Item &item)
{
    if (isOnHomeVolume(item))
        return TrashFolder::ofHome(giotrash::dataFolder());
    return TrashFolder::ofVolume(item.path, item.identity.device);
}

/// An error of our own about an item, with the reason as the end of its sentence.
Error refusal(int code, const Item &item, const QString &reason)
{
    return {LinuxRecycler::errorDomain, code,
            aboutItem(QStringLiteral("%1 can't be moved to the Trash because "), item.path) + reason};
}

Error trashOnOtherVolume(const Item &item)
{
    return refusal(LinuxRecycler::trashIsOnOtherVolume, item,
                   QStringLiteral("the Trash is on another volume."));
}

/// Throws Error for a Trash from which the user could not take the item back.
void requireNoLink(const Item &item, const TrashFolder &trash)
{
    if (trash.isLink())
        throw refusal(LinuxRecycler::trashIsLink, item,
                      QStringLiteral("the Trash is a link, and the desktop shows nothing behind it."));
}

Error errorOf(const giotrash::Failure &failure, const Item &item)
{
    if (failure.hasNoRoom) // the library's words are about the note
        return errors::fromErrno(ENOSPC);
    if (!failure.hasNoTrash)
        return {failure.domain, failure.code, failure.description};
    if (isOnHomeVolume(item))
        return trashOnOtherVolume(item);
    return refusal(LinuxRecycler::volumeHasNoTrash, item, QStringLiteral("its volume has no Trash."));
}

/// Moves an item without the library and gives its place. Throws Error.
QString moveByHand(const Item &item, const TrashFolder &trash)
{
    const TrashFolder::Entry entry = trash.reserve(item.path);
    try {
        files::move(item.path, entry.file);
    } catch (const Error &error) {
        TrashFolder::release(entry);
        if (error.code == EXDEV)
            throw trashOnOtherVolume(item);
        throw;
    }
    return entry.file;
}

/// Takes an item that can't have a note back out of the Trash. Throws Error when it has to stay there: an own
/// one with both places, since the desktop shows nothing of it.
void takeBack(const TrashFolder::Entry &entry, const Item &item)
{
    try {
        files::move(entry.file, item.path);
    } catch (const Error &error) {
        const QString sentence =
            QStringLiteral("%1 can't be moved back from the Trash: %2. It lies at “%3” without a note "
                           "that it came from “%4”.");
        throw Error{LinuxRecycler::errorDomain, LinuxRecycler::strandedInTrash,
                    sentence.arg(quotedName(item.path), error.description, paths::display(entry.file),
                                 paths::display(item.path))};
    }
    TrashFolder::release(entry);
}

/// The place of an item that the library has just moved; empty when it isn't found. The library doesn't
/// notice when it can't write an item's note, as on a full disk or beside a name that is nearly too long, and
/// what has no note can't be restored. So an empty one is written here, or else the item goes back. Throws
/// Error.
QString placeWithNote(const Item &item)
{
    const std::optional<TrashFolder> trash = trashFor(item);
    const auto entry = trash ? trash->find(paths::lastComponent(item.path), item.identity) : std::nullopt;
    if (!entry)
        return {};
    try {
        trash->mend(*entry, item.path);
    } catch (const Error &) {
        takeBack(*entry, item);
        throw;
    }
    return entry->file;
}

/// Moves an item to the Trash and gives its place; empty when that isn't known. Throws Error.
QString moveToTrash(const Item &item)
{
    const std::optional<TrashFolder> trash = trashFor(item);
    if (trash)
        requireNoLink(item, *trash);
    // The library replaces what lies there without a note.
    if (trash && trash->mightReplace(paths::lastComponent(item.path)))
        return moveByHand(item, *trash);
    const auto failure = giotrash::move(item.path);
    if (!failure)
        return placeWithNote(item);
    // An older library doesn't shorten a name for which the note's would be too long. It has made the Trash
    // by now.
    const std::optional<TrashFolder> made = failure->nameIsTooLong ? trashFor(item) : std::nullopt;
    if (!made)
        throw errorOf(*failure, item);
    return moveByHand(item, *made);
}

/// The item at a path. Throws Error (the system's) when nothing is there. A path that is empty or relative
/// names nothing here: the library would look for it in the folder in which the program happens to run.
Item itemAt(const QString &path)
{
    if (!path.startsWith(u'/') || path.contains(QChar::Null))
        throw errors::fromErrno(ENOENT);
    const QString standardized = giotrash::standardized(path);
    const auto identity = files::identity(standardized);
    if (!identity)
        throw errors::fromErrno(errno);
    return {standardized, *identity};
}

/// The system's own descriptions don't name the item.
Error withName(Error error, const QString &path)
{
    if (error.domain == errors::systemDomain)
        error.description =
            aboutItem(QStringLiteral("%1 can't be moved to the Trash: "), path) + error.description;
    return error;
}

bool isStranded(const Error &error)
{
    return error.domain == LinuxRecycler::errorDomain && error.code == LinuxRecycler::strandedInTrash;
}

Recycler::Result recycleAll(const QStringList &all, const Logger &log)
{
    Recycler::Result result;
    for (const QString &path : all) {
        try {
            result.moved.emplace(path, moveToTrash(itemAt(path)));
        } catch (const Error &error) {
            if (isStranded(error)) // the caller finds the item gone and may not look at the error
                log.error(error.description);
            if (!result.error)
                result.error = withName(error, path);
        }
    }
    return result;
}

AdminFailure failureWithMessage(const QString &message)
{
    AdminFailure failure;
    failure.message = message;
    return failure;
}

AdminFailure launchFailure(const Error &error)
{
    if (error.code == ENOENT)
        return failureWithMessage(QStringLiteral("The administrator's tool pkexec is not installed."));
    return failureWithMessage(QStringLiteral("The administrator's tool pkexec can't be started: ")
                              + error.description);
}

/// What a run came to that has ended with anything but 0.
AdminFailure failureOf(const ChildProcess &process)
{
    AdminFailure failure;
    failure.number = process.exitCode();
    if (failure.number == dismissed)
        failure.number = Recycler::cancelled;
    const QString text = paths::display(paths::fromBytes(process.errorOutput())).trimmed();
    if (!text.isEmpty())
        failure.message = text.first(std::min(text.size(), longestMessage));
    return failure;
}

/// Gives the reserved name of a move that has failed back, unless something has come to lie there, or may have: a move
/// from another volume may end with the item copied whole and the source half removed, and that copy must be
/// found again.
void settle(const TrashFolder::Entry &entry, const Item &item, bool succeeded)
{
    const bool wasSkipped = succeeded && files::identity(item.path) == item.identity;
    const bool isFree = !files::identity(entry.file) && errno == ENOENT;
    if (wasSkipped || isFree)
        TrashFolder::release(entry);
}

/// Runs `pkexec` with `arguments`. None: it ended with 0.
std::optional<AdminFailure> runAsAdministrator(const QString &pkexec, const QStringList &arguments)
{
    ChildProcess process(pkexec, arguments);
    process.captureErrorOutput();
    try {
        process.launch();
    } catch (const Error &error) {
        return launchFailure(error);
    }
    process.readToEnd();
    process.waitUntilExit();
    return process.exitCode() == 0 ? std::nullopt : std::optional(failureOf(process));
}

} // namespace

LinuxRecycler::LinuxRecycler(QString pkexec, QString mv, LogSink &log)
    : pkexec_(std::move(pkexec))
    , mv_(std::move(mv))
    , log_(QStringLiteral("General"), log)
{
}

void LinuxRecycler::recycle(const QStringList &paths, Completion completion)
{
    try {
        threads::runDetached([paths, log = log_, completion] { completion(recycleAll(paths, log)); });
    } catch (const Error &error) {
        completion({{}, error});
    }
}

std::optional<AdminFailure> LinuxRecycler::moveToTrashAsAdministrator(const QString &path)
{
    try {
        const Item item = itemAt(path);
        const TrashFolder trash = TrashFolder::ofHome(giotrash::dataFolder());
        requireNoLink(item, trash);
        const TrashFolder::Entry entry = trash.reserve(item.path);
        // -n and -T: neither over something that has come to lie there meanwhile, nor into it.
        const QStringList arguments{
            mv_, QStringLiteral("-n"), QStringLiteral("-T"), QStringLiteral("--"), item.path, entry.file};
        auto failure = runAsAdministrator(pkexec_, arguments);
        settle(entry, item, !failure);
        return failure;
    } catch (const Error &error) {
        return failureWithMessage(withName(error, path).description);
    }
}

void LinuxRecycler::removeForGood(const QStringList &items, const QString &trash)
{
    trashremoval::remove(items, trash);
}
