#include "base/Paths.h"
#include "platform/LinuxEnvironment.h"
#include "platform/Locations.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const Locations plainLinux = linuxLocations(u"/home/ada"_s, {});

/// The row of a cleanup category; an empty row when it is absent.
Locations::CleanupRow cleanupRow(const Locations &locations, const QString &category)
{
    for (const Locations::CleanupRow &row : locations.cleanup) {
        if (row.category == category)
            return row;
    }
    return {};
}

QStringList cleanupCategories(const Locations &locations)
{
    QStringList categories;
    for (const Locations::CleanupRow &row : locations.cleanup)
        categories.append(row.category);
    return categories;
}

Locations linuxWithFolders(const QByteArray &userDirsFile)
{
    LinuxEnvironment environment;
    environment.userDirectories = parseUserDirectories(userDirsFile, u"/home/ada"_s);
    return linuxLocations(u"/home/ada"_s, environment);
}

Locations linuxWithAllFoldersOff()
{
    return linuxWithFolders("XDG_DESKTOP_DIR=\"$HOME\"\nXDG_DOCUMENTS_DIR=\"$HOME/\"\n"
                            "XDG_DOWNLOAD_DIR=\"/home/ada\"\nXDG_MUSIC_DIR=\"/home/ada/\"\n"
                            "XDG_PICTURES_DIR=\"$HOME/\"\nXDG_VIDEOS_DIR=\"$HOME/\"\n");
}

} // namespace

TEST(LinuxLocations, sumsSeveralPlacesUpAsApplicationsAndLibrary)
{
    EXPECT_EQ(
        plainLinux.placesOfStorageRow(u"Applications"),
        QStringList({u"/opt"_s, u"/usr/local"_s, u"/home/ada/Applications"_s, u"/home/ada/.local/opt"_s}));
    EXPECT_EQ(plainLinux.placesOfStorageRow(u"Library"),
              QStringList({u"/home/ada/.config"_s, u"/home/ada/.cache"_s, u"/home/ada/.local/share"_s,
                           u"/home/ada/.local/state"_s, u"/home/ada/.var/app"_s, u"/home/ada/snap"_s}));
}

TEST(LinuxLocations, keepsNamesColorsAndIconsOfTheStorageRows)
{
    const Locations mac = macLocations(u"/Users/ada"_s);
    ASSERT_EQ(plainLinux.storageRows.size(), mac.storageRows.size());
    for (qsizetype i = 0; i < mac.storageRows.size(); ++i) {
        Locations::StorageRow row = plainLinux.storageRows.at(i);
        row.places = mac.storageRows.at(i).places;
        EXPECT_EQ(row, mac.storageRows.at(i));
    }
}

TEST(LinuxLocations, looksForLargestDirectoriesInAllPlacesOfItsRoots)
{
    const QStringList expected = {
        u"/opt"_s,
        u"/usr/local"_s,
        u"/home/ada/Applications"_s,
        u"/home/ada/.local/opt"_s,
        u"/home/ada/.config"_s,
        u"/home/ada/.cache"_s,
        u"/home/ada/.local/share"_s,
        u"/home/ada/.local/state"_s,
        u"/home/ada/.var/app"_s,
        u"/home/ada/snap"_s,
        u"/home/ada/Documents"_s,
        u"/home/ada/Downloads"_s,
        u"/home/ada/Pictures"_s,
        u"/home/ada/Music"_s,
        u"/home/ada/Desktop"_s,
        u"/home/ada/Videos"_s,
    };
    EXPECT_EQ(plainLinux.largestDirectoryRoots, expected);
}

