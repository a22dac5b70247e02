#pragma once

#include <cstdint>

/// What a generated tree is like. The same shape gives the same tree, byte for byte.
struct TreeShape
{
    int files = 1000;
    std::uint64_t seed = 1;
    int filesPerFolder = 40;  ///< on average; a folder's own number varies
    int topFolders = 16;      ///< at most
    int shallowestBranch = 3; ///< levels that a branch of folders reaches down, at least
    int deepestBranch = 5;    ///< at most
    double medianSize = 4096; ///< bytes; sizes are log-normal
    double spread = 2.0;      ///< the standard deviation of a size's natural logarithm
    std::int64_t mostWritten =
        8192;             ///< bytes; a longer file is one hole, so that a large tree takes little room
    int hiddenEvery = 50; ///< one file in so many has a dot name
};
