#include "platform/LogCommand.h"

#include "base/Error.h"
#include "support/TempHome.h"

#include <cerrno>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(LogCommand, asksForTheProgramsOwnLines)
{
    const QStringList expected = {u"show"_s,   u"--predicate"_s, u"subsystem == \"com.quillmere.app\""_s,
                                  u"--last"_s, u"24h"_s,         u"--style"_s,
                                  u"compact"_s};
    EXPECT_EQ(logcommand::arguments(24), expected);
}

TEST(LogCommand, namesTheHoursInOneArgument)
{
    EXPECT_EQ(logcommand::arguments(1).at(4), u"1h"_s);
    EXPECT_EQ(logcommand::arguments(1000).at(4), u"1000h"_s);
}

TEST(LogCommand, handsTheArgumentsToTheTool)
{
    const TempHome temp;
    const QString tool = temp.script(u"log"_s, "printf '%s\\n' \"$#\" \"$@\"");
    EXPECT_EQ(logcommand::read(tool, 24), u"7\nshow\n--predicate\nsubsystem == \"com.quillmere.app\"\n"
                                          "--last\n24h\n--style\ncompact\n"_s);
}

TEST(LogCommand, readsMoreThanAPipeHolds)
{
    const TempHome temp;
    const QString tool = temp.script(u"log"_s, "head -c 300000 /dev/zero | tr '\\0' x");
    EXPECT_EQ(logcommand::read(tool, 24), QString(300000, u'x'));
}

TEST(LogCommand, readsTextBeyondAscii)
{
    const TempHome temp;
    EXPECT_EQ(logcommand::read(temp.script(u"log"_s, "echo 'naïve 😀'"), 24), u"naïve 😀\n"_s);
}

TEST(LogCommand, givesNothingForOutputThatIsNotUtf8)
{
    const TempHome temp;
    EXPECT_EQ(logcommand::read(temp.script(u"log"_s, "printf 'good\\n\\303'"), 24), QString());
}

TEST(LogCommand, givesTheOutputOfAToolThatFails)
{
    const TempHome temp;
    EXPECT_EQ(logcommand::read(temp.script(u"log"_s, "echo partial; exit 64"), 24), u"partial\n"_s);
    EXPECT_EQ(logcommand::read(temp.script(u"killed"_s, "echo partial; kill -KILL $$"), 24), u"partial\n"_s);
}

TEST(LogCommand, throwsWhenTheToolIsMissing)
{
    const TempHome temp;
    try {
        logcommand::read(temp.at(u"log"_s), 24);
        FAIL() << "nothing was thrown";
    } catch (const Error &error) {
        EXPECT_EQ(error.code, ENOENT);
    }
}
