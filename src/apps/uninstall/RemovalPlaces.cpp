#include "apps/uninstall/RemovalPlaces.h"

#include "base/Files.h"
#include "base/Paths.h"

#include <algorithm>
#include <cerrno>

namespace {

bool isPlain(const QString &path)
{
    // The file system's calls read a name up to the first NUL.
    return path.startsWith(u'/') && paths::standardized(path) == path && !path.contains(QChar(0));
}

/// True for a path that names one entry directly inside the folder.
bool isIn(const QString &folder, const QString &path)
{
    return !folder.isEmpty() && path != u"/" && paths::parent(path) == paths::standardized(folder);
}

} // namespace

namespace removalplaces {

bool isForBundles(const QString &path, const Locations &locations)
{
    return isPlain(path) && path.endsWith(QStringLiteral(".app"))
           && std::any_of(locations.applicationsFolders.begin(), locations.applicationsFolders.end(),
                          [&path](const QString &folder) {
                              return isIn(folder, path) || isIn(folder, paths::parent(path));
                          });
}

bool leadsOutOfThoseForBundles(const QString &path, const Locations &locations)
{
    const auto folder = files::realPath(paths::parent(path));
    if (!folder)
        return errno != ENOENT && errno != ENOTDIR;
    return std::none_of(locations.applicationsFolders.begin(), locations.applicationsFolders.end(),
                        [&folder](const QString &applications) {
                            const auto real = files::realPath(applications);
                            return real && paths::isAtOrBelow(*folder, *real);
                        });
}

bool isForAssociatedFiles(const QString &path, const Locations &locations)
{
    const auto &candidates = locations.associatedFileCandidates;
    return isPlain(path)
           && std::any_of(candidates.begin(), candidates.end(),
                          [&path](const Locations::AssociatedFileCandidate &candidate) {
                              return isIn(candidate.folder, path);
                          });
}

bool isForGhosts(const QString &path, const Locations &locations)
{
    return isPlain(path)
           && (isIn(locations.ghostPreferencesFolder, path)
               || std::any_of(
                   locations.ghostFolders.begin(), locations.ghostFolders.end(),
                   [&path](const Locations::GhostFolder &folder) { return isIn(folder.folder, path); }));
}

} // namespace removalplaces
