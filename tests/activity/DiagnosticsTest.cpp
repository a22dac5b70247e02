#include "activity/Diagnostics.h"

#include "platform/LogCommand.h"
#include "support/Fakes.h"
#include "support/TempHome.h"

#include <cerrno>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// A system log that is read through a command-line tool.
class CommandLog final : public SystemLog
{
public:
    explicit CommandLog(QString program)
        : program_(std::move(program))
    {
    }
    void write(LogLevel, const QString &, const QString &) override {}
    QString recentEntries(int hours) override { return logcommand::read(program_, hours); }

private:
    QString program_;
};

const QString failure = u"Couldn't read system log: "_s;

} // namespace

TEST(Diagnostics, recentLogsGiveWhatTheLogGives)
{
    FakeSystemLog log;
    log.recent = u"one\ntwo\n"_s;
    EXPECT_EQ(diagnostics::recentLogs(log, 3), u"one\ntwo\n"_s);
    EXPECT_EQ(log.askedHours, 3);
}

TEST(Diagnostics, recentLogsGiveAFailureAsTheirText)
{
    FakeSystemLog log;
    log.failure = Error{u"POSIX"_s, 13, u"Permission denied"_s};
    EXPECT_EQ(diagnostics::recentLogs(log, 24), failure + u"Permission denied"_s);
}

TEST(Diagnostics, recentLogsGiveWhatTheToolPrints)
{
    const TempHome temp;
    CommandLog log(temp.script(u"log"_s, "echo entry; echo wrong >&2"));
    EXPECT_EQ(diagnostics::recentLogs(log, 24), u"entry\n"_s);
}

TEST(Diagnostics, recentLogsGiveTheLaunchFailureOfAToolThatIsMissing)
{
    const TempHome temp;
    CommandLog log(temp.at(u"log"_s));
    EXPECT_EQ(diagnostics::recentLogs(log, 24), failure + errors::fromErrno(ENOENT).description);
}

TEST(Diagnostics, recentLogsGiveNothingForOutputThatIsNoText)
{
    const TempHome temp;
    CommandLog log(temp.script(u"log"_s, "printf 'entry\\377\\n'"));
    EXPECT_EQ(diagnostics::recentLogs(log, 24), QString());
}

TEST(Diagnostics, copyingPutsTheLastDayOnTheClipboard)
{
    FakeSystemLog log;
    FakeWorkspace workspace;
    log.recent = u"entry\n"_s;
    workspace.clipboard = u"old"_s;
    diagnostics::copyDiagnosticLogs(log, workspace);
    EXPECT_EQ(workspace.clipboard, u"entry\n"_s);
    EXPECT_EQ(log.askedHours, 24);
}

TEST(Diagnostics, copyingSaysThatThereAreNoEntriesInTheLastDay)
{
    FakeSystemLog log;
    FakeWorkspace workspace;
    diagnostics::copyDiagnosticLogs(log, workspace);
    EXPECT_EQ(workspace.clipboard, u"(no entries in the last 24h)"_s);
}

TEST(Diagnostics, copyingSaysThatThereAreNoEntriesWhenTheToolPrintsNone)
{
    const TempHome temp;
    CommandLog log(temp.script(u"log"_s, "exit 0"));
    FakeWorkspace workspace;
    diagnostics::copyDiagnosticLogs(log, workspace);
    EXPECT_EQ(workspace.clipboard, u"(no entries in the last 24h)"_s);
}

TEST(Diagnostics, copyingAsksTheToolFor24HoursAsOneArgument)
{
    const TempHome temp;
    CommandLog log(temp.script(u"log"_s, "for argument; do echo \"[$argument]\"; done"));
    FakeWorkspace workspace;
    diagnostics::copyDiagnosticLogs(log, workspace);
    EXPECT_TRUE(workspace.clipboard.contains(u"[--last]\n[24h]\n"_s)) << workspace.clipboard.toStdString();
}

TEST(Diagnostics, copyingPutsTheLaunchFailureOnTheClipboardWhenTheToolIsMissing)
{
    const TempHome temp;
    CommandLog log(temp.at(u"log"_s));
    FakeWorkspace workspace;
    diagnostics::copyDiagnosticLogs(log, workspace);
    EXPECT_TRUE(workspace.clipboard.startsWith(failure));
    EXPECT_GT(workspace.clipboard.size(), failure.size());
}
