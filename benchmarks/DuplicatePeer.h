#pragma once

#include "Commands.h"

#include <cstdint>
#include <string>
#include <vector>

/// Another program that finds equal files, asked for what a duplicate scan of ours finds as nearly as it can: all files
/// of at least `minSize` bytes below `root`, no hidden ones where it can leave them out, the groups on its output.
struct DuplicatePeer
{
    using Arguments = commands::Command (*)(const std::string &root, std::int64_t minSize);

    std::string name;
    Arguments command;

    static const std::vector<DuplicatePeer> &all(); ///< the one that is fastest first
};
