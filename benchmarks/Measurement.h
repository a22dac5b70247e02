#pragma once

#include <functional>
#include <string>

#include <sys/time.h>

/// How things are measured and told: medians of five, ours and a peer's in turn, so that what else the machine does
/// falls on both.
namespace measurement {

/// What one run of something costs, mostly in seconds.
using Run = std::function<double()>;

struct Comparison
{
    double ours = 0;
    double peers = 0;

    double ratio() const { return ours / peers; }
};

/// The medians of five runs each, after one of each that is not counted.
Comparison compare(const Run &ours, const Run &peers);

/// What one run of a process costs, in seconds.
struct Cost
{
    double cpu = 0; ///< of user and system
    double wall = 0;
};

using CostlyRun = std::function<Cost()>;

struct CostComparison
{
    Comparison cpu;
    Comparison wall;
};

/// The same as `compare` for both times of the same runs, with `runs` of them in place of five.
CostComparison compareCosts(const CostlyRun &ours, const CostlyRun &peers, size_t runs = 5);

/// The median of five runs, after one that is not counted.
double median(const Run &run);

/// Seconds of a clock that no one sets.
double now();

double seconds(const timeval &time);

/// CPU seconds of this process and of its children that have ended, over `work`.
double processTime(const std::function<void()> &work);

/// CPU seconds of the calling thread over `work`.
double threadTime(const std::function<void()> &work);

/// Prints a line: the name, the ratio, its target and the two figures behind it in `unit`s of a second ("s", "ms" or
/// "us").
void printRatio(const std::string &name, const Comparison &comparison, double target, const std::string &unit,
                const std::string &peersName);

/// Prints a line of a figure that stands for itself.
void printFigure(const std::string &name, double figure, double target, const std::string &unit,
                 const std::string &note);

/// The same without a target.
void printFigure(const std::string &name, double figure, const std::string &unit, const std::string &note);

/// Prints the line of what could not be measured here, and why.
void printSkipped(const std::string &name, const std::string &reason);

} // namespace measurement
