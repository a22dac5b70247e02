#pragma once

#include "base/Log.h"

#include <QByteArray>
#include <QString>

/// The journal's texts: how an entry is handed over, and how one is shown.
namespace journaltext {

/// Fields of our own in each entry, beside the journal's MESSAGE, PRIORITY and SYSLOG_IDENTIFIER.
inline constexpr char subsystemField[] = "QUILLMERE_SUBSYSTEM";
inline constexpr char categoryField[] = "QUILLMERE_CATEGORY";

/// An entry in the journal's native protocol (systemd.io/JOURNAL_NATIVE_PROTOCOL). Any text survives in it,
/// several lines too; a message beyond 32 KiB is cut.
QByteArray datagram(LogLevel level, const QString &category, const QString &message);

/// The PRIORITY of a level: syslog's numbers.
int priority(LogLevel level);

/// An entry as a line without its end, "2026-03-01 09:30:00.125 error [General] text", in the current time
/// zone. Line breaks of the message show as "\n" and "\r", so that an entry is one line.
QString line(qint64 microseconds, const QByteArray &priority, const QByteArray &category,
             const QByteArray &message);

} // namespace journaltext
