#pragma once

#include "base/Files.h"
#include "duplicates/scan/FileTable.h"
#include "duplicates/scan/ScanScope.h"

#include <functional>

/// The first stage of a duplicate scan: the files below one scan path. Hidden names are passed over; links are
/// followed, so that only the depth limit ends a circle of them.
class DuplicateWalk
{
public:
    static constexpr int depthLimit = 8; ///< folders this deep below the scan path are not entered

    struct Hooks
    {
        std::function<bool()> isCancelled;
        std::function<void(const QString &path)> entered; ///< of each folder visited, before it is read
    };

    /// Adds to `files` those of at least `minFileSize` bytes. All arguments outlive the walk.
    DuplicateWalk(FileTable &files, qint64 minFileSize, const Hooks &hooks);

    /// Blocks for as long as the disk does; any thread. What can't be listed or read is passed over.
    void run(const QString &scanPath, const QStringList &ignorePaths);

private:
    void visitFolder(const QString &path, int depth);
    void visitEntries(files::DirectoryReader &reader, const QString &path, int depth);

    FileTable &files_;
    const qint64 minFileSize_;
    const Hooks &hooks_;
    scope::IgnoreRules rules_{{}};
};
