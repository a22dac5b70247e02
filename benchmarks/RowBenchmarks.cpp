#include "Benchmarks.h"
#include "Measurement.h"
#include "TemporaryFolder.h"
#include "WindowProcess.h"

#include <algorithm>
#include <fstream>
#include <map>

namespace {

constexpr int groups = 5000;
constexpr int copies = 3;
constexpr int rows = groups * (copies + 1); // each group with its head
constexpr double mostRow = 3;               // milliseconds
constexpr double mostNotch = 5;             // milliseconds
constexpr double mostIdle = 1;              // milliseconds a second
constexpr size_t rowRuns = 5;

double medianOfRows(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

/// A file of that size whose content its size decides.
void writeFile(const std::string &path, int size)
{
    std::ofstream(path) << std::string(static_cast<size_t>(size), 'q');
}

/// Fills a home folder with equal files, those of each group of a size of their own.
void fillHome(const std::string &home)
{
    for (int group = 0; group < groups; ++group) {
        for (int copy = 0; copy < copies; ++copy)
            writeFile(home + "/Holiday pictures " + std::to_string(group) + " (copy " + std::to_string(copy)
                          + ").jpg",
                      2048 + group);
    }
}

void walk()
{
    const TemporaryFolder folder;
    const auto environment = WindowProcess::environment(folder.folder("home"), folder.folder("runtime"));
    fillHome(environment.at("HOME"));
    std::map<std::string, std::vector<double>> figures;
    for (size_t run = 0; run <= rowRuns; ++run) {
        WindowProcess process({ROWS_WINDOW_PROGRAM, std::to_string(rows)}, environment);
        for (const std::string &line : process.awaitReady()) {
            const size_t space = line.find(' ');
            if (run > 0 && space != std::string::npos)
                figures[line.substr(0, space)].push_back(std::stod(line.substr(space)) * 1e3);
        }
    }
    measurement::printFigure("rows-key", medianOfRows(figures.at("row")), mostRow, "ms",
                             "CPU time of the process for each row that a held Down key goes on");
    measurement::printFigure("rows-wheel", medianOfRows(figures.at("notch")), mostNotch, "ms",
                             "for each notch of the wheel");
    measurement::printFigure("rows-idle", medianOfRows(figures.at("idle")), mostIdle, "ms",
                             "for each second in which nothing happens");
}

} // namespace

std::vector<Benchmark> benchmarks::ofRows()
{
    return {
        {"rows", "walking and scrolling the Duplicate Finder's list of 20,000 rows", walk},
    };
}
