#include "platform/Locations.h"

#include "base/Paths.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

using Candidate = Locations::AssociatedFileCandidate;
using Ghost = Locations::GhostFolder;

const Locations mac = macLocations(u"/Users/ada"_s);

} // namespace

TEST(MacLocations, namesTheUsersFolders)
{
    EXPECT_EQ(mac.home, u"/Users/ada"_s);
    EXPECT_EQ(mac.applicationsFolders, QStringList{u"/Applications"_s});
    EXPECT_EQ(mac.trash, QStringList{u"/Users/ada/.Trash"_s});
    EXPECT_EQ(mac.volumeTrash, QStringList());
    EXPECT_EQ(mac.applicationSupport, u"/Users/ada/Library/Application Support"_s);
    EXPECT_EQ(mac.downloads, QStringList{u"/Users/ada/Downloads"_s});
}

TEST(MacLocations, listsStorageRowsInOrder)
{
    const QList<Locations::StorageRow> expected = {
        {u"Applications"_s, {u"/Applications"_s}, u"58a6ff"_s, u"app.fill"_s},
        {u"Documents"_s, {u"/Users/ada/Documents"_s}, u"a371f7"_s, u"doc.fill"_s},
        {u"Library"_s, {u"/Users/ada/Library"_s}, u"3fb950"_s, u"books.vertical.fill"_s},
        {u"Downloads"_s, {u"/Users/ada/Downloads"_s}, u"da3633"_s, u"arrow.down.circle.fill"_s},
        {u"Pictures"_s, {u"/Users/ada/Pictures"_s}, u"d29922"_s, u"photo.fill"_s},
        {u"Music"_s, {u"/Users/ada/Music"_s}, u"39d2c0"_s, u"music.note"_s},
        {u"Desktop"_s, {u"/Users/ada/Desktop"_s}, u"f778ba"_s, u"desktopcomputer"_s},
    };
    EXPECT_EQ(mac.storageRows, expected);
}

TEST(MacLocations, leadsFromAStorageRowToItsFolder)
{
    EXPECT_EQ(mac.placesOfStorageRow(u"Applications"), QStringList{u"/Applications"_s});
    EXPECT_EQ(mac.placesOfStorageRow(u"Music"), QStringList{u"/Users/ada/Music"_s});
    EXPECT_EQ(mac.placesOfStorageRow(u"System"), QStringList{u"/Users/ada/System"_s});
}

TEST(MacLocations, listsLargestDirectoryRootsInOrder)
{
    const QStringList expected = {
        u"/Applications"_s,        u"/Users/ada/Library"_s,  u"/Users/ada/Documents"_s,
        u"/Users/ada/Downloads"_s, u"/Users/ada/Pictures"_s, u"/Users/ada/Music"_s,
        u"/Users/ada/Desktop"_s,   u"/Users/ada/Movies"_s,
    };
    EXPECT_EQ(mac.largestDirectoryRoots, expected);
}

TEST(MacLocations, looksForEmptyFoldersInDownloadsDesktopAndDocuments)
{
    EXPECT_EQ(mac.emptyFolderRoots,
              QStringList({u"/Users/ada/Downloads"_s, u"/Users/ada/Desktop"_s, u"/Users/ada/Documents"_s}));
}

TEST(MacLocations, listsCleanupRowsInCatalogueOrder)
{
    const QList<Locations::CleanupRow> expected = {
        {.category = u"browser-cache"_s,
         .places = {u"/Users/ada/Library/Caches/Google/Chrome"_s,
                    u"/Users/ada/Library/Caches/com.apple.Safari"_s,
                    u"/Users/ada/Library/Caches/org.mozilla.firefox"_s}},
        {.category = u"logs"_s, .places = {u"/Users/ada/Library/Logs"_s}},
        {.category = u"xcode-derived"_s,
         .places = {u"/Users/ada/Library/Developer/Xcode/DerivedData"_s},
         .presentWhenExists = u"/Applications/Xcode.app"_s},
        {.category = u"npm-cache"_s,
         .places = {u"/Users/ada/.npm/_cacache"_s, u"/Users/ada/Library/Caches/Yarn"_s},
         .onlyExistingPlaces = true},
        {.category = u"old-downloads"_s, .places = {u"/Users/ada/Downloads"_s}},
        {.category = u"trash"_s, .places = {u"/Users/ada/.Trash"_s}},
    };
    EXPECT_EQ(mac.cleanup, expected);
}

TEST(MacLocations, listsAssociatedFileCandidatesInOrder)
{
    using enum Candidate::Subject;
    using enum Candidate::AddsTo;
    using enum Candidate::Measure;
    const QList<Candidate> expected = {
        {u"/Users/ada/Library/Caches"_s, bundleId, u""_s, u"Cache"_s, cacheSize, probe},
        {u"/Users/ada/Library/Preferences"_s, bundleId, u".plist"_s, u"Preferences"_s, preferencesSize,
         fileSize},
        {u"/Users/ada/Library/Application Support"_s, name, u""_s, u"Support"_s, supportSize, probe},
        {u"/Users/ada/Library/Application Support"_s, bundleId, u""_s, u"Support"_s, supportSize, probe},
        {u"/Users/ada/Library/Containers"_s, bundleId, u""_s, u"Container"_s, containerSize, probe},
        {u"/Users/ada/Library/Group Containers"_s, bundleId, u""_s, u"Container"_s, containerSize, probe},
        {u"/Users/ada/Library/Saved Application State"_s, bundleId, u".savedState"_s, u"Other"_s, nothing,
         probe},
        {u"/Users/ada/Library/HTTPStorages"_s, bundleId, u""_s, u"Other"_s, nothing, probe},
        {u"/Users/ada/Library/WebKit"_s, bundleId, u""_s, u"Other"_s, nothing, probe},
    };
    EXPECT_EQ(mac.associatedFileCandidates, expected);
}

