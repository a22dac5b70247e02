#pragma once

#include "activity/HistoryEntry.h"
#include "base/FileIdentity.h"
#include "cleanup/CleanupSelection.h"

#include <QMap>
#include <QStringList>

#include <vector>

class FileSystemService;
class Recycler;

/// One cleaning: what was chosen as it began, and what is told of it before and afterwards. What goes is moved to the Trash,
/// and only the content of the Trash itself goes for good. Nothing outside a category's own places is touched: a link in one
/// goes itself, and a place that is a link when the run comes is left alone. A plain value.
class CleaningRun
{
public:
    CleaningRun(const std::vector<CleanupCategory> &categories, const CleanupSelection &selection);

    /// Cleans as well as it can; what stays is told nowhere, since the scan that follows finds it again. Blocks; any thread
    /// but the main one.
    void run(const FileSystemService &fileSystem, Recycler &recycler) const;

    /// What the user is asked ahead of it.
    QString question() const;

    QString logLine() const;
    HistoryEntry record(Date now) const;

private:
    using Entries = QMap<QString, files::Identity>; ///< by their paths
    using Contents = QMap<QString, Entries>;        ///< of places

    struct Part
    {
        CleanupCategory category;
        QSet<QString> picked; ///< empty: all of it
    };

    Contents trashContents() const;
    static Entries entriesAt(const QStringList &paths);
    static QStringList unchanged(const Entries &entries);
    static void cleanAll(const Part &part, const Contents &trashed, const FileSystemService &fileSystem,
                         Recycler &recycler);
    static void cleanPicked(const Part &part, const Contents &trashed, const FileSystemService &fileSystem,
                            Recycler &recycler);
    QStringList names() const;

    std::vector<Part> parts_;
    qint64 total_ = 0; // bytes that were chosen, not those that are freed
};
