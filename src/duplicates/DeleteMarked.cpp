// DuplicateService's delete run.

#include "activity/HistoryService.h"
#include "activity/Loggers.h"
#include "base/Error.h"
#include "base/Sums.h"
#include "duplicates/DuplicateService.h"
#include "filesystem/FileSystemService.h"

#include <algorithm>

namespace {

constexpr qsizetype mostRecordedPaths = 200;
constexpr qsizetype mostToldFailures = 5;
constexpr int partialFailure = 1; // the error's code

QString firstFailures(const QStringList &failures)
{
    return failures.first(std::min(failures.size(), mostToldFailures)).join(u'\n');
}

} // namespace

/// A file set to go as the run began. Groups and flags may be others by the time its turn comes.
struct DuplicateService::Doomed
{
    size_t group = 0; ///< where it stood
    size_t file = 0;
    QUuid id;
    QString path;
    qint64 size = 0;
};

/// What a delete run has done so far.
struct DuplicateService::DeleteRun
{
    QStringList trashed;
    QStringList failures; ///< "{path}: {why}"
    qint64 bytes = 0;
};

std::vector<DuplicateService::Doomed> DuplicateService::filesSetToGo() const
{
    std::vector<Doomed> doomed;
    for (size_t group = 0; group < groups_.size(); ++group) {
        const std::vector<DuplicateFileEntry> &files = groups_[group].files;
        for (size_t file = 0; file < files.size(); ++file) {
            if (!files[file].keep)
                doomed.push_back({group, file, files[file].id, files[file].path, groups_[group].size});
        }
    }
    return doomed;
}

/// True when the user has come to keep the file since the run began. No group changes its place during a run but by a new
/// scan, and then none of the files is known any more.
bool DuplicateService::isSpared(const Doomed &doomed) const
{
    if (!isThere(doomed.group, doomed.file))
        return false;
    const DuplicateFileEntry &file = groups_[doomed.group].files[doomed.file];
    return file.id == doomed.id && file.keep;
}

qint64 DuplicateService::deleteMarked()
{
    if (isDeleting_)
        return 0;
    const std::vector<Doomed> doomed = filesSetToGo();
    DeleteRun run;
    setDeleting(true, doomed.size());
    for (const Doomed &file : doomed) {
        if (!isSpared(file))
            moveToTrash(file, run);
        ++deletedFiles_;
        emit deletingChanged();
    }
    forget(run.trashed);
    setDeleting(false, 0);
    record(run);
    if (!run.failures.isEmpty())
        throw Error{errorDomain, partialFailure,
                    QStringLiteral("Freed %1 bytes but %2 files failed to delete:\n")
                            .arg(run.bytes)
                            .arg(run.failures.size())
                        + firstFailures(run.failures)};
    return run.bytes;
}

void DuplicateService::setDeleting(bool isDeleting, size_t files)
{
    isDeleting_ = isDeleting;
    deletedFiles_ = 0;
    filesToDelete_ = files;
    emit deletingChanged();
}

void DuplicateService::moveToTrash(const Doomed &doomed, DeleteRun &run)
{
    try {
        fileSystem_.moveToTrash(doomed.path);
        run.bytes = sums::saturated(run.bytes, doomed.size);
        run.trashed.append(doomed.path);
    } catch (const Error &error) {
        run.failures.append(doomed.path + QStringLiteral(": ") + error.description);
    }
}

/// Takes what went out of the groups, and groups with less than two files out of the list. A group that lost nothing
/// stays as it is.
void DuplicateService::forget(const QStringList &trashed)
{
    const QSet<QString> gone(trashed.begin(), trashed.end());
    std::erase_if(groups_, [&gone](DuplicateFileGroup &group) {
        std::erase_if(group.files,
                      [&gone](const DuplicateFileEntry &file) { return gone.contains(file.path); });
        return group.files.size() < 2;
    });
    markedForDeletion_.subtract(gone);
    emit groupsShrunk();
}

void DuplicateService::record(const DeleteRun &run)
{
    const qsizetype trashed = run.trashed.size();
    const qsizetype failed = run.failures.size();
    Loggers(platform_.systemLog)
        .duplicates.info(QStringLiteral("Deleted %1 duplicate files (%2 bytes); %3 failures")
                             .arg(trashed)
                             .arg(run.bytes)
                             .arg(failed));
    HistoryEntry entry;
    entry.id = QUuid::createUuid();
    entry.timestamp = platform_.clock.now();
    entry.kind = HistoryEntry::Kind::duplicateDelete;
    entry.title = failed == 0 ? QStringLiteral("Removed %1 duplicate file%2")
                                    .arg(trashed)
                                    .arg(trashed == 1 ? QStringView() : QStringView(u"s"))
                              : QStringLiteral("Removed %1 duplicates · %2 failed").arg(trashed).arg(failed);
    entry.paths = run.trashed.first(std::min(trashed, mostRecordedPaths));
    entry.bytesAffected = run.bytes;
    entry.success = failed == 0;
    if (failed > 0)
        entry.detail = firstFailures(run.failures);
    history_().record(entry);
}
