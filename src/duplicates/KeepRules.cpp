#include "duplicates/KeepRules.h"

#include <algorithm>

namespace {

bool isEarlier(const DuplicateFileEntry &left, const DuplicateFileEntry &right)
{
    return left.modified < right.modified;
}

Date latest(const DuplicateFileGroup &group)
{
    return std::max_element(group.files.begin(), group.files.end(), isEarlier)->modified;
}

Date earliest(const DuplicateFileGroup &group)
{
    return std::min_element(group.files.begin(), group.files.end(), isEarlier)->modified;
}

void keepOnlyDated(DuplicateFileGroup &group, Date date)
{
    for (DuplicateFileEntry &file : group.files)
        file.keep = file.modified == date;
}

bool isOnlyDatedKept(const DuplicateFileGroup &group, Date date)
{
    return std::all_of(group.files.begin(), group.files.end(), [date](const DuplicateFileEntry &file) {
        return file.keep == (file.modified == date);
    });
}

} // namespace

void keeprules::keepNewest(DuplicateFileGroup &group)
{
    if (!group.files.empty())
        keepOnlyDated(group, latest(group));
}

void keeprules::keepOldest(DuplicateFileGroup &group)
{
    if (!group.files.empty())
        keepOnlyDated(group, earliest(group));
}

void keeprules::keepFirst(DuplicateFileGroup &group)
{
    keepOnly(group, 0);
}

void keeprules::keepAll(DuplicateFileGroup &group)
{
    for (DuplicateFileEntry &file : group.files)
        file.keep = true;
}

void keeprules::keepOnly(DuplicateFileGroup &group, size_t file)
{
    for (size_t index = 0; index < group.files.size(); ++index)
        group.files[index].keep = index == file;
}

bool keeprules::isNewestKept(const DuplicateFileGroup &group)
{
    return group.files.empty() || isOnlyDatedKept(group, latest(group));
}

bool keeprules::isOldestKept(const DuplicateFileGroup &group)
{
    return group.files.empty() || isOnlyDatedKept(group, earliest(group));
}

bool keeprules::isFirstKept(const DuplicateFileGroup &group)
{
    return std::all_of(group.files.begin(), group.files.end(),
                       [first = group.files.data()](const DuplicateFileEntry &file) {
                           return file.keep == (&file == first);
                       });
}

bool keeprules::isAllKept(const DuplicateFileGroup &group)
{
    return group.filesToGo() == 0;
}

bool keeprules::isSoInAll(const std::vector<DuplicateFileGroup> &groups,
                          bool (*isSo)(const DuplicateFileGroup &group))
{
    return std::all_of(groups.begin(), groups.end(), isSo);
}
