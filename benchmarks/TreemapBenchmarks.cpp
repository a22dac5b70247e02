#include "disk/Treemap.h"

#include "Benchmarks.h"
#include "Measurement.h"

#include <random>
#include <stdexcept>

namespace {

constexpr double mostSorts = 20;
constexpr size_t entries = 30;
constexpr int rounds = 5000;

std::vector<StorageCategory> categories()
{
    std::mt19937_64 random(3);
    std::lognormal_distribution<double> sizes(18, 2);
    std::vector<StorageCategory> result;
    for (size_t i = 0; i < entries; ++i) {
        result.push_back({QUuid::createUuid(),
                          QStringLiteral("Folder %1").arg(i),
                          static_cast<qint64>(sizes(random)),
                          QStringLiteral("58a6ff"),
                          QStringLiteral("folder.fill"),
                          {}});
    }
    return result;
}

void treemap()
{
    const std::vector<StorageCategory> input = categories();
    size_t tiles = 0;
    size_t sorted = 0;
    const auto layouts = [&] {
        for (int i = 0; i < rounds; ++i)
            tiles += layoutTreemap(input, 900, 420).size();
    };
    const auto sorts = [&] {
        for (int i = 0; i < rounds; ++i)
            sorted += sortedForTreemap(input).size();
    };
    const auto comparison = measurement::compare([&] { return measurement::threadTime(layouts) / rounds; },
                                                 [&] { return measurement::threadTime(sorts) / rounds; });
    if (tiles != sorted)
        throw std::runtime_error("the map lacks entries");
    measurement::printRatio("treemap", comparison, mostSorts, "us", "one sort of the same entries");
}

} // namespace

std::vector<Benchmark> benchmarks::ofTreemap()
{
    return {{"treemap", "the map of 30 entries against one sort of them", treemap}};
}
