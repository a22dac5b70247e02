// DuplicateService's choice of the copies that stay.

#include "duplicates/DuplicateService.h"

#include <algorithm>

namespace {

void keepOnlyDated(DuplicateFileGroup &group, Date date)
{
    for (DuplicateFileEntry &file : group.files)
        file.keep = file.modified == date;
}

bool isEarlier(const DuplicateFileEntry &left, const DuplicateFileEntry &right)
{
    return left.modified < right.modified;
}

/// All copies that share the latest date stay: nothing tells which of them is the one.
void keepNewestOf(DuplicateFileGroup &group)
{
    if (!group.files.empty())
        keepOnlyDated(group, std::max_element(group.files.begin(), group.files.end(), isEarlier)->modified);
}

void keepOldestOf(DuplicateFileGroup &group)
{
    if (!group.files.empty())
        keepOnlyDated(group, std::min_element(group.files.begin(), group.files.end(), isEarlier)->modified);
}

void keepFirstOf(DuplicateFileGroup &group)
{
    for (DuplicateFileEntry &file : group.files)
        file.keep = &file == &group.files.front();
}

} // namespace

std::optional<size_t> DuplicateService::indexOf(const QUuid &group) const
{
    const auto found = std::find_if(groups_.begin(), groups_.end(),
                                    [&group](const DuplicateFileGroup &known) { return known.id == group; });
    if (found == groups_.end())
        return std::nullopt;
    return static_cast<size_t>(found - groups_.begin());
}

bool DuplicateService::isThere(size_t group, size_t file) const
{
    return group < groups_.size() && file < groups_[group].files.size();
}

void DuplicateService::toggleKeep(size_t group, size_t file)
{
    if (!isThere(group, file))
        return;
    DuplicateFileEntry &entry = groups_[group].files[file];
    entry.keep = !entry.keep;
    if (entry.keep)
        markedForDeletion_.remove(entry.path);
    else
        markedForDeletion_.insert(entry.path);
    emit fileChanged(group, file);
}

void DuplicateService::keepOnly(size_t group, size_t file)
{
    if (!isThere(group, file))
        return;
    std::vector<DuplicateFileEntry> &files = groups_[group].files;
    for (DuplicateFileEntry &entry : files)
        entry.keep = &entry == &files[file];
    emit groupChanged(group);
}

void DuplicateService::keepNewest(const QUuid &group)
{
    if (const auto index = indexOf(group)) {
        keepNewestOf(groups_[*index]);
        emit groupChanged(*index);
    }
}

void DuplicateService::keepOldest(const QUuid &group)
{
    if (const auto index = indexOf(group)) {
        keepOldestOf(groups_[*index]);
        emit groupChanged(*index);
    }
}

void DuplicateService::keepFirstInAllGroups()
{
    std::for_each(groups_.begin(), groups_.end(), keepFirstOf);
    emit keepChanged();
}

void DuplicateService::keepAllInAllGroups()
{
    for (DuplicateFileGroup &group : groups_) {
        for (DuplicateFileEntry &file : group.files)
            file.keep = true;
    }
    emit keepChanged();
}

void DuplicateService::keepNewestInAllGroups()
{
    std::for_each(groups_.begin(), groups_.end(), keepNewestOf);
    emit keepChanged();
}

void DuplicateService::keepOldestInAllGroups()
{
    std::for_each(groups_.begin(), groups_.end(), keepOldestOf);
    emit keepChanged();
}
