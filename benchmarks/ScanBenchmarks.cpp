#include "BareLoops.h"
#include "base/Paths.h"
#include "Benchmarks.h"
#include "DriverPlatform.h"
#include "Measurement.h"
#include "TemporaryFolder.h"
#include "TreeGenerator.h"

#include <filesystem>
#include <stdexcept>

namespace {

constexpr double mostOverhead = 1.05;
constexpr int deepest = 2; // as the Disk Analyzer scans
constexpr int probes = 1000;

void requireEqual(std::int64_t ours, std::int64_t peers)
{
    if (ours != peers)
        throw std::runtime_error("the two sides measured different things");
}

/// Prints how a scan of that tree stands to the bare one.
void compareScans(const std::string &name, const TreeShape &shape)
{
    const TemporaryFolder home;
    generateTree(home.path(), shape);
    DriverPlatform platform;
    const QString path = paths::fromBytes(home.path());
    std::int64_t ourSum = 0;
    std::int64_t bareSum = 0;
    const auto ours = [&] { ourSum = platform.fileSystem().scanTree(path, 0, deepest).size; };
    const auto bare = [&] { bareSum = bareloops::scan(home.path(), 0, deepest); };
    const auto comparison = measurement::compare([&] { return measurement::processTime(ours); },
                                                 [&] { return measurement::processTime(bare); });
    requireEqual(ourSum, bareSum);
    measurement::printRatio(name, comparison, mostOverhead, "ms", "bare du runs and listings");
}

void scanTree()
{
    compareScans("scan-tree", {.files = 20000, .filesPerFolder = 10, .topFolders = 100});
}

void scanFlat()
{
    constexpr int files = 20000;
    compareScans("scan-flat", {.files = files, .filesPerFolder = files});
}

void probeFolders()
{
    const TemporaryFolder home;
    generateTree(home.path(), {.files = 400, .seed = 2, .filesPerFolder = 10});
    std::vector<std::string> folders;
    for (const auto &entry : std::filesystem::directory_iterator(home.path())) {
        if (entry.is_directory())
            folders.push_back(entry.path().string());
    }
    std::vector<QString> paths;
    paths.reserve(folders.size());
    for (const std::string &folder : folders)
        paths.push_back(paths::fromBytes(folder));
    DriverPlatform platform;
    std::int64_t ourSum = 0;
    std::int64_t bareSum = 0;
    const auto ours = [&] {
        ourSum = 0;
        for (size_t i = 0; i < probes; ++i)
            ourSum += platform.sizeProbes().probeSize(paths[i % paths.size()], ProbeContext::generic);
    };
    const auto bare = [&] {
        bareSum = 0;
        for (size_t i = 0; i < probes; ++i)
            bareSum += bareloops::probe(folders[i % folders.size()]);
    };
    const auto comparison = measurement::compare([&] { return measurement::processTime(ours); },
                                                 [&] { return measurement::processTime(bare); });
    requireEqual(ourSum, bareSum);
    measurement::printRatio("probes", comparison, mostOverhead, "ms", "1,000 bare du runs");
}

} // namespace

std::vector<Benchmark> benchmarks::ofScans()
{
    return {
        {"scan-tree", "a tree scan against the du runs and listings that it must make", scanTree},
        {"scan-flat", "the same of one folder with 20,000 files, where there is nothing but the listing",
         scanFlat},
        {"probes", "1,000 size probes against a bare loop of the same du runs", probeFolders},
    };
}