TEST(LinuxLocations, takesTheUsersOwnFoldersEverywhere)
{
    const Locations german =
        linuxWithFolders("XDG_DESKTOP_DIR=\"$HOME/Schreibtisch\"\nXDG_DOCUMENTS_DIR=\"$HOME/Dokumente\"\n"
                         "XDG_DOWNLOAD_DIR=\"/data/dl\"\nXDG_MUSIC_DIR=\"$HOME/Musik\"\n"
                         "XDG_PICTURES_DIR=\"$HOME/Bilder\"\nXDG_VIDEOS_DIR=\"/data/Filme\"\n");
    EXPECT_EQ(german.placesOfStorageRow(u"Documents"), QStringList{u"/home/ada/Dokumente"_s});
    EXPECT_EQ(german.placesOfStorageRow(u"Downloads"), QStringList{u"/data/dl"_s});
    EXPECT_EQ(german.placesOfStorageRow(u"Pictures"), QStringList{u"/home/ada/Bilder"_s});
    EXPECT_EQ(german.placesOfStorageRow(u"Music"), QStringList{u"/home/ada/Musik"_s});
    EXPECT_EQ(german.placesOfStorageRow(u"Desktop"), QStringList{u"/home/ada/Schreibtisch"_s});
    EXPECT_EQ(german.largestDirectoryRoots.last(), u"/data/Filme"_s);
    EXPECT_EQ(german.emptyFolderRoots,
              QStringList({u"/data/dl"_s, u"/home/ada/Schreibtisch"_s, u"/home/ada/Dokumente"_s}));
    EXPECT_EQ(german.downloads, QStringList{u"/data/dl"_s});
    EXPECT_EQ(cleanupRow(german, u"old-downloads"_s).places, QStringList{u"/data/dl"_s});
    EXPECT_EQ(german.organizerSource, u"/data/dl"_s);
    const Locations::OrganizerDestinations destinations = {.images = u"~/Bilder"_s,
                                                           .documents = u"~/Dokumente"_s,
                                                           .videos = u"/data/Filme"_s,
                                                           .music = u"~/Musik"_s,
                                                           .archives = u"~/Dokumente/Archives"_s,
                                                           .screenshots = u"~/Bilder/Screenshots"_s};
    EXPECT_EQ(german.organizerDestinations, destinations);
    const QList<Locations::SidebarPlace> sidebar = {
        {u"Home"_s, u"house.fill"_s, u"/home/ada"_s},
        {u"Desktop"_s, u"desktopcomputer"_s, u"/home/ada/Schreibtisch"_s},
        {u"Documents"_s, u"doc.fill"_s, u"/home/ada/Dokumente"_s},
        {u"Downloads"_s, u"arrow.down.circle.fill"_s, u"/data/dl"_s},
        {u"Pictures"_s, u"photo.fill"_s, u"/home/ada/Bilder"_s},
        {u"Music"_s, u"music.note"_s, u"/home/ada/Musik"_s},
        {u"Movies"_s, u"film.fill"_s, u"/data/Filme"_s},
        {u"Applications"_s, u"app.fill"_s, u"/opt"_s},
    };
    EXPECT_EQ(german.sidebarPlaces, sidebar);
}

TEST(LinuxLocations, keepsSwitchedOffFolderAsEmptyRow)
{
    const Locations off = linuxWithAllFoldersOff();
    ASSERT_EQ(off.storageRows.size(), 7);
    for (const QString &name : {u"Documents"_s, u"Downloads"_s, u"Pictures"_s, u"Music"_s, u"Desktop"_s})
        EXPECT_EQ(off.placesOfStorageRow(name), QStringList()) << name.toStdString();
    ASSERT_EQ(off.sidebarPlaces.size(), 8);
    for (qsizetype i = 1; i < 7; ++i)
        EXPECT_EQ(off.sidebarPlaces.at(i).path, QString());
    ASSERT_EQ(cleanupCategories(off), cleanupCategories(plainLinux));
    EXPECT_EQ(cleanupRow(off, u"old-downloads"_s).places, QStringList());
}

