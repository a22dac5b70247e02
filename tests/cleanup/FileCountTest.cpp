#include "cleanup/FileCount.h"

#include "base/Paths.h"
#include "ManyFiles.h"
#include "platform/ChildPrograms.h"
#include "support/TempHome.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// What a shell that prints this is taken to say.
qint64 countOfOutput(const QByteArray &printf)
{
    const TempHome temp;
    ChildPrograms programs;
    programs.sh = temp.script(u"sh"_s, "printf '" + printf + "'\n");
    return filecount::count(programs, temp.path());
}

} // namespace

TEST(FileCount, countsRegularFilesDownToTheThirdLevel)
{
    const TempHome temp;
    temp.file(u"root/1"_s);
    temp.file(u"root/a/2"_s);
    temp.file(u"root/a/b/3"_s);
    temp.file(u"root/a/b/c/too deep"_s);
    temp.file(u"root/.hidden"_s);
    temp.link(u"root/link"_s, u"1"_s);
    EXPECT_EQ(filecount::count({}, temp.at(u"root"_s)), 4);
}

TEST(FileCount, countsInFoldersOfAnyName)
{
    const TempHome temp;
    for (const QString &name :
         {u"apo'strophe"_s, u"''"_s, u"new\nline"_s, u"$(touch x) `id`"_s, u"back\\slash"_s, u"\" * ?"_s,
          u"-delete"_s, u"bytes "_s + paths::fromBytes("\xFF\xC3'\xFE")}) {
        temp.file(name + u"/one"_s);
        temp.file(name + u"/two\nlines"_s);
        // A name of two lines counts as two: the line counts lines, which is good enough for a label.
        EXPECT_EQ(filecount::count({}, temp.at(name)), 3 + 2 * name.count(u'\n'))
            << paths::toBytes(name).constData();
    }
}

TEST(FileCount, stopsAtTenThousand)
{
    const TempHome temp;
    makeManyFiles(temp, u"root"_s, 10050);
    EXPECT_EQ(filecount::count({}, temp.at(u"root"_s)), 10000);
}

TEST(FileCount, isTheToldLine)
{
    EXPECT_EQ(filecount::line(u"/it's"_s),
              u"find '/it'\\''s' -maxdepth 3 -type f 2>/dev/null | head -10000 | wc -l"_s);
}

TEST(FileCount, readsANumberThatIsPadded)
{
    EXPECT_EQ(countOfOutput("   42\\n"), 42);
    EXPECT_EQ(countOfOutput("\\t7 \\n\\n"), 7);
}

TEST(FileCount, takesEverythingElseForNothing)
{
    for (const char *output : {"", "\\n", "many", "12 34", "1.5", "\\377", "99999999999999999999", "0x10"})
        EXPECT_EQ(countOfOutput(output), 0) << output;
}

TEST(FileCount, isZeroWithoutAShellOrItsFind)
{
    const TempHome temp;
    temp.file(u"root/file"_s);
    ChildPrograms programs;
    programs.sh = temp.at(u"missing"_s);
    EXPECT_EQ(filecount::count(programs, temp.at(u"root"_s)), 0);
    programs.sh = temp.script(u"sh"_s, "PATH=" + paths::toBytes(temp.path()) + " exec /bin/sh \"$@\"\n");
    EXPECT_EQ(filecount::count(programs, temp.at(u"root"_s)), 0);
}

TEST(FileCount, isZeroForWhatIsNotThere)
{
    EXPECT_EQ(filecount::count({}, u"/nothing/here"_s), 0);
}
