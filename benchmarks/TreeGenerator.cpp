#include "TreeGenerator.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cmath>
#include <random>
#include <system_error>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using Random = std::mt19937_64;

struct Folder
{
    std::string path;
    int level = 0;
    int deepest = 0; ///< the level that its branch reaches
};

constexpr int shallowestBranch = 3;
constexpr int deepestBranch = 5;
constexpr std::array endings = {"jpg", "pdf", "txt", "cpp", "json", "zip", "mp4", "log"};

void require(bool done, const std::string &path)
{
    if (!done)
        throw std::system_error(errno, std::generic_category(), path);
}

/// 0 to below `end`. Not a distribution of the library, whose results differ between libraries.
size_t below(Random &random, size_t end)
{
    return static_cast<size_t>(random() % end);
}

/// The folder itself and those made inside it.
std::vector<Folder> makeFolders(const std::string &root, const TreeShape &shape, Random &random)
{
    const auto wanted = static_cast<size_t>(std::max(1, shape.files / std::max(1, shape.filesPerFolder)));
    std::vector<Folder> folders = {{root, 0, deepestBranch}};
    std::vector<size_t> open; // those that may get a folder, by index; the root as long as it lacks some
    while (folders.size() < wanted) {
        const bool isTop = folders.size() <= static_cast<size_t>(shape.topFolders) || open.empty();
        const Folder parent = isTop ? folders.front() : folders[open[below(random, open.size())]];
        const int deepest =
            isTop ? shallowestBranch + static_cast<int>(below(random, deepestBranch - shallowestBranch + 1))
                  : parent.deepest;
        const Folder made = {parent.path + "/folder " + std::to_string(folders.size()), parent.level + 1,
                             deepest};
        require(mkdir(made.path.c_str(), 0777) == 0, made.path);
        if (made.level < made.deepest)
            open.push_back(folders.size());
        folders.push_back(made);
    }
    return folders;
}

void makeFile(const std::string &path, std::int64_t size, const TreeShape &shape)
{
    static const std::string content(1 << 16, 'q');
    const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    require(file != -1, path);
    bool done = true;
    if (size > shape.mostWritten) {
        done = ftruncate(file, size) == 0;
    } else {
        for (std::int64_t left = size; left > 0 && done;) {
            const ssize_t count =
                write(file, content.data(), std::min(static_cast<size_t>(left), content.size()));
            done = count > 0;
            left -= count;
        }
    }
    const int code = errno;
    close(file);
    errno = code;
    require(done, path);
}

} // namespace

void generateTree(const std::string &folder, const TreeShape &shape)
{
    Random random(shape.seed);
    const std::vector<Folder> folders = makeFolders(folder, shape, random);
    std::lognormal_distribution<double> sizes(std::log(shape.medianSize), shape.spread);
    for (int number = 0; number < shape.files; ++number) {
        const std::string &parent = folders[below(random, folders.size())].path;
        const char *dot = shape.hiddenEvery > 0 && number % shape.hiddenEvery == 0 ? "." : "";
        const char *ending = endings[below(random, endings.size())];
        const std::string path = parent + "/" + dot + "file " + std::to_string(number) + "." + ending;
        makeFile(path, static_cast<std::int64_t>(std::min(sizes(random), 1e12)), shape);
    }
}
