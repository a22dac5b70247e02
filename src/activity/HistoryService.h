#pragma once

#include "activity/HistoryEntry.h"
#include "platform/Platform.h"

#include <QObject>

#include <vector>

/// The activity log: one entry for each destructive run, newest first, kept whole in `history.json`. A diary only;
/// nothing is undone from it. Entries change on the main thread only: set, saved, then notified.
class HistoryService final : public QObject
{
    Q_OBJECT

public:
    static constexpr size_t maxEntries = 500;

    /// Loads the file. A missing or unreadable one is an empty log, one that can't be understood as well, with a line
    /// in the diagnostic log. Any thread; off the main one the entries follow in a later turn of its loop.
    ///
    /// The next save replaces a file that could not be read. That loses what was in it, so the diagnostic log gets a line
    /// about it then.
    explicit HistoryService(const Platform &platform);

    /// The process's one instance, made at the first call and never destroyed. Any thread.
    static HistoryService &shared(const Platform &platform);

    /// Newest first. Main thread.
    const std::vector<HistoryEntry> &entries() const { return entries_; }

    /// The absolute path of `history.json`.
    const QString &fileURL() const { return fileURL_; }

    // Commands; any thread. They return at once and take effect, the saving included, in a later turn of the main
    // loop, in the order of the calls. A failed save goes to the diagnostic log; the next one writes everything again. Of a
    // log that has no room in `historyfile::mostBytes` the file goes without the oldest entries. Every save of such a log
    // is short of some, so that only the first tells of it, and another one once the whole log has had room in between.

    /// Puts an entry at the front. The oldest beyond `maxEntries` are dropped.
    void record(const HistoryEntry &entry);

    /// Empties the log; the file stays, with an empty list in it.
    void clear();

signals:
    void entriesChanged();

private:
    void load();
    void setEntries(std::vector<HistoryEntry> entries);
    void save();
    void logError(const QString &message) const;

    const Platform &platform_;
    QString fileURL_;
    std::vector<HistoryEntry> entries_;
    bool isFileShort_ = false; ///< the last save had no room for the oldest entries
    QString whyUnread_; ///< why the file that is there could not be read; empty once it has been replaced
};
