// The measuring loops of DiskService. They run on a worker, one probe after the other, and have no cancel of their
// own: a cancel ends the probe at work, whose row then counts 0, and the loop goes on.

#include "base/Files.h"
#include "base/Paths.h"
#include "disk/DiskService.h"
#include "filesystem/SizeProbes.h"

#include <algorithm>

namespace {

constexpr qint64 smallestLargeDirectory = 10000001; // bytes: more than 10 million
constexpr size_t mostLargeDirectories = 8;
constexpr size_t mostDrillChildren = 10;

/// The largest ones, largest first; equal ones keep their order.
std::vector<LargeDirectory> largest(std::vector<LargeDirectory> entries, size_t most)
{
    std::stable_sort(
        entries.begin(), entries.end(),
        [](const LargeDirectory &left, const LargeDirectory &right) { return left.size > right.size; });
    if (entries.size() > most)
        entries.resize(most);
    return entries;
}

/// The names directly in a folder that do not begin with a dot; none when it can't be listed.
std::vector<QString> plainNames(const QString &folder)
{
    std::vector<QString> names = files::list(folder).value_or(std::vector<QString>());
    std::erase_if(names, [](const QString &name) { return name.startsWith(u'.'); });
    return names;
}

} // namespace

std::vector<StorageCategory> DiskService::computeStorageCategories()
{
    std::vector<StorageCategory> categories;
    for (const Locations::StorageRow &row : platform_.locations->storageRows) {
        qint64 size = 0;
        for (const QString &place : row.places) {
            // Only a probe that talks nonsense leads beyond 64 bits, and nonsense counts 0.
            qint64 sum = 0;
            if (!__builtin_add_overflow(size, probes_.probeSize(place, ProbeContext::storage), &sum))
                size = sum;
        }
        categories.push_back({QUuid::createUuid(), row.name, size, row.color, row.icon, {}});
    }
    return categories;
}

std::vector<LargeDirectory> DiskService::computeLargestDirectories()
{
    std::vector<LargeDirectory> entries;
    for (const QString &root : platform_.locations->largestDirectoryRoots) {
        for (const QString &name : plainNames(root)) {
            const QString path = paths::join(root, name);
            // A root inside another one (a user may arrange the folders so) is measured through its own children.
            if (platform_.locations->largestDirectoryRoots.contains(path) || !files::exists(path))
                continue;
            // Whether it is a folder is not asked: a large plain file competes with the folders.
            const qint64 size = probes_.probeSize(path, ProbeContext::largestDirs);
            if (size >= smallestLargeDirectory)
                entries.push_back({QUuid::createUuid(), name, path, size});
        }
    }
    return largest(std::move(entries), mostLargeDirectories);
}

std::vector<LargeDirectory> DiskService::drillChildren(const QString &path)
{
    std::vector<LargeDirectory> entries;
    for (const QString &name : plainNames(path)) {
        const QString child = paths::join(path, name);
        const qint64 size = probes_.probeSize(child, ProbeContext::generic);
        if (size >= 1)
            entries.push_back({QUuid::createUuid(), name, child, size});
    }
    return largest(std::move(entries), mostDrillChildren);
}
