#include "Measurement.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <ctime>

#include <sys/resource.h>

namespace {

constexpr size_t runs = 5;

double seconds(const timeval &time)
{
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
}

double processSeconds()
{
    double sum = 0;
    for (const auto who : {RUSAGE_SELF, RUSAGE_CHILDREN}) {
        rusage usage{};
        getrusage(who, &usage);
        sum += seconds(usage.ru_utime) + seconds(usage.ru_stime);
    }
    return sum;
}

double threadSeconds()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

double medianOf(std::array<double, runs> values)
{
    std::sort(values.begin(), values.end());
    return values[runs / 2];
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
    std::array<double, runs> oursValues{};
    std::array<double, runs> peersValues{};
    for (size_t i = 0; i < runs; ++i) {
        oursValues[i] = ours();
        peersValues[i] = peers();
    }
    return {medianOf(oursValues), medianOf(peersValues)};
}

double median(const Run &run)
{
    run();
    std::array<double, runs> values{};
    for (double &value : values)
        value = run();
    return medianOf(values);
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

} // namespace measurement
