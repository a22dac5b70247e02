#pragma once

#include <functional>
#include <string>
#include <vector>

/// One thing to measure. To add one, write its function beside those of its group and give it a row in the group's
/// table; a new group is a file of its own with a name in Benchmarks.h.
struct Benchmark
{
    std::string name;
    std::string summary;
    std::function<void()> run; ///< prints its lines; throws std::exception when it can't be measured
};
