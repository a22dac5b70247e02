#pragma once

#include "duplicates/DuplicateFileGroup.h"

#include <QString>

#include <vector>

/// What the head and the foot of the Duplicate Finder count.
struct DuplicateFigures
{
    qint64 groups = 0;
    qint64 files = 0;
    qint64 wasted = 0; ///< bytes
    qint64 filesToDelete = 0;
    qint64 bytesToDelete = 0; ///< by the sizes of the scan

    /// A pattern with the number of files set to go in the place of %1 and their size in that of %2.
    QString amountText(const QString &pattern) const;
};

/// Over these of the groups, by index. Sums that would not fit stay at the largest number.
DuplicateFigures figuresOf(const std::vector<DuplicateFileGroup> &groups, const std::vector<size_t> &shown);
