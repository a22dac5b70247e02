#include "cleanup/CleaningRun.h"

#include "base/Error.h"
#include "base/Files.h"
#include "base/Paths.h"
#include "cleanup/CleanupPlaces.h"
#include "cleanup/EmptyFolders.h"
#include "common/Formatters.h"
#include "filesystem/FileSystemService.h"
#include "platform/Recycler.h"

#include <algorithm>

namespace {

void moveToTrash(const QString &path, const FileSystemService &fileSystem)
{
    try {
        fileSystem.moveToTrash(path);
    } catch (const Error &) {
        // It stays, and the run goes on.
    }
}

void removeForGood(const QStringList &items, const QString &trash, Recycler &recycler)
{
    try {
        recycler.removeForGood(items, trash);
    } catch (const Error &) {
        // Likewise.
    }
}

/// A place that is there and no link.
bool isOpen(const QString &place)
{
    return files::exists(place) && !cleanupplaces::isLink(place);
}

/// The paths of all that a place holds.
QStringList contents(const QString &place)
{
    QStringList all;
    if (!isOpen(place))
        return all;
    for (const QString &name : files::list(place).value_or(std::vector<QString>()))
        all.append(paths::join(place, name));
    return all;
}

/// True for an entry below the place that no link leads to, so that it really lies there.
bool liesIn(const QString &path, const QString &place)
{
    if (!paths::below(path, place))
        return false;
    const auto folder = files::realPath(paths::parent(path));
    const auto root = files::realPath(place);
    return folder && root && paths::isAtOrBelow(*folder, *root);
}

/// Moves what a place holds, for as long as the place is no link: a run may take minutes.
void moveContents(const QString &place, const FileSystemService &fileSystem)
{
    for (const QString &path : contents(place)) {
        if (cleanupplaces::isLink(place))
            return;
        moveToTrash(path, fileSystem);
    }
}

/// Moves files that were picked. For the same reason, each is looked at right before.
void movePicked(const QStringList &picked, const QString &place, const FileSystemService &fileSystem)
{
    for (const QString &path : picked) {
        if (liesIn(path, place) && !cleanupplaces::isLink(place))
            moveToTrash(path, fileSystem);
    }
}

/// Moves a folder that was found empty, unless somebody has put something into it since.
void moveIfEmpty(const QString &folder, const FileSystemService &fileSystem)
{
    if (emptyfolders::isEmpty(folder))
        moveToTrash(folder, fileSystem);
}

/// Removes those that were picked in this Trash.
void removePicked(const QStringList &picked, const QString &trash, Recycler &recycler)
{
    QStringList chosen;
    std::copy_if(picked.begin(), picked.end(), std::back_inserter(chosen),
                 [&trash](const QString &path) { return liesIn(path, trash); });
    removeForGood(chosen, trash, recycler);
}

QStringList sorted(const QSet<QString> &paths)
{
    QStringList list(paths.begin(), paths.end());
    list.sort();
    return list;
}

} // namespace

CleaningRun::CleaningRun(const std::vector<CleanupCategory> &categories, const CleanupSelection &selection)
    : total_(cleanupselection::selectedSize(categories, selection))
{
    for (const CleanupCategory &category : cleanupselection::selected(categories))
        parts_.push_back({category, cleanupselection::picked(category.id, selection)});
}

void CleaningRun::run(const FileSystemService &fileSystem, Recycler &recycler) const
{
    const Contents trashed = trashContents();
    for (const Part &part : parts_) {
        if (part.picked.isEmpty())
            cleanAll(part, trashed, fileSystem, recycler);
        else
            cleanPicked(part, trashed, fileSystem, recycler);
    }
}

/// What is to go from the Trash, as it lies there when the run begins. What the run itself moves there stays, so that it can
/// be taken back.
CleaningRun::Contents CleaningRun::trashContents() const
{
    Contents trashed;
    for (const Part &part : parts_) {
        if (part.category.id != cleanupids::trash)
            continue;
        for (const QString &place : part.category.paths)
            trashed[place] = entriesAt(part.picked.isEmpty() ? contents(place) : part.picked.values());
    }
    return trashed;
}

CleaningRun::Entries CleaningRun::entriesAt(const QStringList &paths)
{
    Entries entries;
    for (const QString &path : paths) {
        if (const auto identity = files::identity(path))
            entries[path] = *identity;
    }
    return entries;
}

/// The paths at which still the same entries lie: a name may have come back with another one, which stays.
QStringList CleaningRun::unchanged(const Entries &entries)
{
    QStringList same;
    for (auto entry = entries.begin(); entry != entries.end(); ++entry) {
        if (files::identity(entry.key()) == entry.value())
            same.append(entry.key());
    }
    return same;
}

void CleaningRun::cleanAll(const Part &part, const Contents &trashed, const FileSystemService &fileSystem,
                           Recycler &recycler)
{
    if (part.category.id == cleanupids::oldDownloads)
        return; // they are only ever removed file by file: the category stands for the whole folder
    for (const QString &place : part.category.paths) {
        if (!isOpen(place))
            continue;
        if (part.category.id == cleanupids::trash) {
            removeForGood(unchanged(trashed.value(place)), place, recycler);
        } else if (part.category.id == cleanupids::emptyFolders) {
            moveIfEmpty(place, fileSystem);
        } else {
            moveContents(place, fileSystem);
        }
    }
}

void CleaningRun::cleanPicked(const Part &part, const Contents &trashed, const FileSystemService &fileSystem,
                              Recycler &recycler)
{
    const QStringList picked = sorted(part.picked);
    for (const QString &place : part.category.paths) {
        if (!isOpen(place))
            continue;
        if (part.category.id == cleanupids::emptyFolders) {
            if (part.picked.contains(place))
                moveIfEmpty(place, fileSystem);
            continue;
        }
        if (part.category.id == cleanupids::trash)
            removePicked(unchanged(trashed.value(place)), place, recycler);
        else
            movePicked(picked, place, fileSystem);
    }
}

QStringList CleaningRun::names() const
{
    QStringList all;
    for (const Part &part : parts_)
        all.append(part.category.name);
    return all;
}

QString CleaningRun::question() const
{
    const bool includesTrash = std::any_of(
        parts_.begin(), parts_.end(), [](const Part &part) { return part.category.id == cleanupids::trash; });
    const QString warning =
        includesTrash
            ? QStringLiteral("\n\n⚠️ Trash items will be permanently deleted and cannot be recovered.")
            : QStringLiteral("\n\nFiles will be moved to Trash. You can restore them if needed.");
    return QStringLiteral("Cleaning:\n  • ") + names().join(QStringLiteral("\n  • "))
           + QStringLiteral("\n\nTotal: ") + sizeText(total_) + warning;
}

QString CleaningRun::logLine() const
{
    return QStringLiteral("Smart Cleanup: %1 categories, %2 bytes").arg(parts_.size()).arg(total_);
}

HistoryEntry CleaningRun::record(Date now) const
{
    HistoryEntry entry;
    entry.id = QUuid::createUuid();
    entry.timestamp = now;
    entry.kind = HistoryEntry::Kind::cleanup;
    entry.title = parts_.size() == 1 ? QStringLiteral("Cleaned 1 category")
                                     : QStringLiteral("Cleaned %1 categories").arg(parts_.size());
    entry.bytesAffected = total_;
    entry.detail = names().join(QStringLiteral(", "));
    return entry;
}
