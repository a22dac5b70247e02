#include "platform/linux/LinuxSystemLog.h"

#include "base/Error.h"
#include "base/Paths.h"
#include "platform/linux/JournalText.h"

#include <QScopeGuard>
#include <QStringList>

#include <algorithm>
#include <cstring>

#include <sys/socket.h>
#include <sys/un.h>
#include <systemd/sd-journal.h>
#include <unistd.h>

namespace {

constexpr qsizetype mostText = (4 << 20) / sizeof(QChar); // characters

enum ErrorCode {
    noJournal = 1,
    unreadableJournal = 2,
};

Error failure(ErrorCode code, const QString &description)
{
    return {QStringLiteral("Quillmere.SystemLog"), code, description};
}

/// Throws what a call of the journal's library reports: a negative error number.
int checked(int result)
{
    if (result < 0)
        throw errors::fromErrno(-result);
    return result;
}

int openSocket()
{
    return socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
}

/// None of it when the path is too long for a socket's address.
std::optional<sockaddr_un> addressOf(const QByteArray &path)
{
    sockaddr_un address = {};
    if (path.isEmpty() || path.size() >= static_cast<qsizetype>(sizeof address.sun_path))
        return std::nullopt;
    address.sun_family = AF_UNIX;
    memcpy(address.sun_path, path.constData(), static_cast<size_t>(path.size()));
    return address;
}

const sockaddr *plain(const sockaddr_un &address)
{
    return reinterpret_cast<const sockaddr *>(&address);
}

QByteArray field(sd_journal *journal, const char *name)
{
    const void *data = nullptr;
    size_t length = 0;
    if (sd_journal_get_data(journal, name, &data, &length) < 0)
        return {};
    const QByteArray entry(static_cast<const char *>(data), static_cast<qsizetype>(length)); // "NAME=value"
    return entry.sliced(std::min(entry.size(), static_cast<qsizetype>(strlen(name)) + 1));
}

/// Leaves only the entries of this program that the journal itself ascribes to this user; the fields alone
/// could be anybody's.
void match(sd_journal *journal)
{
    const QByteArray subsystem = QByteArray(journaltext::subsystemField) + '='
                                 + QByteArray(SystemLog::subsystem.data(), SystemLog::subsystem.size());
    const QByteArray user = "_UID=" + QByteArray::number(getuid());
    checked(sd_journal_add_match(journal, subsystem.constData(), 0));
    checked(sd_journal_add_match(journal, user.constData(), 0));
}

/// The lines since `earliest` (microseconds since the epoch), newest first.
QStringList newestLines(sd_journal *journal, qint64 earliest)
{
    QStringList lines;
    qsizetype size = 0;
    checked(sd_journal_seek_tail(journal));
    while (checked(sd_journal_previous(journal)) > 0) {
        uint64_t time = 0;
        if (sd_journal_get_realtime_usec(journal, &time) < 0)
            continue;
        const auto microseconds = static_cast<qint64>(time);
        if (microseconds < earliest)
            break;
        const QString line =
            journaltext::line(microseconds, field(journal, "PRIORITY"),
                              field(journal, journaltext::categoryField), field(journal, "MESSAGE"));
        size += line.size() + 1;
        if (size > mostText)
            break;
        lines.append(line);
    }
    return lines;
}

} // namespace

LinuxSystemLog::LinuxSystemLog(const Clock &clock, const QString &socketPath)
    : clock_(clock)
    , socketPath_(paths::toBytes(socketPath))
    , socket_(openSocket())
{
}

LinuxSystemLog::~LinuxSystemLog()
{
    if (socket_ != -1)
        close(socket_);
}

void LinuxSystemLog::write(LogLevel level, const QString &category, const QString &message)
{
    // By hand, since the journal's library would wait while the journal's queue is full.
    const auto address = addressOf(socketPath_);
    if (!address)
        return;
    const QByteArray entry = journaltext::datagram(level, category, message);
    sendto(socket_, entry.constData(), static_cast<size_t>(entry.size()), MSG_DONTWAIT | MSG_NOSIGNAL,
           plain(*address), sizeof *address);
}

QString LinuxSystemLog::recentEntries(int hours)
{
    // Without a journal its library reports success and no entries, as if nothing had ever been logged.
    if (!isJournalRunning())
        throw failure(noJournal, QStringLiteral("No system journal is running."));
    sd_journal *journal = nullptr;
    checked(sd_journal_open(&journal, SD_JOURNAL_LOCAL_ONLY));
    const auto closing = qScopeGuard([journal] { sd_journal_close(journal); });
    if (sd_journal_has_runtime_files(journal) <= 0 && sd_journal_has_persistent_files(journal) <= 0)
        throw failure(unreadableJournal,
                      QStringLiteral("The system journal keeps no entries that you may read."));
    match(journal);

    const auto now = std::chrono::floor<std::chrono::microseconds>(clock_.now().time_since_epoch());
    const auto earliest = now - std::chrono::hours(hours);
    QStringList lines = newestLines(journal, earliest.count());
    std::reverse(lines.begin(), lines.end());
    return lines.isEmpty() ? QString() : lines.join(u'\n') + u'\n';
}

bool LinuxSystemLog::isJournalRunning() const
{
    const auto address = addressOf(socketPath_);
    const int probe = openSocket();
    if (probe == -1)
        return false;
    const auto closing = qScopeGuard([probe] { close(probe); });
    // A socket that a journal left behind when it was killed still has its name, but takes no connection.
    return address && connect(probe, plain(*address), sizeof *address) == 0;
}
