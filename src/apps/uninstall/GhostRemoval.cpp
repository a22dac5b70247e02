#include "apps/uninstall/GhostRemoval.h"

#include "apps/uninstall/RemovalPlaces.h"
#include "base/Error.h"
#include "base/Files.h"
#include "base/Sums.h"
#include "filesystem/FileSystemService.h"

namespace {

bool takesPart(const AssociatedFile &file)
{
    return file.selected && files::exists(file.path);
}

void move(const QString &path, const FileSystemService &fileSystem, const Locations &locations)
{
    if (!removalplaces::isForGhosts(path, locations))
        return;
    try {
        fileSystem.moveToTrash(path);
    } catch (const Error &) {
        // It stays, and the next scan finds it again.
    }
}

} // namespace

void GhostRemoval::remove(const std::vector<AssociatedFile> &files, const FileSystemService &fileSystem,
                          const Locations &locations)
{
    for (const AssociatedFile &file : files) {
        if (!takesPart(file))
            continue;
        move(file.path, fileSystem, locations);
        ++count;
        size = sums::saturated(size, file.size);
    }
}
