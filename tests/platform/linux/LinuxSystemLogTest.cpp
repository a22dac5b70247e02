#include "platform/linux/LinuxSystemLog.h"

#include "base/Error.h"
#include "base/Paths.h"
#include "PrivateJournal.h"
#include "support/TempHome.h"

#include <QElapsedTimer>
#include <QStringList>
#include <QThread>

#include <cstring>

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <systemd/sd-journal.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// The system's clock, put forward.
class LateClock final : public Clock
{
public:
    Date now() const override { return SystemClock().now() + ahead; }
    double steadySeconds() const override { return SystemClock().steadySeconds(); }

    std::chrono::minutes ahead{0};
};

/// A socket in the place of the journal's, from which nothing reads unless a test does.
class SilentSocket
{
public:
    explicit SilentSocket(const QString &path)
        : descriptor_(socket(AF_UNIX, SOCK_DGRAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0))
    {
        sockaddr_un address = {};
        address.sun_family = AF_UNIX;
        strncpy(address.sun_path, paths::toBytes(path).constData(), sizeof address.sun_path - 1);
        EXPECT_EQ(bind(descriptor_, reinterpret_cast<const sockaddr *>(&address), sizeof address), 0);
    }
    ~SilentSocket() { close(descriptor_); }
    SilentSocket(const SilentSocket &) = delete;
    SilentSocket &operator=(const SilentSocket &) = delete;

    /// How many datagrams lie in it; takes them out.
    int drain() const
    {
        char byte = 0;
        int count = 0;
        while (recv(descriptor_, &byte, 1, 0) >= 0)
            ++count;
        return count;
    }

private:
    const int descriptor_;
};

QString descriptionOfFailure(LinuxSystemLog &log)
{
    try {
        log.recentEntries(24);
    } catch (const Error &error) {
        return error.description;
    }
    return u"no failure"_s;
}

/// The journal takes lines in at its own pace: reads until `last` is among them.
QString entriesUpTo(LinuxSystemLog &log, const QString &last, int hours = 1)
{
    QElapsedTimer timer;
    timer.start();
    QString entries;
    while (timer.elapsed() < 20'000) {
        entries = log.recentEntries(hours);
        if (entries.contains(last))
            return entries;
        QThread::msleep(2);
    }
    ADD_FAILURE() << "The journal never gave: " << last.toStdString();
    return entries;
}

void readBackWhatWasWritten()
{
    const LateClock clock;
    LinuxSystemLog log(clock);
    EXPECT_EQ(log.recentEntries(24), QString());
    log.write(LogLevel::debug, u"General"_s, u"starts"_s);
    log.write(LogLevel::info, u"Cleanup"_s, u"two\nlines 🗑 \"quoted\""_s);
    log.write(LogLevel::error, u"Organizer"_s, paths::fromBytes("/tmp/\xFF"));
    const QStringList lines = entriesUpTo(log, u"/tmp/"_s).split(u'\n');
    ASSERT_EQ(lines.size(), 4);
    EXPECT_TRUE(lines[0].endsWith(u" debug [General] starts"_s)) << lines[0].toStdString();
    EXPECT_TRUE(lines[1].endsWith(u" info [Cleanup] two\\nlines 🗑 \"quoted\""_s))
        << lines[1].toStdString();
    EXPECT_TRUE(lines[2].endsWith(u" error [Organizer] /tmp/\uFFFD"_s)) << lines[2].toStdString();
    EXPECT_EQ(lines[3], QString());
}

void leaveOutOthers()
{
    const LateClock clock;
    LinuxSystemLog log(clock);
    sd_journal_send("MESSAGE=not ours", "PRIORITY=6", "QUILLMERE_SUBSYSTEM=com.other.app", nullptr);
    sd_journal_send("MESSAGE=of no subsystem", "SYSLOG_IDENTIFIER=com.quillmere.app", nullptr);
    log.write(LogLevel::info, u"General"_s, u"ours"_s);
    const QString entries = entriesUpTo(log, u"ours"_s);
    EXPECT_EQ(entries.count(u'\n'), 1) << entries.toStdString();
    EXPECT_TRUE(entries.endsWith(u"[General] ours\n"_s)) << entries.toStdString();
}

