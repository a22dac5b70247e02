#pragma once

#include "activity/HistoryEntry.h"
#include "activity/RunTally.h"
#include "duplicates/DuplicateFileGroup.h"

#include <QHash>
#include <QUuid>

#include <optional>
#include <vector>

class FileSystemService;

/// One delete run of the Duplicate Finder: the files set to go as it began, what became of each, and what is told of it at
/// the end. Moving a file lets the event loop turn, and the groups may be others by the time a file's turn comes, so the
/// run walks a list of its own and looks at the groups anew before each. Main thread.
class DeleteRun
{
public:
    /// The domain of the error of a partial failure.
    static const QString errorDomain;

    explicit DeleteRun(const std::vector<DuplicateFileGroup> &groups);

    /// How many files the run began with.
    size_t fileCount() const { return files_.size(); }

    /// Moves the file with that number to the Trash, unless `groups`, as they are now, have come to keep it.
    void move(size_t number, const std::vector<DuplicateFileGroup> &groups, FileSystemService &fileSystem);

    /// Takes what went out of `groups`, and groups with less than two files out of the list. A group that lost nothing
    /// stays as it is.
    void takeOutOf(std::vector<DuplicateFileGroup> &groups) const;

    const RunTally &tally() const { return tally_; }
    QString logLine() const;
    HistoryEntry record(Date now) const;
    /// None where all went well.
    std::optional<Error> error() const;

private:
    /// Where a file stands in the groups.
    struct Place
    {
        size_t group = 0;
        size_t file = 0;
    };

    /// A file set to go as the run began.
    struct Doomed
    {
        Place place; // as the run began
        QUuid id;
        QString path;
        qint64 size = 0;
    };

    bool isSpared(const Doomed &doomed, const std::vector<DuplicateFileGroup> &groups);
    void learnPlaces(const std::vector<DuplicateFileGroup> &groups);

    std::vector<Doomed> files_;
    RunTally tally_;
    QMultiHash<QString, Place> places_; // by path, in the groups of a scan from within
    QUuid placesOf_;                    // the first group of that scan
};
