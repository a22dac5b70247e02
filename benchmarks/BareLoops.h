#pragma once

#include <cstdint>
#include <string>

/// The least that measuring folders takes: the same runs of `du` and the same listings as our own code, with nothing
/// around them. The peers of the benchmarks.
namespace bareloops {

/// Bytes that one `du -sk` tells of a path. Throws std::system_error when it can't be started.
std::int64_t probe(const std::string &path);

/// Lists folders above `deepest` with the size of each entry and probes those at it, dot names left out; gives the
/// sum, which is that of the scan. Throws likewise.
std::int64_t scan(const std::string &path, int depth, int deepest);

/// Walks all folders and counts those without an entry, the first one aside.
std::int64_t emptyFolders(const std::string &path);

/// What the shell's line of `find`, `head` and `wc` counts. The path holds no apostrophe. Throws likewise.
std::int64_t fileCount(const std::string &path);

struct Files
{
    std::int64_t count = 0;
    std::int64_t bytes = 0;
};

/// Walks depth first up to that many regular files, and asks for the size of each.
Files firstFiles(const std::string &path, std::int64_t most);

} // namespace bareloops
