#include "base/EventLoopMainQueue.h"
#include "base/Paths.h"
#include "Benchmarks.h"
#include "Commands.h"
#include "DuplicatePeer.h"
#include "duplicates/scan/DuplicateScan.h"
#include "DuplicateTree.h"
#include "Measurement.h"
#include "platform/Locations.h"
#include "TemporaryFolder.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <fstream>
#include <set>
#include <sstream>
#include <stdexcept>
#include <thread>

#include <unistd.h>

namespace {

using commands::Command;

constexpr int manyFiles = 100000;
constexpr int fewerFiles = 32000;
constexpr std::int64_t usualMinimum = 102400; // bytes
constexpr std::int64_t lowMinimum = 1024;     // bytes

constexpr double mostOfSlowPeer = 0.4;
constexpr double mostOfFastPeer = 0.75;       // at 100 KB, where the walk is most of it
constexpr double mostOfFastPeerReading = 0.9; // at 1 KB
constexpr double mostOfFastPeerCold = 0.7;
constexpr size_t coldRuns = 3;
constexpr double mostMemory = 40;        // MB with 32,000 files
constexpr double mostMemoryOfFile = 250; // bytes
constexpr double mostOfSilentScan = 1.03;
constexpr size_t silentScans = 21; // since the difference is small

/// A generated home and what is planted in it.
struct Home
{
    explicit Home(int files)
        : planted(generateDuplicateTree(folder.path(), files, 1))
    {
    }

    const std::string &path() const { return folder.path(); }