TEST(LinuxLocations, neverFallsBackToHomeForASwitchedOffFolder)
{
    const Locations off = linuxWithAllFoldersOff();
    EXPECT_EQ(off.largestDirectoryRoots, plainLinux.largestDirectoryRoots.first(10));
    EXPECT_EQ(off.emptyFolderRoots, QStringList());
    EXPECT_EQ(off.downloads, QStringList());
    EXPECT_EQ(off.organizerSource, QString());
    EXPECT_EQ(off.organizerDestinations, Locations::OrganizerDestinations());
}

TEST(LinuxLocations, listsARootOnceThatServesForTwoFolders)
{
    const Locations shared =
        linuxWithFolders("XDG_MUSIC_DIR=\"$HOME/Media\"\nXDG_VIDEOS_DIR=\"$HOME/Media\"\n"
                         "XDG_DESKTOP_DIR=\"$HOME/Downloads\"\n");
    EXPECT_EQ(shared.largestDirectoryRoots.count(u"/home/ada/Media"_s), 1);
    EXPECT_EQ(shared.emptyFolderRoots, QStringList({u"/home/ada/Downloads"_s, u"/home/ada/Documents"_s}));
    EXPECT_EQ(shared.placesOfStorageRow(u"Desktop"), shared.placesOfStorageRow(u"Downloads"));
}

TEST(LinuxLocations, listsCleanupRowsWithoutXcode)
{
    EXPECT_EQ(cleanupCategories(plainLinux),
              QStringList({u"browser-cache"_s, u"logs"_s, u"npm-cache"_s, u"old-downloads"_s, u"trash"_s}));
    const Locations::CleanupRow npm = {.category = u"npm-cache"_s,
                                       .places = {u"/home/ada/.npm/_cacache"_s, u"/home/ada/.cache/yarn"_s},
                                       .onlyExistingPlaces = true};
    EXPECT_EQ(cleanupRow(plainLinux, u"npm-cache"_s), npm);
    EXPECT_EQ(cleanupRow(plainLinux, u"old-downloads"_s).places, QStringList{u"/home/ada/Downloads"_s});
    EXPECT_EQ(cleanupRow(plainLinux, u"trash"_s).places,
              QStringList{u"/home/ada/.local/share/Trash/files"_s});
}

TEST(LinuxLocations, knowsBrowserCachesOfTheSystemFlatpakAndSnap)
{
    const Locations::CleanupRow expected = {
        .category = u"browser-cache"_s,
        .places = {u"/home/ada/.cache/google-chrome"_s, u"/home/ada/.cache/chromium"_s,
                   u"/home/ada/.cache/BraveSoftware"_s, u"/home/ada/.cache/microsoft-edge"_s,
                   u"/home/ada/.cache/mozilla"_s, u"/home/ada/.var/app/com.google.Chrome/cache"_s,
                   u"/home/ada/.var/app/org.chromium.Chromium/cache"_s,
                   u"/home/ada/.var/app/com.brave.Browser/cache"_s,
                   u"/home/ada/.var/app/com.microsoft.Edge/cache"_s,
                   u"/home/ada/.var/app/org.mozilla.firefox/cache"_s,
                   u"/home/ada/snap/chromium/common/.cache"_s, u"/home/ada/snap/brave/common/.cache"_s,
                   u"/home/ada/snap/firefox/common/.cache"_s},
        .onlyExistingPlaces = true};
    EXPECT_EQ(cleanupRow(plainLinux, u"browser-cache"_s), expected);
}

TEST(LinuxLocations, countsOnlyTheUsersOwnLogFolders)
{
    const Locations::CleanupRow expected = {
        .category = u"logs"_s,
        .places = {},
        .patterns = {{{u"/home/ada/.local/state"_s, u"/home/ada/.cache"_s}, {u"log"_s, u"logs"_s}}}};
    EXPECT_EQ(cleanupRow(plainLinux, u"logs"_s), expected);
}

