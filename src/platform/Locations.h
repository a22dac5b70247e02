#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QStringView>

struct LinuxEnvironment;

/// Every place that the program knows by name, as data: services are handed it and contain no path of their
/// own. A plain value that never touches the disk, so a place may not exist. Paths are absolute unless said
/// otherwise, and carry names in any bytes (see paths::fromBytes).
///
/// A row may stand for several places, or for none, on Linux: a folder that the user has switched off keeps
/// its row, with an empty list or an empty path.
struct Locations
{
    /// One row of the storage breakdown. Its size is the sum over its places, none of which lies in another.
    struct StorageRow
    {
        QString name;
        QStringList places; ///< The first one that exists is what a click on the row opens.
        QString color;      ///< Six hex digits.
        QString icon;       ///< Symbol name.

        bool operator==(const StorageRow &) const = default;
    };

    /// Places that only a look at the disk can tell: each folder named as one of `names`, exactly, directly
    /// inside any folder that lies directly inside one of `parents` ({parent}/{any}/{name}).
    struct PlacePattern
    {
        QStringList parents;
        QStringList names;

        bool operator==(const PlacePattern &) const = default;
    };

    /// The places of one cleanup category.
    struct CleanupRow
    {
        QString category;                  ///< Id of the category, such as "npm-cache".
        QStringList places;                ///< Folders whose content is reclaimable, in order.
        QList<PlacePattern> patterns = {}; ///< Further such folders, to be resolved at each scan.
        QString presentWhenExists = {};    ///< The category is offered when this exists; empty: always.
        bool onlyExistingPlaces = false;   ///< Keep the places that exist; absent when there is none.

        bool operator==(const CleanupRow &) const = default;
    };

    /// Where one file or folder of an installed application may lie: {folder}/{subject}{suffix}. The entry's
    /// name is kept apart from its folder, so that an identifier or name from an application's property list
    /// can be checked to name one entry directly inside it.
    struct AssociatedFileCandidate
    {
        enum class Subject { bundleId, name };
        enum class AddsTo { cacheSize, preferencesSize, supportSize, containerSize, nothing };
        enum class Measure { probe, fileSize }; ///< `du`, or the size of the file's own entry.

        QString folder;
        Subject subject;
        QString suffix; ///< Follows the subject directly, such as ".plist"; mostly empty.
        QString category;
        AddsTo addsTo;
        Measure measure;

        bool operator==(const AssociatedFileCandidate &) const = default;
    };

    /// A folder where applications leave data behind, one entry for each application.
    struct GhostFolder
    {
        enum class Style { identifier, name }; ///< What the names of the entries are.

        QString folder;
        QString category;
        Style style;

        bool operator==(const GhostFolder &) const = default;
    };

    /// Where the organizer's six default rules send their files. May begin with "~" for the home folder;
    /// empty where the user's folder is switched off, and then the rule has nowhere to move to.
    struct OrganizerDestinations
    {
        QString images;
        QString documents;
        QString videos;
        QString music;
        QString archives;
        QString screenshots;

        bool operator==(const OrganizerDestinations &) const = default;
    };

    /// A built-in favourite of the file browser.
    struct SidebarPlace
    {
        QString name;
        QString icon;
        QString path;                ///< Empty: the row stands there and leads nowhere.
        bool onlyWhenExists = false; ///< The row is left out while nothing is at `path`.

        bool operator==(const SidebarPlace &) const = default;
    };

    /// The user's home folder. Also where the disk analyzer, the file browser, the name search and the
    /// duplicate scan start.
    QString home;

    /// Folders whose application bundles are listed as installed.
    QStringList applicationsFolders;

    /// The user's Trash on the home volume: the folders that hold the trashed items themselves.
    QStringList trash;

    /// This user's Trash on every other volume, as a path below the mount point, with a leading "/". Mounts
    /// come and go, so it is resolved when it is needed. A volume's common ".Trash" folder is shared between
    /// users: the resolver must refuse one that is a link.
    QStringList volumeTrash;

    /// The per-user application support folder; the program's own folder "Quillmere" lies inside it.
    QString applicationSupport;

    /// The storage breakdown, in order.
    QList<StorageRow> storageRows;

    /// Folders whose direct children compete for the largest directories; ties go to the earlier root. Each
    /// stands here once, yet one may lie inside another where the user has arranged the folders so.
    QStringList largestDirectoryRoots;

    /// Where empty folders are looked for, in order. Each stands here once; may lie inside one another.
    QStringList emptyFolderRoots;

    /// The places of the category "old-downloads".
    QStringList downloads;

    /// The cleanup categories that have places of their own, in catalogue order. One that is missing here is
    /// not offered on this system. "empty-folders" never stands here: its places are found by a search.
    QList<CleanupRow> cleanup;

    /// In the order in which they are tried and listed.
    QList<AssociatedFileCandidate> associatedFileCandidates;

    /// Folders whose application bundles count as installed for the ghost scan, in order.
    QStringList ghostApplicationsFolders;

    /// The folders that the ghost scan reads, in order.
    QList<GhostFolder> ghostFolders;

    /// The folder of "{identifier}.plist" files that the ghost scan reads last; empty: there is none.
    QString ghostPreferencesFolder;

    /// Folders of the entries by which the desktop knows applications, the one that is believed first at the front; none
    /// where the system keeps them elsewhere.
    QStringList desktopEntryFolders;

    /// Folders that can be listed only with full disk access, in the order of probing. One is enough.
    QStringList accessProbeFolders;

    /// The folder that the organizer sorts at first; empty when it is switched off.
    QString organizerSource;

    OrganizerDestinations organizerDestinations;

    /// The built-in favourites, in order.
    QList<SidebarPlace> sidebarPlaces;

    /// The built-in locks of the duplicate scan, in order: absolute paths, and bare folder names.
    QStringList duplicateIgnoreRules;

    /// What a click on the storage row `name` leads to: the places of that row, else the folder of that name
    /// in the home folder.
    QStringList placesOfStorageRow(QStringView name) const;
};

/// The Mac's places. `home` and `applicationsFolder` are taken as they stand, with nothing normalised.
Locations macLocations(const QString &home,
                       const QString &applicationsFolder = QStringLiteral("/Applications"));

/// This system's own places after the freedesktop conventions. `home` is absolute.
Locations linuxLocations(const QString &home, const LinuxEnvironment &environment);
