#include "platform/AdminScript.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(AdminScript, movesThePathIntoTheTrashOfTheHomeFolder)
{
    EXPECT_EQ(
        adminscript::source(u"/Applications/My App.app"_s, u"/Users/me"_s),
        uR"(do shell script "/bin/mv -f \"/Applications/My App.app\" \"/Users/me/.Trash/\"" with administrator privileges)"_s);
}

TEST(AdminScript, escapesQuotesInThePath)
{
    EXPECT_EQ(adminscript::source(u"/a \"b\""_s, u"/h"_s),
              uR"(do shell script "/bin/mv -f \"/a \"b\"\" \"/h/.Trash/\"" with administrator privileges)"_s);
}

TEST(AdminScript, doublesBackslashesBeforeItEscapesQuotes)
{
    EXPECT_EQ(adminscript::source(u"\\"_s, u"/h"_s),
              uR"(do shell script "/bin/mv -f \"\\\" \"/h/.Trash/\"" with administrator privileges)"_s);
    EXPECT_EQ(adminscript::source(u"\\\""_s, u"/h"_s),
              uR"(do shell script "/bin/mv -f \"\\\"\" \"/h/.Trash/\"" with administrator privileges)"_s);
}

TEST(AdminScript, leavesTheDestinationAsItIs)
{
    EXPECT_EQ(
        adminscript::source(u"/a"_s, u"/Users/\"m\\e"_s),
        uR"(do shell script "/bin/mv -f \"/a\" \"/Users/"m\e/.Trash/\"" with administrator privileges)"_s);
}

TEST(AdminScript, keepsEveryOtherCharacter)
{
    const QString path = u"/$HOME/`id`/%1/\u00FC\n'*"_s;
    EXPECT_EQ(adminscript::source(path, u"%1"_s),
              u"do shell script \"/bin/mv -f \\\""_s + path
                  + u"\\\" \\\"%1/.Trash/\\\"\" with administrator privileges"_s);
}
