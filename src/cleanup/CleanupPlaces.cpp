#include "cleanup/CleanupPlaces.h"

#include "base/Files.h"
#include "base/Paths.h"

#include <algorithm>

namespace {

bool isFolder(const QString &path)
{
    const auto attributes = files::attributes(path);
    return attributes && attributes->isDirectory();
}

/// {parent}/{any folder}/{name}, through no link: it could lead to folders of the user's own.
QStringList matches(const Locations::PlacePattern &pattern)
{
    QStringList found;
    for (const QString &parent : pattern.parents) {
        for (const QString &any : files::list(parent).value_or(std::vector<QString>())) {
            const QString folder = paths::join(parent, any);
            for (const QString &name : pattern.names) {
                if (isFolder(folder) && isFolder(paths::join(folder, name)))
                    found.append(paths::join(folder, name));
            }
        }
    }
    found.sort(); // the file system's order may change from scan to scan
    return found;
}

bool isBelowAny(const QString &path, const QStringList &folders)
{
    return std::any_of(folders.begin(), folders.end(), [&path](const QString &folder) {
        return path != folder && paths::isAtOrBelow(path, folder);
    });
}

} // namespace

namespace cleanupplaces {

QStringList ofRow(const Locations::CleanupRow &row)
{
    QStringList places = row.places;
    if (row.onlyExistingPlaces)
        places.removeIf([](const QString &place) { return !files::exists(place); });
    for (const Locations::PlacePattern &pattern : row.patterns)
        places.append(matches(pattern));
    places.removeDuplicates();
    const QStringList all = places;
    places.removeIf([&all](const QString &place) { return isBelowAny(place, all); });
    return places;
}

bool holdsEntries(const QString &place)
{
    return isFolder(place) && files::DirectoryReader(place).next();
}

bool isLink(const QString &place)
{
    const auto attributes = files::attributes(place);
    return attributes && attributes->kind == files::Kind::link;
}

} // namespace cleanupplaces
