#pragma once

#include <cstdint>
#include <string>
#include <unordered_set>
#include <vector>

/// What a generated home holds of equal files.
struct PlantedTree
{
    struct Group
    {
        std::int64_t size = 0; ///< bytes, of each of the files
        std::vector<std::string> paths;
    };

    std::vector<Group> groups; ///< all groups of equal files that a scan is to find, whatever their size
    std::unordered_set<std::string>
        asides; ///< files that a scan passes over: hidden ones and those in folders ignored
};
