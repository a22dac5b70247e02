#pragma once

#include "base/Error.h"
#include "base/FileIdentity.h"

#include <QByteArray>
#include <QString>

#include <optional>

/// One Trash on the disk, as freedesktop.org's rules for a trash can lays it out: the items in "files", and
/// beside them in "info" a note for each, which says where it came from. A note that exists reserves its
/// name.
///
/// For what the desktop's library can't do itself; otherwise the Trash is the library's. Safe from any
/// thread.
class TrashFolder
{
public:
    /// An item's two places.
    struct Entry
    {
        QString file;
        QString info;
    };

    /// The home Trash below the data folder. It need not exist.
    static TrashFolder ofHome(const QString &dataFolder);

    /// The user's own Trash on the volume `device`, on which the item at an absolute path is or was. None
    /// when there is none, or none that is safe to use: neither the volume's common ".Trash" nor the user's
    /// folder may be a link.
    static std::optional<TrashFolder> ofVolume(const QString &item, quint64 device);

    /// True when the Trash or one of its two folders is a link. The folders above may be links.
    bool isLink() const;

    /// The place that the library has given to an item that it has just moved, under its name, a numbered one
    /// or one that it has shortened. `name` is the item's last path component. None when it isn't found.
    std::optional<Entry> find(const QString &name, const files::Identity &identity) const;

    /// True when the library might move an item of that name over one that has lost its note: it takes the
    /// first name without a note, and shortens a name that is too long in a way that can't be foretold.
    bool mightReplace(const QString &name) const;

    /// Takes a free name for the item at an absolute path by writing its note. The Trash is made where it is
    /// missing. Throws Error (the system's).
    Entry reserve(const QString &item) const;

    /// Writes an entry's note anew where it has been left empty. Throws Error (the system's).
    void mend(const Entry &entry, const QString &item) const;

    /// Gives a reserved name back.
    static void release(const Entry &entry);

private:
    TrashFolder(QString path, QString top);
    Entry entry(const QString &name) const;
    std::optional<Entry> findAmongAll(const files::Identity &identity) const;
    /// Throws Error (the system's) where the item's folder is not on this volume, or gone.
    QByteArray note(const QString &item) const;

    QString path_;
    QString top_; // the root of its volume, links resolved; empty for the home Trash
};
