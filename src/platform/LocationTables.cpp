#include "platform/LocationTables.h"

#include "base/Paths.h"
#include "platform/UserDirectories.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// No place for a folder that is switched off.
QStringList placesOf(const QString &folder)
{
    return folder.isEmpty() ? QStringList() : QStringList{folder};
}

/// The folders that are not switched off, each once, in order.
QStringList distinct(QStringList folders)
{
    folders.removeAll(QString());
    folders.removeDuplicates();
    return folders;
}

/// Without the folders that lie inside another one, whose bytes would count twice in a sum.
QStringList withoutNested(const QStringList &folders)
{
    const QStringList all = distinct(folders);
    QStringList outer;
    for (const QString &folder : all) {
        const bool nested = std::any_of(all.begin(), all.end(), [&folder](const QString &other) {
            return other != folder && paths::isAtOrBelow(folder, other);
        });
        if (!nested)
            outer.append(folder);
    }
    return outer;
}

QList<Locations::StorageRow> storageRows(const UserDirectories &folders, const QStringList &applications,
                                         const QStringList &library)
{
    return {
        {u"Applications"_s, withoutNested(applications), u"58a6ff"_s, u"app.fill"_s},
        {u"Documents"_s, placesOf(folders.documents), u"a371f7"_s, u"doc.fill"_s},
        {u"Library"_s, withoutNested(library), u"3fb950"_s, u"books.vertical.fill"_s},
        {u"Downloads"_s, placesOf(folders.downloads), u"da3633"_s, u"arrow.down.circle.fill"_s},
        {u"Pictures"_s, placesOf(folders.pictures), u"d29922"_s, u"photo.fill"_s},
        {u"Music"_s, placesOf(folders.music), u"39d2c0"_s, u"music.note"_s},
        {u"Desktop"_s, placesOf(folders.desktop), u"f778ba"_s, u"desktopcomputer"_s},
    };
}

QList<Locations::SidebarPlace> sidebarPlaces(const QString &home, const UserDirectories &folders,
                                             const QString &applications)
{
    return {
        {u"Home"_s, u"house.fill"_s, home},
        {u"Desktop"_s, u"desktopcomputer"_s, folders.desktop},
        {u"Documents"_s, u"doc.fill"_s, folders.documents},
        {u"Downloads"_s, u"arrow.down.circle.fill"_s, folders.downloads},
        {u"Pictures"_s, u"photo.fill"_s, folders.pictures},
        {u"Music"_s, u"music.note"_s, folders.music},
        {u"Movies"_s, u"film.fill"_s, folders.videos},
        {u"Applications"_s, u"app.fill"_s, applications},
    };
}

} // namespace

namespace tables {

void setUserFolders(Locations &locations, const UserDirectories &folders, const QStringList &applications,
                    const QStringList &library)
{
    locations.storageRows = storageRows(folders, applications, library);
    locations.largestDirectoryRoots =
        distinct(applications + library
                 + QStringList{folders.documents, folders.downloads, folders.pictures, folders.music,
                               folders.desktop, folders.videos});
    locations.emptyFolderRoots = distinct({folders.downloads, folders.desktop, folders.documents});
    locations.downloads = placesOf(folders.downloads);
    locations.organizerSource = folders.downloads;
    locations.sidebarPlaces = sidebarPlaces(locations.home, folders, applications.value(0));
}

QStringList duplicateIgnoreRules(const QString &home)
{
    return {
        home + u"/Library"_s, home + u"/.Trash"_s, home + u"/DerivedData"_s, u"node_modules"_s, u".git"_s,
        u"DerivedData"_s,     u".build"_s,         u"__pycache__"_s,
    };
}

} // namespace tables
