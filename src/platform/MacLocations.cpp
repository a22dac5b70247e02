#include "platform/Locations.h"
#include "platform/LocationTables.h"
#include "platform/UserDirectories.h"

using namespace Qt::StringLiterals;

namespace {

QList<Locations::CleanupRow> cleanupRows(const Locations &locations, const QString &library,
                                         const QString &applicationsFolder)
{
    const QString caches = library + u"/Caches"_s;
    return {
        {.category = u"browser-cache"_s,
         .places = {caches + u"/Google/Chrome"_s, caches + u"/com.apple.Safari"_s,
                    caches + u"/org.mozilla.firefox"_s}},
        {.category = u"logs"_s, .places = {library + u"/Logs"_s}},
        {.category = u"xcode-derived"_s,
         .places = {library + u"/Developer/Xcode/DerivedData"_s},
         .presentWhenExists = applicationsFolder + u"/Xcode.app"_s},
        {.category = u"npm-cache"_s,
         .places = {locations.home + u"/.npm/_cacache"_s, caches + u"/Yarn"_s},
         .onlyExistingPlaces = true},
        {.category = u"old-downloads"_s, .places = locations.downloads},
        {.category = u"trash"_s, .places = locations.trash},
    };
}

QList<Locations::AssociatedFileCandidate> associatedFileCandidates(const QString &library)
{
    using Candidate = Locations::AssociatedFileCandidate;
    using enum Candidate::Subject;
    using enum Candidate::AddsTo;
    using enum Candidate::Measure;
    const QString support = library + u"/Application Support"_s;
    const QString savedState = library + u"/Saved Application State"_s;
    return {
        {library + u"/Caches"_s, bundleId, {}, u"Cache"_s, cacheSize, probe},
        {library + u"/Preferences"_s, bundleId, u".plist"_s, u"Preferences"_s, preferencesSize, fileSize},
        {support, name, {}, u"Support"_s, supportSize, probe},
        {support, bundleId, {}, u"Support"_s, supportSize, probe},
        {library + u"/Containers"_s, bundleId, {}, u"Container"_s, containerSize, probe},
        {library + u"/Group Containers"_s, bundleId, {}, u"Container"_s, containerSize, probe},
        {savedState, bundleId, u".savedState"_s, u"Other"_s, nothing, probe},
        {library + u"/HTTPStorages"_s, bundleId, {}, u"Other"_s, nothing, probe},
        {library + u"/WebKit"_s, bundleId, {}, u"Other"_s, nothing, probe},
    };
}

QList<Locations::GhostFolder> ghostFolders(const QString &library)
{
    using enum Locations::GhostFolder::Style;
    return {
        {library + u"/Caches"_s, u"Cache"_s, identifier},
        {library + u"/Application Support"_s, u"Support"_s, name},
        {library + u"/Containers"_s, u"Container"_s, identifier},
        {library + u"/Group Containers"_s, u"Container"_s, identifier},
        {library + u"/Saved Application State"_s, u"Other"_s, identifier},
        {library + u"/HTTPStorages"_s, u"Other"_s, identifier},
        {library + u"/WebKit"_s, u"Other"_s, identifier},
    };
}

UserDirectories userFolders(const QString &home)
{
    return {.desktop = home + u"/Desktop"_s,
            .documents = home + u"/Documents"_s,
            .downloads = home + u"/Downloads"_s,
            .music = home + u"/Music"_s,
            .pictures = home + u"/Pictures"_s,
            .videos = home + u"/Movies"_s};
}

} // namespace

Locations macLocations(const QString &home, const QString &applicationsFolder)
{
    const QString library = home + u"/Library"_s;
    Locations locations;
    locations.home = home;
    locations.applicationsFolders = {applicationsFolder};
    locations.trash = {home + u"/.Trash"_s};
    locations.applicationSupport = library + u"/Application Support"_s;
    tables::setUserFolders(locations, userFolders(home), {applicationsFolder}, {library});
    locations.sidebarPlaces.append({.name = u"iCloud Drive"_s,
                                    .icon = u"icloud.fill"_s,
                                    .path = library + u"/Mobile Documents/com~apple~CloudDocs"_s,
                                    .onlyWhenExists = true});
    locations.cleanup = cleanupRows(locations, library, applicationsFolder);
    locations.associatedFileCandidates = associatedFileCandidates(library);
    locations.ghostApplicationsFolders = {applicationsFolder, home + u"/Applications"_s};
    locations.ghostFolders = ghostFolders(library);
    locations.ghostPreferencesFolder = library + u"/Preferences"_s;
    locations.accessProbeFolders = {library + u"/Safari"_s, library + u"/Mail"_s};
    locations.organizerDestinations = {.images = u"~/Pictures"_s,
                                       .documents = u"~/Documents"_s,
                                       .videos = u"~/Movies"_s,
                                       .music = u"~/Music"_s,
                                       .archives = u"~/Documents/Archives"_s,
                                       .screenshots = u"~/Pictures/Screenshots"_s};
    locations.duplicateIgnoreRules = tables::duplicateIgnoreRules(home);
    return locations;
}
