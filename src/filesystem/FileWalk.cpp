#include "filesystem/FileWalk.h"

#include "base/Paths.h"
#include "filesystem/Packages.h"

#include <optional>
#include <utility>
#include <vector>

namespace {

/// How many folders of a path are open at once; those below are read to their end ahead of what they hold, since a process
/// may open a limited number of files.
constexpr int mostOpen = 64;

/// None for an entry that has just gone.
std::optional<files::Kind> kindOf(const files::DirectoryReader &entry)
{
    if (const auto listed = entry.listedKind())
        return listed;
    const auto extent = entry.extent();
    return extent ? std::optional(extent->kind) : std::nullopt;
}

bool walk(const QString &folder, int depth, const filewalk::Visit &visit);

/// Visits the entries of one folder. Folders deep down are put into `later`. False ends the walk.
bool visitEntries(const QString &folder, int depth, const filewalk::Visit &visit, std::vector<QString> &later)
{
    files::DirectoryReader entry(folder);
    while (entry.next()) {
        const auto kind = kindOf(entry);
        if (kind == files::Kind::file && !visit(folder, entry))
            return false;
        if (kind != files::Kind::directory || packages::isPackage(entry.name()))
            continue;
        QString inner = paths::join(folder, paths::fromBytes(entry.name()));
        if (depth >= mostOpen)
            later.push_back(std::move(inner));
        else if (!walk(inner, depth + 1, visit))
            return false;
    }
    return true;
}

/// False ends the walk.
bool walk(const QString &folder, int depth, const filewalk::Visit &visit)
{
    std::vector<QString> later;
    if (!visitEntries(folder, depth, visit, later))
        return false;
    for (const QString &inner : later) {
        if (!walk(inner, depth + 1, visit))
            return false;
    }
    return true;
}

} // namespace

namespace filewalk {

void overFiles(const QString &root, const Visit &visit)
{
    const auto attributes = files::attributes(root);
    if (attributes && attributes->isDirectory())
        walk(root, 0, visit);
}

} // namespace filewalk
