#include "Measurement.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <ctime>
#include <vector>

#include <sys/resource.h>

namespace {

constexpr size_t usualRuns = 5;

double processSeconds()
{
    double sum = 0;
    for (const auto who : {RUSAGE_SELF, RUSAGE_CHILDREN}) {
        rusage usage{};
        getrusage(who, &usage);
        sum += measurement::seconds(usage.ru_utime) + measurement::seconds(usage.ru_stime);
    }
    return sum;
}

double secondsOf(clockid_t clock)
{
    timespec time{};
    clock_gettime(clock, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

double threadSeconds()
{
    return secondsOf(CLOCK_THREAD_CPUTIME_ID);
}

double medianOf(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

double inUnit(double figure, const std::string &unit)
{
    if (unit == "ms")
        return figure * 1e3;
    return unit == "us" ? figure * 1e6 : figure;
}

const char *verdict(double figure, double target)
{
    return figure <= target ? "kept" : "MISSED";
}

} // namespace

namespace measurement {

Comparison compare(const Run &ours, const Run &peers)
{
    ours();
    peers();
    std::vector<double> oursValues;
    std::vector<double> peersValues;
    for (size_t i = 0; i < usualRuns; ++i) {
        oursValues.push_back(ours());
        peersValues.push_back(peers());
    }
    return {medianOf(oursValues), medianOf(peersValues)};
}

CostComparison compareCosts(const CostlyRun &ours, const CostlyRun &peers, size_t runs)
{
    std::array<std::vector<double>, 4> figures; // CPU and wall time of ours, then of the peer's
    for (size_t i = 0; i <= runs; ++i) {
        const Cost ourCost = ours();
        const Cost peersCost = peers();
        if (i == 0)
            continue;
        figures[0].push_back(ourCost.cpu);
        figures[1].push_back(ourCost.wall);
        figures[2].push_back(peersCost.cpu);
        figures[3].push_back(peersCost.wall);
    }
    return {{medianOf(figures[0]), medianOf(figures[2])}, {medianOf(figures[1]), medianOf(figures[3])}};
}

double median(const Run &run)
{
    run();
    std::vector<double> values(usualRuns);
    for (double &value : values)
        value = run();
    return medianOf(values);
}

double now()
{
    return secondsOf(CLOCK_MONOTONIC);
}

double seconds(const timeval &time)
{
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
}

double processTime(const std::function<void()> &work)
{
    const double start = processSeconds();
    work();
    return processSeconds() - start;
}

double threadTime(const std::function<void()> &work)
{
    const double start = threadSeconds();
    work();
    return threadSeconds() - start;
}

void printRatio(const std::string &name, const Comparison &comparison, double target, const std::string &unit,
                const std::string &peersName)
{
    printf("%-14s %8.3f times  target %6.2f  %-6s  ours %.3f %s, %s %.3f %s\n", name.c_str(),
           comparison.ratio(), target, verdict(comparison.ratio(), target), inUnit(comparison.ours, unit),
           unit.c_str(), peersName.c_str(), inUnit(comparison.peers, unit), unit.c_str());
    fflush(stdout);
}

void printFigure(const std::string &name, double figure, double target, const std::string &unit,
                 const std::string &note)
{
    printf("%-14s %8.3f %-5s  target %6.2f  %-6s  %s\n", name.c_str(), figure, unit.c_str(), target,
           verdict(figure, target), note.c_str());
    fflush(stdout);
}

void printFigure(const std::string &name, double figure, const std::string &unit, const std::string &note)
{
    printf("%-14s %8.3f %-5s  %s\n", name.c_str(), figure, unit.c_str(), note.c_str());
    fflush(stdout);
}

void printSkipped(const std::string &name, const std::string &reason)
{
    printf("%-14s skipped: %s\n", name.c_str(), reason.c_str());
    fflush(stdout);
}

} // namespace measurement
