#pragma once

#include <cstdint>
#include <set>
#include <string>
#include <vector>

/// The duplicate scan once more, written down as plainly as can be and slow: every file is read, everything is text,
/// and nothing of the program is used. What the two give is held against each other.
class DuplicateOracle
{
public:
    struct Group
    {
        std::string hash;
        std::int64_t size = 0;
        std::vector<std::string> paths; ///< in the order of discovery
        std::vector<bool> keep;

        bool operator==(const Group &) const = default;
    };

    std::vector<std::string> scanPaths;
    std::vector<std::string> ignorePaths;
    std::int64_t minFileSize = 0;
    std::set<std::string> marked;

    /// In an order of its own.
    std::vector<Group> groups() const;

    /// The folders visited, in order.
    std::vector<std::string> visited() const;
};
