#pragma once

#include "duplicates/DuplicateFileGroup.h"

#include <vector>

/// What the head and the foot of the Duplicate Finder count.
struct DuplicateFigures
{
    qint64 groups = 0;
    qint64 files = 0;
    qint64 wasted = 0; ///< bytes
    qint64 filesToDelete = 0;
    qint64 bytesToDelete = 0; ///< by the sizes of the scan
};

/// Over these of the groups, by index. Sums that would not fit stay at the largest number.
DuplicateFigures figuresOf(const std::vector<DuplicateFileGroup> &groups, const std::vector<size_t> &shown);
