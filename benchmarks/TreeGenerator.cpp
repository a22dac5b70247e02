#include "TreeGenerator.h"

#include "TreeParts.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr std::array endings = {"jpg", "pdf", "txt", "cpp", "json", "zip", "mp4", "log"};

} // namespace

void generateTree(const std::string &folder, const TreeShape &shape)
{
    treeparts::Random random(shape.seed);
    const std::vector<std::string> folders = treeparts::makeFolders(folder, shape, random);
    std::lognormal_distribution<double> sizes(std::log(shape.medianSize), shape.spread);
    const std::string written(static_cast<size_t>(shape.mostWritten), 'q');
    for (int number = 0; number < shape.files; ++number) {
        const std::string &parent = folders[treeparts::below(random, folders.size())];
        const char *dot = shape.hiddenEvery > 0 && number % shape.hiddenEvery == 0 ? "." : "";
        const char *ending = endings[treeparts::below(random, endings.size())];
        const std::string path = parent + "/" + dot + "file " + std::to_string(number) + "." + ending;
        const auto size = static_cast<std::int64_t>(std::min(sizes(random), 1e12));
        const auto length = size > shape.mostWritten ? 0 : static_cast<size_t>(size);
        treeparts::makeFile(path, std::string_view(written).substr(0, length), size);
    }
}
