#pragma once

#include <QString>

#include <optional>

/// The desktop's own library for the Trash. It takes the home and the data folder from the environment, once
/// for the whole run of the program. Safe from any thread; everything may block for as long as the disk does.
namespace giotrash {

/// Why the library did not move an item.
struct Failure
{
    QString domain;
    int code = 0;
    QString description;
    bool hasNoTrash = false; ///< the library keeps no Trash for the item's volume, or none that it can reach
    bool hasNoRoom = false;  ///< for the note
    bool nameIsTooLong = false; ///< for the note beside the item, or for the file system
};

/// The folder in which the library keeps the user's home Trash.
QString dataFolder();

/// The folder on whose volume everything goes to the home Trash.
QString homeFolder();

/// An absolute path as the library reads it: without ".", ".." and needless slashes, by the text alone.
QString standardized(const QString &path);

/// Moves the item at an absolute path to the Trash; a link goes itself. None: it went.
std::optional<Failure> move(const QString &path);

} // namespace giotrash
