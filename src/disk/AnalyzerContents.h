#pragma once

#include "disk/StorageCategory.h"
#include "filesystem/FileEntry.h"

#include <vector>

/// What the Disk Analyzer derives from the entry on view. Pure.
namespace analyzer {

/// The treemap's categories: the children of at least 2 % of their own sum, at most 12, largest first, then one for
/// all the rest.
std::vector<StorageCategory> mapCategories(const FileEntry &entry);

/// The symbol of a row, by the entry's name.
QString rowSymbol(const FileEntry &entry);

/// A part's share of a whole, from 0 to 1; 0 of an empty whole.
double share(qint64 part, qint64 whole);

/// The share as "12.5%".
QString shareText(double share);

} // namespace analyzer
