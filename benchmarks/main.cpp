// quillmere-benchmarks: prints how the program's costs stand to those of a peer in the same run.

#include "Benchmarks.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <exception>

namespace {

std::vector<Benchmark> allBenchmarks()
{
    std::vector<Benchmark> all;
    for (const auto &group : benchmarks::groups) {
        const std::vector<Benchmark> found = group();
        all.insert(all.end(), found.begin(), found.end());
    }
    return all;
}

void printHelp(const std::vector<Benchmark> &all)
{
    puts("Usage: quillmere-benchmarks [NAME...]; without a name, all of them:\n");
    for (const Benchmark &benchmark : all)
        printf("  %-10s %s\n", benchmark.name.c_str(), benchmark.summary.c_str());
}

} // namespace

int main(int argc, char *argv[])
{
    const std::vector<Benchmark> all = allBenchmarks();
    const std::vector<std::string> names(argv + std::min(argc, 1), argv + argc);
    if (std::find(names.begin(), names.end(), "--help") != names.end()) {
        printHelp(all);
        return EXIT_SUCCESS;
    }
    for (const std::string &name : names) {
        if (std::none_of(all.begin(), all.end(),
                         [&name](const Benchmark &known) { return known.name == name; })) {
            fprintf(stderr, "There is no benchmark \"%s\"; --help lists them.\n", name.c_str());
            return 2;
        }
    }
    int status = EXIT_SUCCESS;
    for (const Benchmark &benchmark : all) {
        if (!names.empty() && std::find(names.begin(), names.end(), benchmark.name) == names.end())
            continue;
        try {
            benchmark.run();
        } catch (const std::exception &error) {
            fprintf(stderr, "%s: %s\n", benchmark.name.c_str(), error.what());
            status = EXIT_FAILURE;
        }
    }
    return status;
}
