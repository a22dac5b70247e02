#include "apps/screen/AppCsv.h"
#include "base/AtomicWrite.h"
#include "base/Clock.h"
#include "base/Ids.h"
#include "base/Paths.h"
#include "Benchmarks.h"
#include "common/Formatters.h"
#include "Measurement.h"
#include "TemporaryFolder.h"

#include <array>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace {

constexpr int appCount = 5000;
constexpr double mostOfLoop = 3;

/// What stands in one line, as the bare loop is handed it.
struct Line
{
    std::array<std::string, 3> texts; // name, version, identifier
    std::array<long long, 6> sizes;
    std::string lastUsed;
    std::string path;
};

std::vector<RealInstalledApp> installedApps(Date now)
{
    std::vector<RealInstalledApp> apps;
    for (int number = 0; number < appCount; ++number) {
        RealInstalledApp app;
        app.id = ids::fresh();
        app.name = QStringLiteral("Über Application %1").arg(number);
        app.version = QStringLiteral("%1.%2.1").arg(number % 20).arg(number % 7);
        app.bundleID = QStringLiteral("com.example.application%1").arg(number);
        app.path = QStringLiteral("/Applications/Utilities/Über Application %1.app").arg(number);
        app.size = 1000000LL * (number + 1);
        app.cacheSize = 4096LL * number;
        app.supportSize = 777LL * number;
        app.lastUsed = now - std::chrono::hours(number * 37 % 40000);
        apps.push_back(app);
    }
    return apps;
}

std::vector<Line> linesOf(const std::vector<RealInstalledApp> &apps, Date now)
{
    std::vector<Line> lines;
    lines.reserve(apps.size());
    for (const RealInstalledApp &app : apps)
        lines.push_back({{app.name.toStdString(), app.version.toStdString(), app.bundleID.toStdString()},
                         {app.size, app.cacheSize, app.supportSize, app.preferencesSize, app.containerSize,
                          app.totalSize()},
                         relativeDayText(app.lastUsed, now).toStdString(),
                         app.path.toStdString()});
    return lines;
}

/// Writes the same bytes from texts that are there: nothing is quoted, no calendar asked.
void writeBare(const std::string &path, const std::string &header, const std::vector<Line> &lines)
{
    FILE *file = fopen(path.c_str(), "w");
    if (!file)
        throw std::runtime_error("no file for the bare loop");
    fputs(header.c_str(), file);
    for (const Line &line : lines) {
        fprintf(file, "%s,%s,%s,", line.texts[0].c_str(), line.texts[1].c_str(), line.texts[2].c_str());
        for (const long long size : line.sizes)
            fprintf(file, "%lld,", size);
        fprintf(file, "%s,%s\n", line.lastUsed.c_str(), line.path.c_str());
    }
    if (fclose(file) != 0)
        throw std::runtime_error("the bare loop could not write");
}

std::string contentOf(const std::string &path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// The file of 5,000 applications against a bare loop that writes the same bytes.
void exportApps()
{
    const TemporaryFolder folder;
    const Date now = SystemClock().now();
    const std::vector<RealInstalledApp> apps = installedApps(now);
    const std::vector<Line> lines = linesOf(apps, now);
    const std::string header = appcsv::ofInstalled({}, now).toStdString();
    const std::string oursPath = folder.path() + "/ours.csv";
    const std::string barePath = folder.path() + "/bare.csv";
    const auto ours = [&] {
        files::writeAtomically(paths::fromBytes(oursPath), appcsv::ofInstalled(apps, now));
    };
    const auto bare = [&] { writeBare(barePath, header, lines); };
    const auto comparison = measurement::compare([&] { return measurement::threadTime(ours); },
                                                 [&] { return measurement::threadTime(bare); });
    if (contentOf(oursPath) != contentOf(barePath) || contentOf(oursPath).size() <= header.size())
        throw std::runtime_error("the two files differ");
    measurement::printRatio("apps-export", comparison, mostOfLoop, "ms",
                            "a bare loop that writes the same bytes");
}

} // namespace

std::vector<Benchmark> benchmarks::ofExports()
{
    return {{"apps-export",
             "the export of 5,000 installed applications against a bare loop that writes the same bytes",
             exportApps}};
}
