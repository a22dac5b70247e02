#include "BareLoops.h"
#include "base/Paths.h"
#include "Benchmarks.h"
#include "cleanup/CleanupCatalogue.h"
#include "cleanup/EmptyFolders.h"
#include "cleanup/PreviewList.h"
#include "DriverPlatform.h"
#include "Measurement.h"
#include "platform/LinuxEnvironment.h"
#include "TemporaryFolder.h"
#include "TreeGenerator.h"
#include "TreeParts.h"

#include <filesystem>
#include <stdexcept>

namespace {

constexpr double mostScanOverhead = 1.05;
constexpr double mostWalkOverhead = 1.3;

void requireSame(std::int64_t ours, std::int64_t peers)
{
    if (ours != peers)
        throw std::runtime_error("the two sides found different things");
}

/// Wall seconds over `work`.
double wallTime(const std::function<void()> &work)
{
    const double start = measurement::now();
    work();
    return measurement::now() - start;
}

/// Fills a folder with 100,000 folders, three levels deep: one in ten is empty, the others hold a file.
void makeFolders(const std::string &root)
{
    constexpr int branches = 46; // 46 + 46 * 46 + 46 * 46 * 46 folders
    const auto make = [](const std::string &folder, int number) {
        std::filesystem::create_directory(folder);
        if (number % 10 != 0)
            treeparts::makeFile(folder + "/file", {}, 0);
    };
    std::filesystem::create_directories(root);
    for (int first = 0; first < branches; ++first) {
        const std::string outer = root + "/folder " + std::to_string(first);
        make(outer, first);
        for (int second = 0; second < branches; ++second) {
            const std::string middle = outer + "/folder " + std::to_string(second);
            make(middle, second);
            for (int third = 0; third < branches; ++third)
                make(middle + "/folder " + std::to_string(third), third);
        }
    }
}

void walkFolders()
{
    const TemporaryFolder home;
    const std::string root = home.path() + "/Downloads";
    makeFolders(root);
    std::int64_t found = 0;
    std::int64_t empty = 0;
    const auto ours = [&] { found = emptyfolders::find({paths::fromBytes(root)}).size(); };
    const auto bare = [&] { empty = bareloops::emptyFolders(root); };
    const auto comparison = measurement::compare([&] { return measurement::processTime(ours); },
                                                 [&] { return measurement::processTime(bare); });
    requireSame(found, empty);
    measurement::printRatio("cleanup-walk", comparison, mostWalkOverhead, "ms", "bare walk");
}

void scanHome()
{
    const TemporaryFolder home;
    makeFolders(home.path() + "/Downloads");
    const Locations locations = linuxLocations(paths::fromBytes(home.path()), {});
    std::vector<std::string> places;
    for (const char *name : {"/.cache/mozilla", "/.cache/editor/logs", "/.npm/_cacache", "/.cache/yarn",
                             "/.local/share/Trash/files"}) {
        places.push_back(home.path() + name);
        std::filesystem::create_directories(places.back());
        generateTree(places.back(), {.files = 2000});
    }
    places.push_back(home.path() + "/Downloads");
    DriverPlatform platform;
    std::int64_t ourSum = 0;
    std::int64_t bareSum = 0;
    const auto ours = [&] {
        ourSum = 0;
        for (const CleanupCategory &category :
             cleanupcatalogue::build(locations, platform.platform().programs, platform.sizeProbes()))
            ourSum += category.size + category.fileCount;
    };
    const auto bare = [&] {
        bareSum = 2 * emptyfolders::find(locations.emptyFolderRoots).size(); // as bytes and as files
        for (const std::string &place : places)
            bareSum += bareloops::probe(place) + bareloops::fileCount(place);
    };
    const auto comparison =
        measurement::compare([&] { return wallTime(ours); }, [&] { return wallTime(bare); });
    requireSame(ourSum, bareSum);
    measurement::printRatio("cleanup-scan", comparison, mostScanOverhead, "ms",
                            "its du and find runs and its walk, wall");
}

/// Fills a folder with that many files, a thousand in each of its folders.
void makeFiles(const std::string &root, int files)
{
    for (int number = 0; number < files; ++number) {
        const std::string folder = root + "/folder " + std::to_string(number / 1000);
        if (number % 1000 == 0)
            std::filesystem::create_directories(folder);
        treeparts::makeFile(folder + "/file " + std::to_string(number), {}, number % 7919);
    }
}

void previewPlaces()
{
    const TemporaryFolder home;
    CleanupCategory category;
    category.id = QStringLiteral("logs");
    std::vector<std::string> places;
    for (const int files : {1000000, 1000, 1000}) {
        places.push_back(home.path() + "/place " + std::to_string(places.size()));
        makeFiles(places.back(), files);
        category.paths.append(paths::fromBytes(places.back()));
    }
    std::int64_t ourSize = 0;
    std::int64_t bareSize = 0;
    const Date now = std::chrono::system_clock::now();
    const auto ours = [&] {
        ourSize = 0;
        for (const PreviewFile &file : previewlist::load(category, now))
            ourSize += file.size;
    };
    const auto bare = [&] {
        bareSize = 0;
        std::int64_t taken = 0;
        for (const std::string &place : places) {
            const std::int64_t most = std::max<std::int64_t>(previewlist::mostFiles - taken, 1);
            const bareloops::Files files = bareloops::firstFiles(place, most);
            bareSize += files.bytes;
            taken += files.count;
        }
    };
    const auto comparison = measurement::compare([&] { return measurement::processTime(ours); },
                                                 [&] { return measurement::processTime(bare); });
    requireSame(ourSize, bareSize);
    measurement::printRatio("cleanup-preview", comparison, mostWalkOverhead, "ms",
                            "bare walk of the files that are listed");
}

} // namespace

std::vector<Benchmark> benchmarks::ofCleanup()
{
    return {
        {"cleanup-walk", "the search for empty folders among 100,000 against a bare walk of them",
         walkFolders},
        {"cleanup-scan",
         "a scan for what can be cleaned against the du and find runs and the walk that it makes", scanHome},
        {"cleanup-preview",
         "the preview of a category with a million files against a bare walk of those that it lists",
         previewPlaces},
    };
}
