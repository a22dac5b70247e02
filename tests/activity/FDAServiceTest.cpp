#include "activity/FDAService.h"

#include "activity/FDAContexts.h"
#include "base/Files.h"
#include "base/Paths.h"
#include "support/FifoLine.h"
#include "support/OrdinaryUser.h"
#include "support/TestPlatform.h"

#include <QScopeGuard>

#include <algorithm>

#include <gtest/gtest.h>

using namespace fdacontexts;

namespace {

struct FDAServiceTest : public testing::Test
{
    TestPlatform test;
    int quitRequests = 0;
    int lettings = 0;
    FDAService service{
        test.platform,
        {test.temp.at(QStringLiteral("program")), [this] { ++lettings; }, [this] { ++quitRequests; }}};

    QString safari() const { return QStringLiteral("home/Library/Safari"); }
    QString mail() const { return QStringLiteral("home/Library/Mail"); }

    void grant() { test.temp.folder(safari()); }
};

} // namespace

TEST_F(FDAServiceTest, oneFolderThatCanBeListedIsAccess)
{
    test.temp.folder(mail()); // empty, and Safari's is missing
    EXPECT_TRUE(service.hasFullDiskAccess());
}

TEST_F(FDAServiceTest, readsAsDeniedWithBothFoldersMissing)
{
    EXPECT_FALSE(service.hasFullDiskAccess());
}

TEST_F(FDAServiceTest, foldersThatCannotBeListedAreNoAccess)
{
    test.temp.folder(safari());
    test.temp.folder(mail());
    files::injectFaults([](files::Operation operation, const QString &) {
        return operation == files::Operation::list ? EPERM : 0;
    });
    const auto heal = qScopeGuard([] { files::injectFaults({}); });
    EXPECT_FALSE(service.hasFullDiskAccess());
}

TEST_F(FDAServiceTest, aFolderThatFailsMidwayIsNoAccess)
{
    test.temp.folder(safari());
    test.temp.folder(mail());
    files::injectFaults([](files::Operation operation, const QString &) {
        return operation == files::Operation::next ? EIO : 0;
    });
    const auto heal = qScopeGuard([] { files::injectFaults({}); });
    EXPECT_FALSE(service.hasFullDiskAccess());
}

TEST_F(FDAServiceTest, permissionsDecideForAnOrdinaryUser)
{
    const auto checks = [] {
        const TestPlatform own;
        FDAService access(own.platform, {});
        const QString first = QStringLiteral("home/Library/Safari");
        const QString second = QStringLiteral("home/Library/Mail");
        for (const QString &folder : {first, second}) {
            own.temp.file(folder + QStringLiteral("/secret"));
            own.temp.setMode(folder, 0311); // may be entered, not listed
        }
        EXPECT_FALSE(access.hasFullDiskAccess());
        own.temp.setMode(second, 0500);
        access.recheck();
        EXPECT_TRUE(access.hasFullDiskAccess());
    };
    EXPECT_TRUE(holdsForOrdinaryUser(checks));
}

TEST_F(FDAServiceTest, handsOutItsCachedAnswerUntilARecheck)
{
    EXPECT_FALSE(service.hasFullDiskAccess());
    grant();
    EXPECT_FALSE(service.hasFullDiskAccess());
    service.recheck();
    EXPECT_TRUE(service.hasFullDiskAccess());
}

TEST_F(FDAServiceTest, aFirstProbeThatSucceedsRaisesNoGrant)
{
    grant();
    EXPECT_TRUE(service.hasFullDiskAccess());
    test.settle();
    EXPECT_FALSE(service.grantedAfterPrompt());
}

TEST_F(FDAServiceTest, theGrantNeverFallsAgain)
{
    service.hasFullDiskAccess();
    grant();
    service.recheck();
    test.settle();
    ASSERT_TRUE(service.grantedAfterPrompt());
    files::injectFaults([](files::Operation, const QString &) { return EPERM; });
    const auto heal = qScopeGuard([] { files::injectFaults({}); });
    service.recheck();
    test.settle();
    EXPECT_FALSE(service.hasFullDiskAccess());
    EXPECT_TRUE(service.grantedAfterPrompt());
}

TEST_F(FDAServiceTest, marksAndClearsInALaterTurn)
{
    service.markDenied(analyzer);
    EXPECT_TRUE(service.deniedContexts().isEmpty());
    test.settle();
    EXPECT_EQ(service.deniedContexts(), QSet<QString>{analyzer});
    service.clearDenied(analyzer);
    test.settle();
    EXPECT_TRUE(service.deniedContexts().isEmpty());
}

TEST_F(FDAServiceTest, thePollFindsTheGrantAndEmptiesTheDeniedTools)
{
    service.markDenied(duplicates);
    service.openSystemSettings();
    test.mainQueue.advance(3);
    test.settle();
    EXPECT_TRUE(service.isPolling());
    EXPECT_FALSE(service.grantedAfterPrompt());
    grant();
    test.clock.advance(6);
    test.mainQueue.advance(3);
    test.settle();
    EXPECT_FALSE(service.isPolling());
    EXPECT_TRUE(service.grantedAfterPrompt());
    EXPECT_TRUE(service.deniedContexts().isEmpty());
}

