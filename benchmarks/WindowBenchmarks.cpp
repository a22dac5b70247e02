#include "Benchmarks.h"
#include "Measurement.h"
#include "TemporaryFolder.h"
#include "TreeGenerator.h"
#include "WindowProcess.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdlib>
#include <map>
#include <stdexcept>
#include <thread>

namespace {

constexpr double mostStart = 2.5;       // times the empty window
constexpr double longestTurn = 4;       // milliseconds
constexpr double longestCancel = 100;   // milliseconds
constexpr double mostWindowMemory = 50; // MiB above the empty window
constexpr int manyEntries = 200000;
constexpr size_t runs = 5;

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

/// The cost of a start that ends at the first frame.
measurement::Cost start(const std::string &program, WindowProcess::Environment environment)
{
    environment["QT_QPA_GENERIC_PLUGINS"] = "firstframe:exit";
    WindowProcess process({program}, environment);
    process.awaitReady();
    return process.finish();
}

void startToFirstFrame()
{
    const TemporaryFolder folder;
    const auto environment = WindowProcess::environment(folder.folder("home"), folder.folder("runtime"));
    const auto comparison =
        measurement::compareCosts([&environment] { return start(QUILLMERE_PROGRAM, environment); },
                                  [&environment] { return start(EMPTY_WINDOW_PROGRAM, environment); });
    measurement::printRatio("start-cpu", comparison.cpu, mostStart, "ms", "empty window");
    measurement::printRatio("start-wall", comparison.wall, mostStart, "ms", "empty window");
}

/// How a window is drawn, by the variables that say so.
struct Drawing
{
    std::string name;
    WindowProcess::Environment variables;
};

/// As the program chooses by itself, and with OpenGL computed by the processor, which is what a machine without a render
/// node has else.
const std::vector<Drawing> &drawings()
{
    static const std::vector<Drawing> both = {
        {"own", {{"QT_QUICK_BACKEND", ""}}},
        {"opengl", {{"QT_QUICK_BACKEND", ""}, {"QSG_RHI_BACKEND", "opengl"}, {"LIBGL_ALWAYS_SOFTWARE", "1"}}},
    };
    return both;
}

/// Resident memory of the program at its first frame, in MiB.
double memoryAtFirstFrame(WindowProcess::Environment environment)
{
    environment["QT_QPA_GENERIC_PLUGINS"] = "firstframe";
    WindowProcess process({QUILLMERE_PROGRAM}, environment);
    process.awaitReady();
    return process.memory().resident;
}

/// On the display at hand, since without one there is no OpenGL.
void startByDrawing()
{
    const char *display = getenv("DISPLAY"); // NOLINT(concurrency-mt-unsafe): no other thread runs
    if (!display) {
        measurement::printSkipped("render", "there is no display (xvfb-run gives one)");
        return;
    }
    const TemporaryFolder folder;
    auto environment = WindowProcess::environment(folder.folder("home"), folder.folder("runtime"));
    environment["DISPLAY"] = display;
    environment["QT_QPA_PLATFORM"] = "xcb";
    for (const Drawing &drawing : drawings()) {
        auto drawn = drawing.variables;
        drawn.insert(environment.begin(), environment.end());
        std::vector<double> wall;
        const double cpu = measurement::median([&] {
            const measurement::Cost cost = start(QUILLMERE_PROGRAM, drawn);
            wall.push_back(cost.wall);
            return cost.cpu;
        });
        wall.erase(wall.begin()); // the one that is not counted
        const double resident = measurement::median([&drawn] { return memoryAtFirstFrame(drawn); });
        measurement::printFigure("render-" + drawing.name, median(wall) * 1e3, "ms",
                                 "to the first frame; CPU " + std::to_string(std::lround(cpu * 1e3))
                                     + " ms; resident " + std::to_string(std::lround(resident)) + " MiB");
    }
}

/// The home folder with many files, made at its first use and kept for all benchmarks of a run.
const std::string &crowdedHome()
{
    static const TemporaryFolder folder;
    static const std::string home = [] {
        std::string path = folder.folder("home");
        generateTree(path, {.files = manyEntries});
        return path;
    }();
    return home;
}

/// The values behind the names in the lines "name value".
std::map<std::string, double> values(const std::vector<std::string> &lines)
{
    std::map<std::string, double> result;
    for (const std::string &line : lines) {
        const size_t space = line.find(' ');
        if (space != std::string::npos)
            result[line.substr(0, space)] = std::stod(line.substr(space));
    }
    return result;
}

void mainLoop()
{
    const TemporaryFolder runtime;
    const auto environment = WindowProcess::environment(crowdedHome(), runtime.path());
    std::map<std::string, std::vector<double>> figures;
    for (size_t i = 0; i <= runs; ++i) {
        WindowProcess process({SCAN_WINDOW_PROGRAM}, environment);
        for (const auto &[name, value] : values(process.awaitReady())) {
            if (i > 0)
                figures[name].push_back(value * 1000);
        }
    }
    measurement::printFigure("scan-turn", median(figures.at("turn")), longestTurn, "ms",
                             "CPU time of our blocks in the longest turn, 200,000 files");
    measurement::printFigure("scan-cancel", median(figures.at("cancel")), longestCancel, "ms",
                             "from a cancel to the frame that shows it");
    measurement::printFigure("scan-children", median(figures.at("childless")), longestCancel, "ms",
                             "from a cancel to the last child process's end");
}

/// Waits until the window is at rest, then asks.
WindowProcess::Memory restingMemory(WindowProcess &process)
{
    process.awaitReady();
    std::this_thread::sleep_for(std::chrono::seconds(1));
    return process.memory();
}

void windowMemory()
{
    const TemporaryFolder runtime;
    const auto environment = WindowProcess::environment(crowdedHome(), runtime.path());
    auto emptyEnvironment = environment;
    emptyEnvironment["QT_QPA_GENERIC_PLUGINS"] = "firstframe";
    std::vector<double> resident;
    std::vector<double> own;
    double lastEmpty = 0;
    for (size_t i = 0; i < runs; ++i) {
        WindowProcess ours({SCAN_WINDOW_PROGRAM, "--scan-only"}, environment);
        WindowProcess empty({EMPTY_WINDOW_PROGRAM}, emptyEnvironment);
        const auto ourMemory = restingMemory(ours);
        const auto emptyMemory = restingMemory(empty);
        resident.push_back(ourMemory.resident - emptyMemory.resident);
        own.push_back(ourMemory.own - emptyMemory.own);
        lastEmpty = emptyMemory.resident;
    }
    const std::string note = "resident, above the empty window's "
                             + std::to_string(static_cast<int>(lastEmpty))
                             + " MiB; of it shared with no other process "
                             + std::to_string(static_cast<int>(median(own))) + " MiB";
    measurement::printFigure("memory", median(resident), mostWindowMemory, "MiB", note);
}

} // namespace

std::vector<Benchmark> benchmarks::ofWindow()
{
    return {
        {"start", "start to the first painted frame against an empty window", startToFirstFrame},
        {"render", "start and memory by how the window is drawn; needs a display", startByDrawing},
        {"main-loop", "our handlers during a scan of 200,000 files, and its cancel", mainLoop},
        {"memory", "memory on the Disk Analyzer with 200,000 files against an empty window", windowMemory},
    };
}
