#pragma once

#include "disk/LargeDirectory.h"
#include "disk/StorageCategory.h"

#include <vector>

struct Locations;
class SizeProbes;

/// The measuring loops of the disk's scans. They run on a worker, one probe after the other, and have no cancel of their
/// own: a cancel ends the probe at work, whose row then counts 0, and the loop goes on. Any thread but the main one.
namespace diskmeasures {

/// The main folders with their sizes, in their fixed order, whatever the sizes are.
std::vector<StorageCategory> storageCategories(const Locations &locations, SizeProbes &probes);

/// The 8 largest entries directly in the main folders that are above 10 million bytes, largest first. Nothing is listed
/// twice: where one main folder leads to another, the inner one competes through its own children alone.
std::vector<LargeDirectory> largestDirectories(const Locations &locations, SizeProbes &probes);

/// Up to 10 of the largest entries directly in `path` that take any space, dot names left out.
std::vector<LargeDirectory> drillChildren(const QString &path, SizeProbes &probes);

} // namespace diskmeasures
