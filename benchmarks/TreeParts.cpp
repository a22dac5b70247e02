#include "TreeParts.h"

#include <algorithm>
#include <cerrno>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

struct Folder
{
    std::string path;
    int level = 0;
    int deepest = 0; ///< the level that its branch reaches
};

void requireCall(bool done, const std::string &path)
{
    if (!done)
        throw std::system_error(errno, std::generic_category(), path);
}

} // namespace

namespace treeparts {

size_t below(Random &random, size_t end)
{
    return static_cast<size_t>(random() % end);
}

std::vector<std::string> makeFolders(const std::string &root, const TreeShape &shape, Random &random)
{
    const auto wanted = static_cast<size_t>(std::max(1, shape.files / std::max(1, shape.filesPerFolder)));
    const auto branchDepths =
        static_cast<size_t>(shape.deepestBranch) - static_cast<size_t>(shape.shallowestBranch) + 1;
    std::vector<Folder> folders = {{root, 0, shape.deepestBranch}};
    std::vector<size_t> open; // those that may get a folder, by index; the root as long as it lacks some
    while (folders.size() < wanted) {
        const bool isTop = folders.size() <= static_cast<size_t>(shape.topFolders) || open.empty();
        const Folder parent = isTop ? folders.front() : folders[open[below(random, open.size())]];
        const int deepest =
            isTop ? shape.shallowestBranch + static_cast<int>(below(random, branchDepths)) : parent.deepest;
        const Folder made = {parent.path + "/folder " + std::to_string(folders.size()), parent.level + 1,
                             deepest};
        makeFolder(made.path);
        if (made.level < made.deepest)
            open.push_back(folders.size());
        folders.push_back(made);
    }
    std::vector<std::string> paths;
    paths.reserve(folders.size());
    for (Folder &folder : folders)
        paths.push_back(std::move(folder.path));
    return paths;
}

void makeFolder(const std::string &path)
{
    requireCall(mkdir(path.c_str(), 0777) == 0, path);
}

void makeLink(const std::string &path, const std::string &file)
{
    requireCall(link(file.c_str(), path.c_str()) == 0, path);
}

void makeFile(const std::string &path, std::string_view content, std::int64_t size)
{
    const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    requireCall(file != -1, path);
    bool done = true;
    for (std::string_view left = content; done && !left.empty();) {
        const ssize_t count = write(file, left.data(), left.size());
        done = count > 0;
        left.remove_prefix(static_cast<size_t>(std::max<ssize_t>(count, 0)));
    }
    if (done && size > static_cast<std::int64_t>(content.size()))
        done = ftruncate(file, size) == 0;
    const int code = errno;
    close(file);
    errno = code;
    requireCall(done, path);
}

} // namespace treeparts
