#pragma once

#include "base/FileIdentity.h"

#include <QHash>
#include <QString>

#include <optional>
#include <span>

/// Whether paths lead to one file after all. A path through a link to a folder leads to the very entry that the folder's
/// own path leads to, and what moves the one takes the other; hard links are entries of their own, and the file stays as
/// long as one of them does. All of it blocks for as long as the disk does. Any thread.
namespace samefile {

enum class Kind {
    none,
    hardLinks, ///< two entries of one file
    oneEntry,  ///< two ways to one entry
};

/// The folders that were asked about, each once. For one look-up: it is not told of what changes. Not to be shared between
/// threads.
class Folders
{
public:
    /// The folder that is really there, links followed. None when it is none.
    std::optional<files::Identity> identity(const QString &folder);

private:
    QHash<QString, std::optional<files::Identity>> known_;
};

/// What the closest two of these paths have in common. A path at which nothing is (any more) counts for nothing.
Kind among(std::span<const QString> paths, Folders &folders);

/// How many of `going` are the very entry of one of `kept`, reached another way.
qint64 countOfKept(std::span<const QString> going, std::span<const QString> kept, Folders &folders);

} // namespace samefile