TEST(LinuxLocations, namesTheTrashOfOtherVolumesForAKnownUserOnly)
{
    EXPECT_EQ(plainLinux.trash, QStringList{u"/home/ada/.local/share/Trash/files"_s});
    EXPECT_EQ(plainLinux.volumeTrash, QStringList());
    LinuxEnvironment environment;
    environment.userId = 1000;
    EXPECT_EQ(linuxLocations(u"/home/ada"_s, environment).volumeTrash,
              QStringList({u"/.Trash/1000/files"_s, u"/.Trash-1000/files"_s}));
}

TEST(LinuxLocations, leavesTheApplicationTablesEmpty)
{
    EXPECT_TRUE(plainLinux.applicationsFolders.isEmpty());
    EXPECT_TRUE(plainLinux.associatedFileCandidates.isEmpty());
    EXPECT_TRUE(plainLinux.ghostApplicationsFolders.isEmpty());
    EXPECT_TRUE(plainLinux.ghostFolders.isEmpty());
    EXPECT_TRUE(plainLinux.ghostPreferencesFolder.isEmpty());
}

TEST(LinuxLocations, probesHomeAndConfigurationAndKeepsTheIgnoreRules)
{
    EXPECT_EQ(plainLinux.accessProbeFolders, QStringList({u"/home/ada"_s, u"/home/ada/.config"_s}));
    EXPECT_EQ(plainLinux.applicationSupport, u"/home/ada/.local/share"_s);
}

TEST(LinuxLocations, locksTheFolderOfSnapsAfterTheEightRulesOfTheOtherSystem)
{
    EXPECT_EQ(macLocations(u"/home/ada"_s).duplicateIgnoreRules.size(), 8);
    EXPECT_EQ(plainLinux.duplicateIgnoreRules,
              macLocations(u"/home/ada"_s).duplicateIgnoreRules << u"/home/ada/snap"_s);
}

TEST(LinuxLocations, followsTheBaseFoldersOfTheEnvironment)
{
    LinuxEnvironment environment;
    environment.configHome = u"/x/config/"_s;
    environment.dataHome = u"/x/data"_s;
    environment.cacheHome = u"/x/cache//"_s;
    environment.stateHome = u"/x/state"_s;
    const Locations moved = linuxLocations(u"/home/ada"_s, environment);
    EXPECT_EQ(moved.placesOfStorageRow(u"Library").first(4),
              QStringList({u"/x/config"_s, u"/x/cache"_s, u"/x/data"_s, u"/x/state"_s}));
    EXPECT_EQ(moved.trash, QStringList{u"/x/data/Trash/files"_s});
    EXPECT_EQ(moved.applicationSupport, u"/x/data"_s);
    EXPECT_EQ(moved.accessProbeFolders.last(), u"/x/config"_s);
    EXPECT_EQ(cleanupRow(moved, u"browser-cache"_s).places.first(), u"/x/cache/google-chrome"_s);
    EXPECT_EQ(cleanupRow(moved, u"npm-cache"_s).places.last(), u"/x/cache/yarn"_s);
    EXPECT_EQ(cleanupRow(moved, u"logs"_s).patterns.first().parents,
              QStringList({u"/x/state"_s, u"/x/cache"_s}));
}

TEST(LinuxLocations, ignoresRelativeBaseFolders)
{
    LinuxEnvironment environment;
    environment.configHome = environment.dataHome = u"x"_s;
    environment.cacheHome = environment.stateHome = u"./y"_s;
    const Locations relative = linuxLocations(u"/home/ada"_s, environment);
    EXPECT_EQ(relative.storageRows, plainLinux.storageRows);
    EXPECT_EQ(relative.cleanup, plainLinux.cleanup);
    EXPECT_EQ(relative.applicationSupport, plainLinux.applicationSupport);
}

TEST(LinuxLocations, neverCleansByNameInHomeItself)
{
    for (const QString &folder : {u"/home/ada"_s, u"/home/ada/"_s, u"/home"_s, u"/"_s}) {
        LinuxEnvironment environment;
        environment.cacheHome = environment.stateHome = folder;
        EXPECT_EQ(linuxLocations(u"/home/ada"_s, environment).cleanup, plainLinux.cleanup)
            << folder.toStdString();
    }
}

