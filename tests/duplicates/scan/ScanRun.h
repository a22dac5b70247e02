#pragma once

#include "duplicates/scan/DuplicateScan.h"

#include <QStringList>

#include <functional>
#include <utility>

/// One run of the duplicate scan, with what it told on its way.
class ScanRun
{
public:
    duplicatescan::Request request;
    std::function<bool()> isCancelled = [] { return false; };
    std::function<void()> whenComparing = [] {}; ///< the moment between the walk and the comparison

    QStringList entered;                         ///< folders visited, in order
    int comparisons = 0;                         ///< how often the end of the walk was told
    std::vector<std::pair<size_t, size_t>> done; ///< sizes compared, and all of them

    ScanRun() = default;
    explicit ScanRun(QStringList scanPaths, qint64 minFileSize = 0)
    {
        request.scanPaths = std::move(scanPaths);
        request.minFileSize = minFileSize;
    }

    duplicatescan::Result run()
    {
        return duplicatescan::run(
            request, {[this] { return isCancelled(); }, [this](const QString &folder) { entered << folder; },
                      [this] {
                          ++comparisons;
                          whenComparing();
                      },
                      [this](size_t count, size_t total) { done.emplace_back(count, total); }});
    }

    /// The paths of one group, in its order.
    static QStringList paths(const DuplicateFileGroup &group)
    {
        QStringList all;
        for (const DuplicateFileEntry &file : group.files)
            all << file.path;
        return all;
    }

    /// The paths of each group.
    static std::vector<QStringList> paths(const duplicatescan::Result &result)
    {
        std::vector<QStringList> all;
        for (const DuplicateFileGroup &group : result.groups)
            all.push_back(paths(group));
        return all;
    }
};
