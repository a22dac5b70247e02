#include "base/ChildProcess.h"
#include "base/Paths.h"
#include "base/ShellScript.h"
#include "support/FifoLine.h"
#include "support/TempHome.h"

#include <csignal>
#include <cstdlib>

#include <gtest/gtest.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

TEST(DetachedProcess, runsInTheFolderGiven)
{
    const TempHome temp;
    const FifoLine told(temp.at(u"told"_s));
    const QString folder = temp.folder(u"work place"_s);
    ASSERT_TRUE(ChildProcess::launchDetached(shell, script(u"pwd > \"$0\""_s) << told.path(), folder));
    EXPECT_EQ(told.read(), paths::toBytes(folder));
}

TEST(DetachedProcess, runsInOurFolderWhenNoneIsGiven)
{
    const TempHome temp;
    const FifoLine told(temp.at(u"told"_s));
    ASSERT_TRUE(ChildProcess::launchDetached(shell, script(u"pwd -P > \"$0\""_s) << told.path()));
    char *here = realpath(".", nullptr);
    EXPECT_EQ(told.read(), QByteArray(here));
    free(here);
}

TEST(DetachedProcess, hasASessionOfItsOwn)
{
    const TempHome temp;
    const FifoLine told(temp.at(u"told"_s));
    ASSERT_TRUE(
        ChildProcess::launchDetached(shell, script(u"echo $$ > \"$0\"; exec sleep 60"_s) << told.path()));
    const pid_t child = told.read().toInt();
    ASSERT_GT(child, 0);
    EXPECT_EQ(getsid(child), child);
    EXPECT_EQ(kill(child, SIGTERM), 0);
}

TEST(DetachedProcess, saysWhenItCannotBeStarted)
{
    const TempHome temp;
    EXPECT_FALSE(ChildProcess::launchDetached(temp.at(u"nothing"_s), {}));
    EXPECT_FALSE(ChildProcess::launchDetached(shell, script(u"exit 0"_s), temp.at(u"no folder"_s)));
}

TEST(DetachedProcess, isLeftInNoProcessTable)
{
    const TempHome temp;
    const FifoLine told(temp.at(u"told"_s));
    // The program that follows in the pipe's other end sees the first one gone only once its end was collected.
    ASSERT_TRUE(ChildProcess::launchDetached(shell, script(u"echo $$ > \"$0\""_s) << told.path()));
    const QByteArray child = told.read();
    ASSERT_GT(child.toInt(), 0);
    ASSERT_TRUE(ChildProcess::launchDetached(
        shell, script(u"while kill -0 \"$1\" 2>/dev/null; do :; done; echo gone > \"$0\""_s)
                   << told.path() << QString::fromLatin1(child)));
    EXPECT_EQ(told.read(), "gone");
}
