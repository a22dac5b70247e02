#include "apps/catalogue/AppCatalogue.h"
#include "BareLoops.h"
#include "base/Paths.h"
#include "Benchmarks.h"
#include "DriverPlatform.h"
#include "Measurement.h"
#include "TemporaryFolder.h"
#include "TreeGenerator.h"
#include "TreeParts.h"

#include <filesystem>
#include <stdexcept>

namespace {

constexpr int bundleCount = 200;
constexpr double mostCatalogueOverhead = 1.05;
constexpr double perBundle = 0.002; // seconds that reading a bundle may take besides

std::string identifierOf(int number)
{
    return "com.example.app" + std::to_string(number);
}

/// A property list of some twenty kilobytes, as an application with many kinds of documents has it.
std::string descriptionOf(int number)
{
    std::string list = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">\n<dict>\n"
                       "<key>CFBundleDocumentTypes</key><array>\n";
    for (int type = 0; type < 100; ++type)
        list += "<dict><key>CFBundleTypeName</key><string>Document of kind " + std::to_string(type)
                + "</string><key>CFBundleTypeExtensions</key><array><string>doc" + std::to_string(type)
                + "</string></array><key>LSTypeIsPackage</key><false/></dict>\n";
    return list + "</array>\n<key>CFBundleName</key><string>App " + std::to_string(number)
           + "</string>\n<key>CFBundleShortVersionString</key><string>1.0</string>\n<key>CFBundleIdentifier</"
             "key>"
             "<string>"
           + identifierOf(number) + "</string>\n</dict>\n</plist>\n";
}

/// Bundles with 60 files each; every other one has a cache, one in five a container.
void makeHome(const std::string &home, const std::string &applications)
{
    for (int number = 0; number < bundleCount; ++number) {
        const std::string contents = applications + "/App " + std::to_string(number) + ".app/Contents";
        std::filesystem::create_directories(contents + "/Resources");
        generateTree(contents + "/Resources", {.files = 60, .seed = static_cast<std::uint64_t>(number)});
        treeparts::makeFile(contents + "/Info.plist", descriptionOf(number), 0);
        for (const auto &[every, folder] :
             {std::pair(2, "/Library/Caches/"), std::pair(5, "/Library/Containers/")}) {
            const std::string place = home + folder + identifierOf(number);
            if (number % every != 0)
                continue;
            std::filesystem::create_directories(place);
            treeparts::makeFile(place + "/data", std::string(8192, 'x'), 0);
        }
    }
}

/// What the catalogue measured, by paths.
std::vector<std::string> probedPaths(const std::vector<RealInstalledApp> &apps)
{
    std::vector<std::string> probed;
    for (const RealInstalledApp &app : apps) {
        probed.push_back(paths::toBytes(app.path).toStdString());
        for (const AssociatedFile &file : app.associatedFiles)
            probed.push_back(paths::toBytes(file.path).toStdString());
    }
    return probed;
}

std::int64_t sizeOf(const std::vector<RealInstalledApp> &apps)
{
    std::int64_t size = 0;
    for (const RealInstalledApp &app : apps)
        size += app.totalSize();
    return size;
}

/// Wall seconds over `work`.
double timeOf(const std::function<void()> &work)
{
    const double start = measurement::now();
    work();
    return measurement::now() - start;
}

void listApps()
{
    const TemporaryFolder temporary;
    const std::string applications = temporary.folder("Applications");
    makeHome(temporary.path(), applications);
    const Locations locations =
        macLocations(paths::fromBytes(temporary.path()), paths::fromBytes(applications));
    DriverPlatform platform;
    std::vector<RealInstalledApp> apps;
    std::int64_t bareSize = 0;
    const auto ours = [&] {
        apps = appcatalogue::build(locations, platform.sizeProbes(), [] { return false; });
    };
    ours();
    const std::vector<std::string> probed = probedPaths(apps);
    const auto bare = [&] {
        bareSize = 0;
        for (const std::string &path : probed)
            bareSize += bareloops::probe(path);
    };
    const auto comparison = measurement::compare([&] { return timeOf(ours); }, [&] { return timeOf(bare); });
    if (apps.size() != bundleCount || sizeOf(apps) != bareSize)
        throw std::runtime_error("the two sides found different things");
    measurement::printRatio("apps-list", comparison,
                            mostCatalogueOverhead + bundleCount * perBundle / comparison.peers, "ms",
                            "its du runs, wall");
}

} // namespace

std::vector<Benchmark> benchmarks::ofApps()
{
    return {
        {"apps-list",
         "the list of 200 installed applications with their files against the du runs that it makes",
         listApps},
    };
}
