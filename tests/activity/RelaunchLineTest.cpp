#include "activity/FDAService.h"
#include "base/ChildProcess.h"
#include "base/Files.h"
#include "base/Paths.h"
#include "support/FifoLine.h"
#include "support/TempHome.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// Runs the line that relaunches `program` by a real shell, in which a second has no length. Gives the shell's exit code.
std::optional<int> run(const TempHome &temp, const QString &program)
{
    temp.script(u"bin/sleep"_s, "exit 0");
    ChildProcess shell(u"/usr/bin/env"_s, {u"PATH=%1:/usr/bin:/bin"_s.arg(temp.at(u"bin"_s)), u"/bin/sh"_s,
                                           u"-c"_s, FDAService::relaunchLine(program)});
    shell.launch();
    shell.waitUntilExit();
    return shell.exitCode();
}

} // namespace

TEST(RelaunchLine, startsAProgramWithASpaceInItsPath)
{
    const TempHome temp;
    const FifoLine told(temp.at(u"told"_s));
    const QString program =
        temp.script(u"my programs/Quill mere"_s, "echo started > '" + paths::toBytes(told.path()) + "'");
    EXPECT_EQ(run(temp, program), 0);
    EXPECT_EQ(told.read(), "started");
}

TEST(RelaunchLine, startsNothingWithADoubleQuoteInThePath)
{
    const TempHome temp;
    // Unescaped, as the line is: the quote leaves the text open, and the shell refuses all of it.
    const QString program = temp.script(u"a\"b"_s, "echo started > \"$0.started\"");
    const auto code = run(temp, program);
    ASSERT_TRUE(code);
    EXPECT_NE(*code, 0);
    EXPECT_FALSE(files::exists(program + u".started"_s));
}
