#pragma once

#include "duplicates/DuplicateFileGroup.h"

#include <vector>

/// Which files of a group stay; all others of it go at the next delete run.
namespace keeprules {

/// All that share the latest date, since nothing tells which of them is the one.
void keepNewest(DuplicateFileGroup &group);

/// All that share the earliest date.
void keepOldest(DuplicateFileGroup &group);

void keepFirst(DuplicateFileGroup &group);

void keepAll(DuplicateFileGroup &group);

/// `file` is an index in the group.
void keepOnly(DuplicateFileGroup &group, size_t file);

// Whether such a rule would change nothing.

bool isNewestKept(const DuplicateFileGroup &group);
bool isOldestKept(const DuplicateFileGroup &group);
bool isFirstKept(const DuplicateFileGroup &group);
bool isAllKept(const DuplicateFileGroup &group);
bool isSoInAll(const std::vector<DuplicateFileGroup> &groups, bool (*isSo)(const DuplicateFileGroup &group));

} // namespace keeprules
