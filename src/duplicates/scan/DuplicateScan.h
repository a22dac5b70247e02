#pragma once

#include "duplicates/DuplicateFileGroup.h"

#include <QSet>
#include <QStringList>

#include <functional>
#include <vector>

/// One run of the duplicate finder on the scope that it was given, from the walk to the sorted groups. It publishes
/// nothing itself: what it tells on its way, it tells its hooks.
namespace duplicatescan {

/// What a run works on; changes made meanwhile do not touch it.
struct Request
{
    QStringList scanPaths; ///< absolute
    QStringList ignorePaths;
    qint64 minFileSize = 0; ///< bytes
    QSet<QString> markedForDeletion;
};

/// Called on the thread of the run.
struct Hooks
{
    std::function<bool()> isCancelled;
    std::function<void(const QString &folder)> entered;        ///< once a folder visited, before it is read
    std::function<void()> comparing;                           ///< the walk has ended, contents come next
    std::function<void(size_t done, size_t total)> bucketDone; ///< all files of one size are compared
};

struct Result
{
    std::vector<DuplicateFileGroup> groups; ///< by wasted bytes, the largest first
    int hashFailureCount = 0;               ///< files of which the content could not be read
    bool wasCancelledInWalk = false;        ///< nothing was compared
    bool wasCancelled = false;              ///< the groups are those among what was compared so far
};

/// Blocks for as long as the disk does; any thread.
Result run(const Request &request, const Hooks &hooks);

} // namespace duplicatescan
