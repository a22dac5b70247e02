#include "duplicates/KeepRules.h"

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

} // namespace

void keeprules::keepNewest(DuplicateFileGroup &group)
{
    if (!group.files.empty())
        keepOnlyDated(group, std::max_element(group.files.begin(), group.files.end(), isEarlier)->modified);
}

void keeprules::keepOldest(DuplicateFileGroup &group)
{
    if (!group.files.empty())
        keepOnlyDated(group, std::min_element(group.files.begin(), group.files.end(), isEarlier)->modified);
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
