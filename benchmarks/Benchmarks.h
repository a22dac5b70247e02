#pragma once

#include "Benchmark.h"

#include <array>
#include <vector>

/// The groups of benchmarks, a source file each. A new one is declared here and stands in `groups`.
namespace benchmarks {

std::vector<Benchmark> ofScans();      ///< tree scans and size probes against the bare runs of `du`
std::vector<Benchmark> ofHistory();    ///< one record on a full activity log against the library's JSON
std::vector<Benchmark> ofDuplicates(); ///< duplicate scans against other programs that find equal files
std::vector<Benchmark> ofCleanup();    ///< what can be cleaned against the runs and walks that it takes
std::vector<Benchmark> ofApps();       ///< installed applications against the runs that their list takes
std::vector<Benchmark> ofGhosts();     ///< what gone applications left, against plain substring tests
std::vector<Benchmark> ofExports();    ///< the App Manager's export against a bare loop
std::vector<Benchmark> ofTreemap();    ///< the map's layout against one sort
std::vector<Benchmark> ofWindow();     ///< start, main loop and memory of the running program
std::vector<Benchmark> ofRows();       ///< walking and scrolling the long lists of the running program

/// In the order in which they run.
inline constexpr std::array groups = {ofScans,   ofDuplicates, ofCleanup, ofApps,   ofGhosts,
                                      ofExports, ofTreemap,    ofHistory, ofWindow, ofRows};

} // namespace benchmarks
