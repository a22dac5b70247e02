#pragma once

#include "PlantedTree.h"

#include <cstdint>
#include <string>

/// Fills an empty folder with a user's home in which some files are equal: mostly small ones, three in a hundred above
/// 1 MiB, one in five a copy or copied, one in twenty hidden or in a folder that a scan ignores. Files are equal only
/// where that is meant. The same arguments give the same tree, byte for byte. Throws std::system_error.
PlantedTree generateDuplicateTree(const std::string &home, int files, std::uint64_t seed);
