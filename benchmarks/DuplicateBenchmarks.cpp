#include "activity/HistoryService.h"
#include "Arguments.h"
#include "base/Paths.h"
#include "Benchmarks.h"
#include "Commands.h"
#include "DriverPlatform.h"
#include "DuplicatePeer.h"
#include "duplicates/DuplicateService.h"
#include "duplicates/scan/DuplicateScan.h"
#include "duplicates/screen/DuplicateFinderView.h"
#include "DuplicateTree.h"
#include "Measurement.h"
#include "TemporaryFolder.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <fstream>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <sstream>
#include <stdexcept>

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
    Home(DuplicateTreeShape shape, int files)
    {
        shape.tree.files = files;
        planted = generateDuplicateTree(folder.path(), shape);
    }

    const std::string &path() const { return folder.path(); }

    TemporaryFolder folder;
    PlantedTree planted;
};

/// Made at its first use and kept for all benchmarks of a run.
const Home &largeHome(const DuplicateTreeShape &shape = DuplicateTreeShape::usual())
{
    static std::map<std::string, std::unique_ptr<const Home>> homes; // by the shape's name
    std::unique_ptr<const Home> &home = homes[shape.name];
    if (!home)
        home = std::make_unique<const Home>(shape, manyFiles);
    return *home;
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

void compareWithPeer(const DuplicatePeer &peer, const Home &home, const std::string &name,
                     std::int64_t minSize, double target)
{
    if (!commands::isInstalled(peer.name)) {
        measurement::printSkipped(name, peer.name + " is not installed");
        return;
    }
    const auto comparison =
        measurement::compareCosts([&] { return commands::run(ourCommand(home.path(), minSize)); },
                                  [&] { return commands::run(peer.command(home.path(), minSize)); });
    measurement::printRatio(name + "-cpu", comparison.cpu, target, "ms", peer.name);
    measurement::printRatio(name + "-wall", comparison.wall, target, "ms", peer.name);
}

/// Against the fastest peer on both homes, against the others on the usual one.
void compareWithPeers(const std::string &threshold, std::int64_t minSize, double mostOfFast)
{
    for (const DuplicateTreeShape *shape : {&DuplicateTreeShape::usual(), &DuplicateTreeShape::deep()}) {
        const Home &home = largeHome(*shape);
        requireAgreement(home, minSize);
        for (const DuplicatePeer &peer : DuplicatePeer::all()) {
            const bool isFastest = &peer == &DuplicatePeer::all().front();
            if (isFastest || shape == &DuplicateTreeShape::usual())
                compareWithPeer(peer, home, shape->name + threshold, minSize,
                                isFastest ? mostOfFast : mostOfSlowPeer);
        }
    }
}

void usualScan()
{
    compareWithPeers("-100k", usualMinimum, mostOfFastPeer);
}

void readingScan()
{
    compareWithPeers("-1k", lowMinimum, mostOfFastPeerReading);
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
    const auto cold = [](const Command &command) {
        dropCaches();
        return commands::run(command);
    };
    for (const DuplicateTreeShape *shape : {&DuplicateTreeShape::usual(), &DuplicateTreeShape::deep()}) {
        const Home &home = largeHome(*shape);
        for (const std::int64_t minSize : {usualMinimum, lowMinimum}) {
            const auto comparison =
                measurement::compareCosts([&] { return cold(ourCommand(home.path(), minSize)); },
                                          [&] { return cold(peer.command(home.path(), minSize)); }, coldRuns);
            const std::string name = shape->name + (minSize == usualMinimum ? "-cold-100k" : "-cold-1k");
            measurement::printRatio(name, comparison.wall, mostOfFastPeerCold, "ms", peer.name);
        }
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
    const Home fewer(DuplicateTreeShape::usual(), fewerFiles);
    const double ofFewer = peakMemory(fewer.path());
    const double ofMany = peakMemory(largeHome().path());
    measurement::printFigure("dup-memory", ofFewer / 1e6, mostMemory, "MB",
                             "resident at most, 32,000 files, all of them compared");
    measurement::printFigure("dup-memory-file", (ofMany - ofFewer) / (manyFiles - fewerFiles),
                             mostMemoryOfFile, "bytes", "for each file more, up to 100,000");
}

/// The service over the large home.
class ScanOfService
{
public:
    ScanOfService()
    {
        service_.setMinFileSize(usualMinimum);
        QObject::connect(&service_, &DuplicateService::isScanningChanged, &service_, [this] {
            if (!service_.isScanning())
                QCoreApplication::quit();
        });
    }

    /// The scan as the Duplicate Finder shows it: the service tells each folder, the screen model takes it on, and the text
    /// is read anew at each of its changes, as the window does.
    void runForAView()
    {
        DuplicateFinderView view(platform_.platform(), service_, platform_.fileSystem(), platform_.access());
        size_t reads = 0;
        QObject::connect(&view, &DuplicateFinderView::progressChanged, &view,
                         [&view, &reads] { reads += view.currentPathText().isEmpty() ? 0 : 1; });
        service_.scan();
        QCoreApplication::exec();
        require(!service_.groups().empty() && reads > 0, "the scan told nothing of its way");
    }

    /// The same work with nobody to tell anything.
    void runForNobody()
    {
        const duplicatescan::Request request{
            service_.scanPaths(), service_.ignorePaths(), service_.minFileSize(), {}};
        size_t groups = 0;
        platform_.platform().workQueue.post(WorkPriority::userInitiated, [&] {
            groups = duplicatescan::run(request, {[] { return false; }, [](const QString &) {}, [] {},
                                                  [](size_t, size_t) {}})
                         .groups.size();
            platform_.platform().mainQueue.post([] { QCoreApplication::quit(); });
        });
        QCoreApplication::exec();
        require(groups > 0, "the scan did not run as it was to");
    }

private:
    std::optional<HistoryService> history_; // a scan records nothing, so no log is made in the home folder
    DriverPlatform platform_{Arguments({"dup"}, {}), paths::fromBytes(largeHome().path())};
    DuplicateService service_{platform_.platform(), platform_.fileSystem(), platform_.access(),
                              [this]() -> HistoryService & {
                                  return history_ ? *history_ : history_.emplace(platform_.platform());
                              }};
};

void publishing()
{
    int count = 0;
    const QCoreApplication application(count, nullptr);
    ScanOfService scan;
    const auto comparison = measurement::compareCosts(
        [&scan] { return measurement::Cost{measurement::processTime([&scan] { scan.runForAView(); })}; },
        [&scan] { return measurement::Cost{measurement::processTime([&scan] { scan.runForNobody(); })}; },
        silentScans);
    measurement::printRatio("dup-path", comparison.cpu, mostOfSilentScan, "ms",
                            "the same scan telling nobody");
}

} // namespace

std::vector<Benchmark> benchmarks::ofDuplicates()
{
    return {
        {"dup-100k", "a duplicate scan of 100,000 files from 100 KB on, against other programs, in two homes",
         usualScan},
        {"dup-1k", "the same from 1 KB on", readingScan},
        {"dup-memory", "memory of a duplicate scan by the number of files", memory},
        {"dup-path", "a duplicate scan that the screen follows against one that nobody does", publishing},
        {"dup-cold", "dup-100k and dup-1k against jdupes with nothing of the disk in memory", coldScan},
    };
}
