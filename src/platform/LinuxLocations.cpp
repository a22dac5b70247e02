#include "base/Paths.h"
#include "platform/LinuxEnvironment.h"
#include "platform/Locations.h"
#include "platform/LocationTables.h"

using namespace Qt::StringLiterals;

namespace {

struct BaseFolders
{
    QString config;
    QString data;
    QString cache;
    QString state;
};

QString withoutTrailingSlashes(QString path)
{
    while (path.size() > 1 && path.endsWith(u'/'))
        path.chop(1);
    return path;
}

/// The folder that the environment names, else the standard one below the home folder. A relative path is to
/// be ignored by the convention of these variables.
QString baseFolder(const QString &given, const QString &home, const QString &standard)
{
    return given.startsWith(u'/') ? withoutTrailingSlashes(given) : paths::join(home, standard);
}

/// Likewise for a folder in which things are cleaned by their name. One that is the home folder or contains
/// it is not believed: a folder "logs" of the user's own would be taken for rubbish.
QString cleanableFolder(const QString &given, const QString &home, const QString &standard)
{
    const QString folder = baseFolder(given, home, standard);
    return paths::isAtOrBelow(home, folder) ? paths::join(home, standard) : folder;
}

BaseFolders baseFolders(const QString &home, const LinuxEnvironment &environment)
{
    return {.config = baseFolder(environment.configHome, home, u".config"_s),
            .data = baseFolder(environment.dataHome, home, u".local/share"_s),
            .cache = cleanableFolder(environment.cacheHome, home, u".cache"_s),
            .state = cleanableFolder(environment.stateHome, home, u".local/state"_s)};
}

/// Caches of the common browsers, as installed by the system, by Flatpak and by Snap.
QStringList browserCaches(const QString &home, const QString &cache)
{
    QStringList places;
    for (const QString &name :
         {u"google-chrome"_s, u"chromium"_s, u"BraveSoftware"_s, u"microsoft-edge"_s, u"mozilla"_s})
        places.append(paths::join(cache, name));
    for (const QString &id : {u"com.google.Chrome"_s, u"org.chromium.Chromium"_s, u"com.brave.Browser"_s,
                              u"com.microsoft.Edge"_s, u"org.mozilla.firefox"_s})
        places.append(paths::join(home, u".var/app/"_s + id + u"/cache"_s));
    for (const QString &name : {u"chromium"_s, u"brave"_s, u"firefox"_s})
        places.append(paths::join(home, u"snap/"_s + name + u"/common/.cache"_s));
    return places;
}

/// Logs are the user's own only, never the system's in /var/log. There is no Xcode here.
QList<Locations::CleanupRow> cleanupRows(const Locations &locations, const BaseFolders &base)
{
    return {
        {.category = u"browser-cache"_s,
         .places = browserCaches(locations.home, base.cache),
         .onlyExistingPlaces = true}, // or "Reveal in Finder" would look for a browser that isn't there
        {.category = u"logs"_s,
         .places = {},
         .patterns = {{.parents = {base.state, base.cache}, .names = {u"log"_s, u"logs"_s}}}},
        {.category = u"npm-cache"_s,
         .places = {paths::join(locations.home, u".npm/_cacache"_s), paths::join(base.cache, u"yarn"_s)},
         .onlyExistingPlaces = true},
        {.category = u"old-downloads"_s, .places = locations.downloads},
        {.category = u"trash"_s, .places = locations.trash},
    };
}

/// The folder with "~" for the home folder in front, as the organizer shows its destinations.
QString withTilde(const QString &folder, const QString &home)
{
    const bool isInHome = !folder.isEmpty() && home != u"/" && paths::isAtOrBelow(folder, home);
    return isInHome ? u"~"_s + folder.sliced(home.size()) : folder;
}

QString folderInside(const QString &folder, const QString &name)
{
    return folder.isEmpty() ? QString() : paths::join(folder, name);
}

Locations::OrganizerDestinations organizerDestinations(const UserDirectories &folders, const QString &home)
{
    return {.images = withTilde(folders.pictures, home),
            .documents = withTilde(folders.documents, home),
            .videos = withTilde(folders.videos, home),
            .music = withTilde(folders.music, home),
            .archives = withTilde(folderInside(folders.documents, u"Archives"_s), home),
            .screenshots = withTilde(folderInside(folders.pictures, u"Screenshots"_s), home)};
}

/// The user's own entries first, then those of his Flatpaks and the system's; the last ones are of such package systems as
/// put their folders into the environment only for a session that began after they came.
QStringList desktopEntryFolders(const QString &data, const QString &dataDirs)
{
    QStringList folders = {data, paths::join(data, u"flatpak/exports/share"_s)};
    const QString given = dataDirs.isEmpty() ? u"/usr/local/share:/usr/share"_s : dataDirs;
    for (const QString &folder : given.split(u':')) {
        if (folder.startsWith(u'/'))
            folders.append(withoutTrailingSlashes(folder));
    }
    folders << u"/var/lib/flatpak/exports/share"_s << u"/var/lib/snapd/desktop"_s;
    folders.removeDuplicates();
    for (QString &folder : folders)
        folder = paths::join(folder, u"applications"_s);
    return folders;
}

/// The two forms of a volume's Trash by freedesktop convention, the one in its common folder first.
QStringList volumeTrash(const LinuxEnvironment &environment)
{
    if (!environment.userId)
        return {};
    const QString user = QString::number(*environment.userId);
    return {u"/.Trash/"_s + user + u"/files"_s, u"/.Trash-"_s + user + u"/files"_s};
}

} // namespace

Locations linuxLocations(const QString &home, const LinuxEnvironment &environment)
{
    Locations locations;
    locations.home = withoutTrailingSlashes(home);
    const auto inHome = [&locations](const QString &name) { return paths::join(locations.home, name); };
    const BaseFolders base = baseFolders(locations.home, environment);
    const UserDirectories folders =
        environment.userDirectories.value_or(parseUserDirectories({}, locations.home));

    locations.trash = {paths::join(base.data, u"Trash/files"_s)};
    locations.volumeTrash = volumeTrash(environment);
    locations.applicationSupport = base.data;
    tables::setUserFolders(
        locations, folders, {u"/opt"_s, u"/usr/local"_s, inHome(u"Applications"_s), inHome(u".local/opt"_s)},
        {base.config, base.cache, base.data, base.state, inHome(u".var/app"_s), inHome(u"snap"_s)});
    locations.cleanup = cleanupRows(locations, base);
    locations.desktopEntryFolders = desktopEntryFolders(base.data, environment.dataDirs);
    locations.accessProbeFolders = {locations.home, base.config};
    locations.organizerDestinations = organizerDestinations(folders, locations.home);
    // The "current" link of each snap leads to a folder beside it, which doubles all that is below.
    locations.duplicateIgnoreRules = tables::duplicateIgnoreRules(locations.home) << inHome(u"snap"_s);
    return locations;
}