TEST(MacLocations, listsGhostFoldersInOrder)
{
    using enum Ghost::Style;
    const QList<Ghost> expected = {
        {u"/Users/ada/Library/Caches"_s, u"Cache"_s, identifier},
        {u"/Users/ada/Library/Application Support"_s, u"Support"_s, name},
        {u"/Users/ada/Library/Containers"_s, u"Container"_s, identifier},
        {u"/Users/ada/Library/Group Containers"_s, u"Container"_s, identifier},
        {u"/Users/ada/Library/Saved Application State"_s, u"Other"_s, identifier},
        {u"/Users/ada/Library/HTTPStorages"_s, u"Other"_s, identifier},
        {u"/Users/ada/Library/WebKit"_s, u"Other"_s, identifier},
    };
    EXPECT_EQ(mac.ghostFolders, expected);
    EXPECT_EQ(mac.ghostPreferencesFolder, u"/Users/ada/Library/Preferences"_s);
    EXPECT_EQ(mac.ghostApplicationsFolders, QStringList({u"/Applications"_s, u"/Users/ada/Applications"_s}));
}

TEST(MacLocations, probesSafariBeforeMail)
{
    EXPECT_EQ(mac.accessProbeFolders,
              QStringList({u"/Users/ada/Library/Safari"_s, u"/Users/ada/Library/Mail"_s}));
}

TEST(MacLocations, organizesDownloadsIntoFoldersWrittenWithTilde)
{
    EXPECT_EQ(mac.organizerSource, u"/Users/ada/Downloads"_s);
    const Locations::OrganizerDestinations expected = {.images = u"~/Pictures"_s,
                                                       .documents = u"~/Documents"_s,
                                                       .videos = u"~/Movies"_s,
                                                       .music = u"~/Music"_s,
                                                       .archives = u"~/Documents/Archives"_s,
                                                       .screenshots = u"~/Pictures/Screenshots"_s};
    EXPECT_EQ(mac.organizerDestinations, expected);
}

TEST(MacLocations, listsSidebarPlacesWithTheCloudDriveOnlyWhenItExists)
{
    const QList<Locations::SidebarPlace> expected = {
        {u"Home"_s, u"house.fill"_s, u"/Users/ada"_s},
        {u"Desktop"_s, u"desktopcomputer"_s, u"/Users/ada/Desktop"_s},
        {u"Documents"_s, u"doc.fill"_s, u"/Users/ada/Documents"_s},
        {u"Downloads"_s, u"arrow.down.circle.fill"_s, u"/Users/ada/Downloads"_s},
        {u"Pictures"_s, u"photo.fill"_s, u"/Users/ada/Pictures"_s},
        {u"Music"_s, u"music.note"_s, u"/Users/ada/Music"_s},
        {u"Movies"_s, u"film.fill"_s, u"/Users/ada/Movies"_s},
        {u"Applications"_s, u"app.fill"_s, u"/Applications"_s},
        {u"iCloud Drive"_s, u"icloud.fill"_s, u"/Users/ada/Library/Mobile Documents/com~apple~CloudDocs"_s,
         true},
    };
    EXPECT_EQ(mac.sidebarPlaces, expected);
}

TEST(MacLocations, locksEightFoldersAgainstTheDuplicateScan)
{
    const QStringList expected = {
        u"/Users/ada/Library"_s,
        u"/Users/ada/.Trash"_s,
        u"/Users/ada/DerivedData"_s,
        u"node_modules"_s,
        u".git"_s,
        u"DerivedData"_s,
        u".build"_s,
        u"__pycache__"_s,
    };
    EXPECT_EQ(mac.duplicateIgnoreRules, expected);
}

TEST(MacLocations, putsAnotherApplicationsFolderWhereverTheStandardOneStands)
{
    const Locations demo = macLocations(u"/tmp/demo"_s, u"/tmp/Apps"_s);
    EXPECT_EQ(demo.applicationsFolders, QStringList{u"/tmp/Apps"_s});
    EXPECT_EQ(demo.placesOfStorageRow(u"Applications"), QStringList{u"/tmp/Apps"_s});
    EXPECT_EQ(demo.largestDirectoryRoots.first(), u"/tmp/Apps"_s);
    EXPECT_EQ(demo.cleanup.at(2).presentWhenExists, u"/tmp/Apps/Xcode.app"_s);
    EXPECT_EQ(demo.ghostApplicationsFolders, QStringList({u"/tmp/Apps"_s, u"/tmp/demo/Applications"_s}));
    EXPECT_EQ(demo.sidebarPlaces.at(7).path, u"/tmp/Apps"_s);
}

TEST(MacLocations, keepsHomeInAnyBytes)
{
    const Locations raw = macLocations(paths::fromBytes(QByteArray("/tmp/{name} '\xFF")));
    EXPECT_EQ(paths::toBytes(raw.trash.first()), QByteArray("/tmp/{name} '\xFF/.Trash"));
    EXPECT_EQ(paths::toBytes(raw.associatedFileCandidates.first().folder),
              QByteArray("/tmp/{name} '\xFF/Library/Caches"));
}