TEST(LinuxLocations, countsNoByteOfARowTwice)
{
    LinuxEnvironment environment;
    environment.stateHome = u"/home/ada/.local/share"_s;
    environment.cacheHome = u"/home/ada/.config/cache"_s;
    EXPECT_EQ(linuxLocations(u"/home/ada"_s, environment).placesOfStorageRow(u"Library"),
              QStringList({u"/home/ada/.config"_s, u"/home/ada/.local/share"_s, u"/home/ada/.var/app"_s,
                           u"/home/ada/snap"_s}));
    EXPECT_EQ(linuxLocations(u"/opt/ada"_s, {}).placesOfStorageRow(u"Applications"),
              QStringList({u"/opt"_s, u"/usr/local"_s}));
}

TEST(LinuxLocations, writesOneSlashBetweenHomeAndAName)
{
    EXPECT_EQ(linuxLocations(u"/home/ada/"_s, {}).storageRows, plainLinux.storageRows);
    EXPECT_EQ(linuxLocations(u"/home/ada/"_s, {}).home, u"/home/ada"_s);
    const Locations root = linuxLocations(u"/"_s, {});
    EXPECT_EQ(root.trash, QStringList{u"/.local/share/Trash/files"_s});
    EXPECT_EQ(root.organizerDestinations.images, u"/Pictures"_s);
}

TEST(LinuxLocations, keepsNamesThatAreNotUtf8)
{
    const QString home = paths::fromBytes(QByteArray("/home/\xE9"));
    LinuxEnvironment environment;
    environment.userDirectories =
        parseUserDirectories("XDG_PICTURES_DIR=\"$HOME/\xFF\xFE\"\nXDG_MUSIC_DIR=\"/\x80\"\n", home);
    const Locations raw = linuxLocations(home, environment);
    EXPECT_EQ(paths::toBytes(raw.placesOfStorageRow(u"Pictures").first()), QByteArray("/home/\xE9/\xFF\xFE"));
    EXPECT_EQ(paths::toBytes(raw.organizerDestinations.screenshots), QByteArray("~/\xFF\xFE/Screenshots"));
    EXPECT_EQ(paths::toBytes(raw.organizerDestinations.music), QByteArray("/\x80"));
    EXPECT_EQ(paths::toBytes(raw.trash.first()), QByteArray("/home/\xE9/.local/share/Trash/files"));
}

TEST(LinuxLocations, looksForEntriesOfApplicationsInTheUsersFolderFirst)
{
    EXPECT_EQ(plainLinux.desktopEntryFolders,
              QStringList({u"/home/ada/.local/share/applications"_s,
                           u"/home/ada/.local/share/flatpak/exports/share/applications"_s,
                           u"/usr/local/share/applications"_s, u"/usr/share/applications"_s,
                           u"/var/lib/flatpak/exports/share/applications"_s,
                           u"/var/lib/snapd/desktop/applications"_s}));
}

TEST(LinuxLocations, takesTheFoldersOfEntriesFromTheEnvironment)
{
    LinuxEnvironment environment;
    environment.dataHome = u"/x/data"_s;
    environment.dataDirs = u"/y/:relative::/var/lib/flatpak/exports/share/:/y"_s;
    EXPECT_EQ(linuxLocations(u"/home/ada"_s, environment).desktopEntryFolders,
              QStringList({u"/x/data/applications"_s, u"/x/data/flatpak/exports/share/applications"_s,
                           u"/y/applications"_s, u"/var/lib/flatpak/exports/share/applications"_s,
                           u"/var/lib/snapd/desktop/applications"_s}));
    EXPECT_EQ(macLocations(u"/Users/ada"_s).desktopEntryFolders, QStringList());
}
