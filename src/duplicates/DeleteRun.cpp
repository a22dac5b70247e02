#include "duplicates/DeleteRun.h"

#include "filesystem/FileSystemService.h"

#include <QSet>

#include <algorithm>

namespace {

constexpr int partialFailure = 1; // the error's code

QString titleOf(qsizetype moved, qsizetype failed)
{
    if (failed > 0)
        return QStringLiteral("Removed %1 duplicates · %2 failed").arg(moved).arg(failed);
    return QStringLiteral("Removed %1 duplicate file%2")
        .arg(moved)
        .arg(moved == 1 ? QStringView() : QStringView(u"s"));
}

} // namespace

const QString DeleteRun::errorDomain = QStringLiteral("Quillmere.DuplicateService");

DeleteRun::DeleteRun(const std::vector<DuplicateFileGroup> &groups)
{
    for (size_t group = 0; group < groups.size(); ++group) {
        const std::vector<DuplicateFileEntry> &files = groups[group].files;
        for (size_t file = 0; file < files.size(); ++file) {
            if (!files[file].keep)
                files_.push_back({{group, file}, files[file].id, files[file].path, groups[group].size});
        }
    }
}

void DeleteRun::move(size_t number, const std::vector<DuplicateFileGroup> &groups,
                     FileSystemService &fileSystem)
{
    const Doomed &doomed = files_[number];
    if (isSpared(doomed, groups))
        return;
    try {
        fileSystem.moveToTrash(doomed.path);
        tally_.succeeded(doomed.path, doomed.size);
    } catch (const Error &error) {
        tally_.failed(doomed.path, error);
    }
}

/// True when the file has come to be kept since the run began: by the user, or by a scan from within, which makes entries
/// of its own and so is asked by path. A file that such a scan does not list goes as it was set to.
bool DeleteRun::isSpared(const Doomed &doomed, const std::vector<DuplicateFileGroup> &groups)
{
    const auto &[group, file] = doomed.place;
    if (group < groups.size() && file < groups[group].files.size()
        && groups[group].files[file].id == doomed.id)
        return groups[group].files[file].keep;
    learnPlaces(groups);
    const auto [begin, end] = std::as_const(places_).equal_range(doomed.path);
    return std::any_of(begin, end,
                       [&groups](const Place &place) { return groups[place.group].files[place.file].keep; });
}

/// Groups only change their places during a run by another scan, and then have new ids.
void DeleteRun::learnPlaces(const std::vector<DuplicateFileGroup> &groups)
{
    const QUuid first = groups.empty() ? QUuid() : groups.front().id;
    if (placesOf_ == first)
        return;
    placesOf_ = first;
    places_.clear();
    for (size_t group = 0; group < groups.size(); ++group) {
        for (size_t file = 0; file < groups[group].files.size(); ++file)
            places_.insert(groups[group].files[file].path, {group, file});
    }
}

void DeleteRun::takeOutOf(std::vector<DuplicateFileGroup> &groups) const
{
    const QSet<QString> gone(tally_.done.begin(), tally_.done.end());
    std::erase_if(groups, [&gone](DuplicateFileGroup &group) {
        std::erase_if(group.files,
                      [&gone](const DuplicateFileEntry &file) { return gone.contains(file.path); });
        return group.files.size() < 2;
    });
}

QString DeleteRun::logLine() const
{
    return QStringLiteral("Deleted %1 duplicate files (%2 bytes); %3 failures")
        .arg(tally_.done.size())
        .arg(tally_.bytes)
        .arg(tally_.failures.size());
}

HistoryEntry DeleteRun::record(Date now) const
{
    HistoryEntry entry;
    entry.id = QUuid::createUuid();
    entry.timestamp = now;
    entry.kind = HistoryEntry::Kind::duplicateDelete;
    entry.title = titleOf(tally_.done.size(), tally_.failures.size());
    entry.paths = tally_.recordedPaths();
    entry.bytesAffected = tally_.bytes;
    entry.success = !tally_.hasFailures();
    if (tally_.hasFailures())
        entry.detail = tally_.firstFailures();
    return entry;
}

std::optional<Error> DeleteRun::error() const
{
    if (!tally_.hasFailures())
        return std::nullopt;
    return Error{errorDomain, partialFailure,
                 QStringLiteral("Freed %1 bytes but %2 files failed to delete:\n")
                         .arg(tally_.bytes)
                         .arg(tally_.failures.size())
                     + tally_.firstFailures()};
}
