#pragma once

#include <QByteArray>
#include <QString>

/// The user's well-known folders, as absolute paths without a slash at the end. An empty one is switched off:
/// the user keeps no such folder.
struct UserDirectories
{
    QString desktop;
    QString documents;
    QString downloads;
    QString music;
    QString pictures;
    QString videos;

    bool operator==(const UserDirectories &) const = default;
};

/// Reads the content of xdg-user-dirs' "user-dirs.dirs", lines of the form XDG_MUSIC_DIR="$HOME/Musik" or
/// XDG_MUSIC_DIR="/data/music" with a backslash before any character that the shell would treat specially.
/// The last usable line for a folder counts; one without any has its English name below `home`, an absolute
/// path.
///
/// A folder equal to `home` is switched off, which is the format's own way to say so. One that contains
/// `home` counts as switched off too: it is no folder for downloads or pictures, and tidying it would reach
/// all that the user has. Lines that say nothing usable are ignored: relative paths, "..", bytes that no
/// path can have.
UserDirectories parseUserDirectories(const QByteArray &userDirsFile, const QString &home);