    TemporaryFolder folder;
    PlantedTree planted;
};

/// Made at its first use and kept for all benchmarks of a run.
const Home &largeHome()
{
    static const Home home(manyFiles);
    return home;
}

Command ourCommand(const std::string &home, std::int64_t minSize)
{
    return {DRIVER_PROGRAM, "dup", "--min", std::to_string(minSize), "--home", home};
}

/// Groups by the paths in them, in no order.
using Groups = std::set<std::set<std::string>>;

Groups plantedGroups(const PlantedTree &planted, std::int64_t minSize)
{
    Groups groups;
    for (const PlantedTree::Group &group : planted.groups) {
        if (group.size >= minSize)
            groups.emplace(group.paths.begin(), group.paths.end());
    }
    return groups;
}

Groups groupsOfOurs(const std::string &output)
{
    Groups groups;
    for (const auto &group : QJsonDocument::fromJson(QByteArray::fromStdString(output)).array()) {
        std::set<std::string> paths;
        for (const auto &path : group.toObject().value(QStringLiteral("paths")).toArray())
            paths.insert(path.toString().toStdString());
        groups.insert(std::move(paths));
    }
    return groups;
}

/// The groups out of a list with a path a line and an empty line behind each group, without the files that a scan of
/// ours passes over.
Groups groupsOfPeer(const std::string &output, const PlantedTree &planted)
{
    Groups groups;
    std::set<std::string> paths;
    std::istringstream lines(output + "\n\n");
    for (std::string line; std::getline(lines, line);) {
        if (!line.empty() && !planted.asides.contains(line))
            paths.insert(line);
        if (line.empty() && paths.size() > 1)
            groups.insert(paths);
        if (line.empty())
            paths.clear();
    }
    return groups;
}

void require(bool holds, const std::string &what)
{
    if (!holds)
        throw std::runtime_error(what);
}

/// Both sides find all that was planted and nothing else, or nothing is worth measuring.
void requireAgreement(const Home &home, std::int64_t minSize)
{
    const Groups expected = plantedGroups(home.planted, minSize);
    require(!expected.empty(), "there is nothing to find");
    require(groupsOfOurs(commands::output(ourCommand(home.path(), minSize))) == expected,
            "the scan finds other groups than were planted");
    const DuplicatePeer &peer = DuplicatePeer::all().front();
    if (commands::isInstalled(peer.name))
        require(groupsOfPeer(commands::output(peer.command(home.path(), minSize)), home.planted) == expected,
                peer.name + " finds other groups than were planted");
}

void compareWithPeers(const std::string &name, std::int64_t minSize, double mostOfFast)
{
    const Home &home = largeHome();
    requireAgreement(home, minSize);
    for (const DuplicatePeer &peer : DuplicatePeer::all()) {
        if (!commands::isInstalled(peer.name)) {
            measurement::printSkipped(name, peer.name + " is not installed");
            continue;
        }
        const double target = &peer == &DuplicatePeer::all().front() ? mostOfFast : mostOfSlowPeer;
        const auto comparison =
            measurement::compareCosts([&] { return commands::run(ourCommand(home.path(), minSize)); },
                                      [&] { return commands::run(peer.command(home.path(), minSize)); });
        measurement::printRatio(name + "-cpu", comparison.cpu, target, "ms", peer.name);
        measurement::printRatio(name + "-wall", comparison.wall, target, "ms", peer.name);
    }
}

void usualScan()
{
    compareWithPeers("dup-100k", usualMinimum, mostOfFastPeer);
}

void readingScan()
{
    compareWithPeers("dup-1k", lowMinimum, mostOfFastPeerReading);
}

/// Lets the system forget what it has read from disks. False where it may not be asked for that.
bool dropCaches()
{
    sync();
    std::ofstream control("/proc/sys/vm/drop_caches");
    control << "3" << std::flush;
    return control.good();
}

void coldScan()
{
    const DuplicatePeer &peer = DuplicatePeer::all().front();
    if (!commands::isInstalled(peer.name)) {
        measurement::printSkipped("dup-cold", peer.name + " is not installed");
        return;
    }
    if (!dropCaches()) {
        measurement::printSkipped("dup-cold", "the system's caches can't be dropped (needs root on Linux)");
        return;
    }
    const Home &home = largeHome();
    const auto cold = [](const Command &command) {
        dropCaches();
        return commands::run(command);
    };
    for (const std::int64_t minSize : {usualMinimum, lowMinimum}) {
        const auto comparison =
            measurement::compareCosts([&] { return cold(ourCommand(home.path(), minSize)); },
                                      [&] { return cold(peer.command(home.path(), minSize)); }, coldRuns);
        const std::string name = minSize == usualMinimum ? "dup-cold-100k" : "dup-cold-1k";
        measurement::printRatio(name, comparison.wall, mostOfFastPeerCold, "ms", peer.name);
    }
}

/// The most memory that a scan of all files has resident at once, in bytes.
double peakMemory(const std::string &home)
{
    Command command = ourCommand(home, 1);
    command.insert(command.begin(), PEAK_MEMORY_PROGRAM);
    return measurement::median([&command] { return std::stod(commands::output(command)); });
}

void memory()
{
    const Home fewer(fewerFiles);
    const double ofFewer = peakMemory(fewer.path());
    const double ofMany = peakMemory(largeHome().path());
    measurement::printFigure("dup-memory", ofFewer / 1e6, mostMemory, "MB",
                             "resident at most, 32,000 files, all of them compared");
    measurement::printFigure("dup-memory-file", (ofMany - ofFewer) / (manyFiles - fewerFiles),
                             mostMemoryOfFile, "bytes", "for each file more, up to 100,000");
}

/// Scans the large home as the program does, on a thread of its own beside the main loop.
void scanBesideMainLoop(bool isPublished)
{
    const QString home = paths::fromBytes(largeHome().path());
    const duplicatescan::Request request{{home}, macLocations(home).duplicateIgnoreRules, usualMinimum, {}};
    EventLoopMainQueue queue;
    QString current;
    duplicatescan::Hooks hooks = {[] { return false; }, [](const QString &) {}, [] {}, [](size_t, size_t) {}};
    if (isPublished)
        hooks.entered = [&queue, &current](const QString &folder) {
            queue.post([&current, folder] { current = folder; });
        };
    size_t groups = 0;
    std::thread worker([&] {
        groups = duplicatescan::run(request, hooks).groups.size();
        queue.post([] { QCoreApplication::quit(); });
    });
    QCoreApplication::exec();
    worker.join();
    require(groups > 0 && current.isEmpty() != isPublished, "the scan did not run as it was to");
}

void publishing()
{
    int count = 0;
    QCoreApplication application(count, nullptr);
    const auto cost = [](bool isPublished) {
        return measurement::Cost{
            measurement::processTime([isPublished] { scanBesideMainLoop(isPublished); })};
    };
    const auto comparison = measurement::compareCosts([&cost] { return cost(true); },
                                                      [&cost] { return cost(false); }, silentScans);
    measurement::printRatio("dup-path", comparison.cpu, mostOfSilentScan, "ms",
                            "the same scan telling no folder");
}

} // namespace

std::vector<Benchmark> benchmarks::ofDuplicates()
{
    return {
        {"dup-100k", "a duplicate scan of 100,000 files from 100 KB on, against other programs", usualScan},
        {"dup-1k", "the same from 1 KB on", readingScan},
        {"dup-memory", "memory of a duplicate scan by the number of files", memory},
        {"dup-path", "a duplicate scan that shows the folder it is in against one that does not", publishing},
        {"dup-cold", "dup-100k and dup-1k against jdupes with nothing of the disk in memory", coldScan},
    };
}
