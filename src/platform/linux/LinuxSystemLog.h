#pragma once

#include "base/Clock.h"
#include "platform/SystemLog.h"

/// The systemd journal. Lines are handed to its socket without waiting: one that it has no room for is lost,
/// since a log must never hold up the program. They are read back through the journal's library.
class LinuxSystemLog final : public SystemLog
{
public:
    /// `clock` outlives the log. Touches no disk.
    explicit LinuxSystemLog(const Clock &clock,
                            const QString &socketPath = QStringLiteral("/run/systemd/journal/socket"));
    ~LinuxSystemLog() override;

    void write(LogLevel level, const QString &category, const QString &message) override;

    /// This user's lines, an entry each; of more than 4 MB the newest. Throws Error also when no journal runs.
    QString recentEntries(int hours) override;

private:
    bool isJournalRunning() const;

    const Clock &clock_;
    const QByteArray socketPath_;
    const int socket_; // -1 when there is none to be had
};
