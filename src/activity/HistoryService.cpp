#include "activity/HistoryService.h"

#include "activity/HistoryFile.h"
#include "activity/HistoryFileEncoding.h"
#include "activity/Loggers.h"
#include "base/AtomicWrite.h"
#include "base/Error.h"
#include "base/Files.h"
#include "base/GuardedPost.h"
#include "base/Paths.h"

#include <QCoreApplication>
#include <QThread>

#include <cerrno>

namespace {

/// Makes the program's own folder, where it can. Gives the file in it.
QString fileIn(const QString &applicationSupport)
{
    const QString folder = paths::join(applicationSupport, QStringLiteral("Quillmere"));
    try {
        files::makeDirectories(folder);
    } catch (const Error &) {
        // The next save fails then, and says so.
    }
    return paths::join(folder, QStringLiteral("history.json"));
}

bool isMainThread()
{
    const QCoreApplication *application = QCoreApplication::instance();
    return !application || application->thread() == QThread::currentThread();
}

} // namespace

HistoryService::HistoryService(const Platform &platform)
    : platform_(platform)
    , fileURL_(fileIn(platform.locations->applicationSupport))
{
    if (!isMainThread())
        moveToThread(QCoreApplication::instance()->thread());
    load();
}

HistoryService &HistoryService::shared(const Platform &platform)
{
    static HistoryService &instance = *new HistoryService(platform);
    return instance;
}

void HistoryService::load()
{
    std::vector<HistoryEntry> entries;
    try {
        entries = historyfile::decode(files::readAll(fileURL_, historyfile::mostBytes));
    } catch (const Error &error) {
        // A file that can't be read, above all one that is not there yet, is no news; one that is no log is.
        if (error.domain == historyfile::errorDomain || error.code == EFBIG)
            logError(QStringLiteral("Failed to load history.json: %1").arg(error.description));
        else if (error.code != ENOENT)
            whyUnread_ = error.description;
        return;
    }
    if (isMainThread())
        return setEntries(std::move(entries));
    guarded::post(platform_.mainQueue, QPointer(this),
                  [entries = std::move(entries)](HistoryService &self) { self.setEntries(entries); });
}

void HistoryService::record(const HistoryEntry &entry)
{
    guarded::post(platform_.mainQueue, QPointer(this), [entry](HistoryService &self) {
        std::vector<HistoryEntry> &entries = self.entries_;
        entries.insert(entries.begin(), entry);
        if (entries.size() > maxEntries)
            entries.resize(maxEntries);
        self.save();
        emit self.entriesChanged();
    });
}

void HistoryService::clear()
{
    guarded::post(platform_.mainQueue, QPointer(this), [](HistoryService &self) {
        self.entries_.clear();
        self.save();
        emit self.entriesChanged();
    });
}

void HistoryService::setEntries(std::vector<HistoryEntry> entries)
{
    entries_ = std::move(entries);
    emit entriesChanged();
}

void HistoryService::save()
{
    // What is written must be readable at the next start: a file that is refused there would be lost whole.
    const historyfile::Encoded file = historyfile::encodeWithin(historyfile::mostBytes, entries_);
    try {
        files::writeAtomically(fileURL_, file.json);
    } catch (const Error &error) {
        logError(QStringLiteral("Failed to save history: %1").arg(error.description));
        return;
    }
    const size_t missing = entries_.size() - file.entryCount;
    if (missing > 0 && !isFileShort_)
        logError(QStringLiteral("history.json has no room for the oldest %1 of %2 entries")
                     .arg(missing)
                     .arg(entries_.size()));
    isFileShort_ = missing > 0;
    if (!whyUnread_.isEmpty())
        logError(QStringLiteral("Replaced a history.json that could not be read: %1").arg(whyUnread_));
    whyUnread_.clear();
}

void HistoryService::logError(const QString &message) const
{
    Loggers(platform_.systemLog).general.error(message);
}