TEST_F(FDAServiceTest, thePollGivesUpAfterTwoMinutes)
{
    service.startGrantPolling();
    test.clock.advance(120);
    test.mainQueue.advance(3);
    EXPECT_TRUE(service.isPolling()); // not yet more than 120 seconds
    test.clock.advance(0.5);
    test.mainQueue.advance(3);
    EXPECT_FALSE(service.isPolling());
    grant();
    test.mainQueue.advance(60);
    test.settle();
    EXPECT_FALSE(service.grantedAfterPrompt());
}

TEST_F(FDAServiceTest, openingTheSettingsAgainRestartsThePollAndItsClock)
{
    service.openSystemSettings();
    test.clock.advance(119);
    service.openSystemSettings();
    test.clock.advance(2); // 121 seconds after the first
    test.mainQueue.advance(3);
    EXPECT_TRUE(service.isPolling());
    EXPECT_EQ(test.mainQueue.waiting(), 1U); // one timer, not two
}

TEST_F(FDAServiceTest, theRelaunchLineQuotesThePathAsItStands)
{
    EXPECT_EQ(FDAService::relaunchLine(QStringLiteral("/Apps/My Quillmere")),
              QStringLiteral("sleep 1 && \"/Apps/My Quillmere\" & disown; exit 0"));
    // A double quote in the path is not escaped, and breaks the line.
    EXPECT_EQ(FDAService::relaunchLine(QStringLiteral("/a\"b")),
              QStringLiteral("sleep 1 && \"/a\"b\" & disown; exit 0"));
}

TEST_F(FDAServiceTest, relaunchLetsGoStartsTheShellAndAsksToQuit)
{
    const FifoLine told(test.temp.at(QStringLiteral("told")));
    test.platform.programs.sh = test.temp.script(
        QStringLiteral("sh"), "printf '%s|' $# \"$@\" > '" + paths::toBytes(told.path()) + "'\n" + "echo > '"
                                  + paths::toBytes(told.path()) + "'\n");
    service.relaunch();
    EXPECT_EQ(lettings, 1);
    EXPECT_EQ(quitRequests, 0); // asked for in a later turn
    test.settle();
    EXPECT_EQ(quitRequests, 1);
    EXPECT_EQ(told.read(),
              "2|-c|" + FDAService::relaunchLine(test.temp.at(QStringLiteral("program"))).toUtf8() + "|");
}

namespace {

/// A program at a certain path, which is started anew by the real shell. That one's second of sleep passes at once and is
/// told, as are the program's start and the shell's end.
struct RealRelaunch
{
    explicit RealRelaunch(const QString &program)
        : executable(test.temp.script(program, tell("program started")))
    {
        test.temp.script(QStringLiteral("bin/sleep"), tell("slept $1"));
        const QByteArray bin = paths::toBytes(test.temp.at(QStringLiteral("bin")));
        test.platform.programs.sh =
            test.temp.script(QStringLiteral("sh"), "PATH='" + bin + "':$PATH /bin/sh \"$@\" 2>/dev/null\n"
                                                       + tell("shell ended with $?"));
        FDAService(test.platform, {executable, [] {}, [] {}}).relaunch();
    }

    QByteArray tell(const QByteArray &line) const
    {
        return "echo \"" + line + "\" > '" + paths::toBytes(told.path()) + "'\n";
    }

    TestPlatform test;
    const FifoLine told{test.temp.at(QStringLiteral("told"))};
    const QString executable;
};

} // namespace

TEST_F(FDAServiceTest, theRealShellStartsAProgramWithASpaceInItsPath)
{
    const RealRelaunch relaunch(QStringLiteral("My Programs/Quill mere"));
    QList<QByteArray> lines = {relaunch.told.read(), relaunch.told.read(), relaunch.told.read()};
    EXPECT_LT(lines.indexOf("slept 1"), lines.indexOf("program started"));
    std::sort(lines.begin(), lines.end());
    EXPECT_EQ(lines, (QList<QByteArray>{"program started", "shell ended with 0", "slept 1"}));
}

TEST_F(FDAServiceTest, aDoubleQuoteInThePathBreaksTheShellLine)
{
    const RealRelaunch relaunch(QStringLiteral("Quill\"mere"));
    EXPECT_EQ(relaunch.told.read(),
              "shell ended with 2"); // it understands nothing of the line, so runs nothing
}

TEST_F(FDAServiceTest, aRelaunchThatCannotStartJustQuits)
{
    test.platform.programs.sh = QStringLiteral("/nonexistent/sh");
    service.relaunch();
    test.settle();
    EXPECT_EQ(quitRequests, 1);
}