void leaveOutOldOnes()
{
    LateClock clock;
    LinuxSystemLog log(clock);
    log.write(LogLevel::info, u"General"_s, u"a while ago"_s);
    entriesUpTo(log, u"a while ago"_s);
    clock.ahead = std::chrono::minutes(90);
    EXPECT_EQ(log.recentEntries(1), QString());
    EXPECT_EQ(log.recentEntries(0), QString());
    EXPECT_EQ(log.recentEntries(-1), QString());
    EXPECT_TRUE(log.recentEntries(2).contains(u"a while ago"_s));
    EXPECT_TRUE(log.recentEntries(std::numeric_limits<int>::max()).contains(u"a while ago"_s));
}

void keepTheNewest()
{
    const LateClock clock;
    LinuxSystemLog log(clock);
    const QByteArray filling(30'000, 'x');
    for (int i = 0; i < 200;
         ++i) { // 6 MB; by the library, which waits where our own writer would lose a line
        const QByteArray message = "MESSAGE=number " + QByteArray::number(i) + '.' + filling;
        sd_journal_send(message.constData(), "PRIORITY=6", "QUILLMERE_SUBSYSTEM=com.quillmere.app", nullptr);
    }
    const QString entries = entriesUpTo(log, u"number 199."_s);
    EXPECT_LE(entries.size() * static_cast<qsizetype>(sizeof(QChar)), 4 * 1024 * 1024);
    EXPECT_GT(entries.size() * static_cast<qsizetype>(sizeof(QChar)), 3 * 1024 * 1024);
    EXPECT_FALSE(entries.contains(u"number 0."_s));
    EXPECT_LT(entries.indexOf(u"number 198."_s), entries.indexOf(u"number 199."_s));
}

void testWithJournal(const std::function<void()> &test)
{
    const std::string reason = privatejournal::run(test);
    if (!reason.empty())
        GTEST_SKIP() << "No journal can be started: " << reason;
}

} // namespace

TEST(LinuxSystemLog, readsBackWhatWasWrittenOldestFirst)
{
    testWithJournal(readBackWhatWasWritten);
}

TEST(LinuxSystemLog, leavesOutEntriesOfOtherPrograms)
{
    testWithJournal(leaveOutOthers);
}

TEST(LinuxSystemLog, leavesOutEntriesFromBeforeTheHoursAskedFor)
{
    testWithJournal(leaveOutOldOnes);
}

TEST(LinuxSystemLog, keepsTheNewestOfManyEntries)
{
    testWithJournal(keepTheNewest);
}

TEST(LinuxSystemLog, saysThatNoJournalIsRunning)
{
    const TempHome temp;
    const SystemClock clock;
    LinuxSystemLog log(clock, temp.at(u"socket"_s));
    log.write(LogLevel::info, u"General"_s, u"lost"_s);
    EXPECT_EQ(descriptionOfFailure(log), u"No system journal is running."_s);
}

TEST(LinuxSystemLog, isNotTakenInByASocketThatAJournalLeftBehind)
{
    const TempHome temp;
    const SystemClock clock;
    {
        const SilentSocket gone(temp.at(u"socket"_s));
    }
    LinuxSystemLog log(clock, temp.at(u"socket"_s));
    log.write(LogLevel::info, u"General"_s, u"lost"_s);
    EXPECT_EQ(descriptionOfFailure(log), u"No system journal is running."_s);
}

TEST(LinuxSystemLog, takesAnImpossibleSocketPathForNoJournal)
{
    const SystemClock clock;
    for (const QString &path : {QString(), u"/"_s + QString(300, u'x'), u"/dev/null"_s}) {
        LinuxSystemLog log(clock, path);
        log.write(LogLevel::info, u"General"_s, u"lost"_s);
        EXPECT_EQ(descriptionOfFailure(log), u"No system journal is running."_s);
    }
}

TEST(LinuxSystemLog, losesLinesRatherThanWaitingForAJournalThatHangs)
{
    const TempHome temp;
    const SystemClock clock;
    const SilentSocket hanging(temp.at(u"socket"_s));
    LinuxSystemLog log(clock, temp.at(u"socket"_s));
    constexpr int lines = 5000; // far more than a socket holds
    for (int i = 0; i < lines; ++i)
        log.write(LogLevel::info, u"General"_s, u"line"_s);
    const int held = hanging.drain();
    EXPECT_GT(held, 0);
    EXPECT_LT(held, lines);
    log.write(LogLevel::info, u"General"_s, u"after"_s);
    EXPECT_EQ(hanging.drain(), 1);
}
