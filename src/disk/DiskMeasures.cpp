#include "disk/DiskMeasures.h"

#include "base/Files.h"
#include "base/Paths.h"
#include "base/Sums.h"
#include "filesystem/SizeProbes.h"
#include "platform/Locations.h"

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

/// A main folder, by its path as told and by where that leads.
struct Root
{
    QString told;
    QString real;
};

/// Those that are there, each once, though two of the user's folders may be the same one.
std::vector<Root> distinctRoots(const QStringList &folders)
{
    std::vector<Root> roots;
    for (const QString &folder : folders) {
        const auto real = files::realPath(folder);
        const auto isSame = [&real](const Root &other) { return other.real == real; };
        if (real && std::none_of(roots.begin(), roots.end(), isSame))
            roots.push_back({folder, *real});
    }
    return roots;
}

/// True when a root lies at or below the entry, by the paths as told or by where they lead (a user may arrange the
/// folders so). Such an entry would count a second time what that root's own children count.
bool leadsToRoot(const QString &entry, const std::vector<Root> &roots)
{
    const QString real = files::realPath(entry).value_or(entry);
    return std::any_of(roots.begin(), roots.end(), [&](const Root &root) {
        return paths::isAtOrBelow(root.told, entry) || paths::isAtOrBelow(root.real, real);
    });
}

} // namespace

namespace diskmeasures {

std::vector<StorageCategory> storageCategories(const Locations &locations, SizeProbes &probes)
{
    std::vector<StorageCategory> categories;
    for (const Locations::StorageRow &row : locations.storageRows) {
        qint64 size = 0;
        for (const QString &place : row.places)
            size = sums::saturated(size, probes.probeSize(place, ProbeContext::storage));
        categories.push_back({QUuid::createUuid(), row.name, size, row.color, row.icon, {}});
    }
    return categories;
}

std::vector<LargeDirectory> largestDirectories(const Locations &locations, SizeProbes &probes)
{
    std::vector<LargeDirectory> entries;
    const std::vector<Root> roots = distinctRoots(locations.largestDirectoryRoots);
    for (const Root &root : roots) {
        for (const QString &name : plainNames(root.told)) {
            const QString path = paths::join(root.told, name);
            if (!files::exists(path) || leadsToRoot(path, roots))
                continue;
            // Whether it is a folder is not asked: a large plain file competes with the folders.
            const qint64 size = probes.probeSize(path, ProbeContext::largestDirs);
            if (size >= smallestLargeDirectory)
                entries.push_back({QUuid::createUuid(), name, path, size});
        }
    }
    return largest(std::move(entries), mostLargeDirectories);
}

std::vector<LargeDirectory> drillChildren(const QString &path, SizeProbes &probes)
{
    std::vector<LargeDirectory> entries;
    for (const QString &name : plainNames(path)) {
        const QString child = paths::join(path, name);
        const qint64 size = probes.probeSize(child, ProbeContext::generic);
        if (size >= 1)
            entries.push_back({QUuid::createUuid(), name, child, size});
    }
    return largest(std::move(entries), mostDrillChildren);
}

} // namespace diskmeasures
