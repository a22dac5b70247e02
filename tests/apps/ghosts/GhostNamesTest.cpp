#include "apps/ghosts/GhostNames.h"

#include <vector>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Pair
{
    QString given;
    QString expected;
};

} // namespace

TEST(Normalised, takesAwayWhatGroupContainersPutInFront)
{
    const std::vector<Pair> table = {
        {u"com.example.app"_s, u"com.example.app"_s},
        {u"group.com.example.app"_s, u"com.example.app"_s},
        {u"groups.com.example.app"_s, u"com.example.app"_s},
        {u"GROUP.com.Example.App"_s, u"com.Example.App"_s},
        {u"group.example.app"_s, u"example.app"_s},
        {u"ABCDE12345.com.example.app"_s, u"com.example.app"_s},
        {u"abcde12345.com.example.app"_s, u"com.example.app"_s},
        {u"A1B2C3.com.example.app"_s, u"com.example.app"_s},
        {u"12345A.example.app"_s, u"example.app"_s},
    };
    for (const Pair &pair : table)
        EXPECT_EQ(ghostnames::normalised(pair.given), pair.expected) << pair.given.toStdString();
}

TEST(Normalised, leavesAllElseAsItIs)
{
    const QStringList table{
        QString(),
        u"SomeTool"_s,
        u"group.example"_s, // two components are no identifier
        u"ABCDE12345.Tool"_s,
        u"A1B2C.com.example.app"_s,      // five characters are too few for a team
        u"ABCDEFGHIJ.com.example.app"_s, // no digit
        u"1234567890.com.example.app"_s, // no letter
        u"ABCDE-12345.com.example.app"_s,
        u"grouped.com.example.app"_s,
        u"com.group.example.app"_s,
        u".group.com.example"_s,
        u"com.ABCDE12345.example"_s,
    };
    for (const QString &identifier : table)
        EXPECT_EQ(ghostnames::normalised(identifier), identifier);
}

TEST(Normalised, takesAwayOnePrefixOnly)
{
    EXPECT_EQ(ghostnames::normalised(u"group.ABCDE12345.com.example.app"_s), u"ABCDE12345.com.example.app");
    EXPECT_EQ(ghostnames::normalised(u"ABCDE12345.group.com.example.app"_s), u"group.com.example.app");
}

TEST(Normalised, countsCharactersAsAReaderDoes)
{
    EXPECT_EQ(ghostnames::normalised(u"ÉCOLE1.com.example.app"_s), u"com.example.app");
    EXPECT_EQ(ghostnames::normalised(u"E\u0301COL1.com.example.app"_s), u"E\u0301COL1.com.example.app")
        << "five, one of them with an accent of its own";
    EXPECT_EQ(ghostnames::normalised(u"E\u0301COLE1.com.example.app"_s), u"com.example.app");
}

TEST(Excluded, areTheSystemsOwn)
{
    for (const QString &entry : {u"com.apple.Safari"_s,
                                 u"COM.APPLE.Notes"_s,
                                 u"com.apple-tools.build"_s,
                                 u"apple.notes"_s,
                                 u"group.com.apple.notes"_s,
                                 u"groups.com.apple.podcasts"_s,
                                 u"group.is.workflow.shortcuts"_s,
                                 u"ABCDE12345.com.apple.iWork"_s,
                                 u"ABCDE12345.group.com.apple.x"_s,
                                 u"CrashReporter"_s,
                                 u"SyncServices"_s,
                                 u"Quick Look"_s,
                                 u"iCloud"_s,
                                 u"App Store"_s,
                                 u"Compressor"_s,
                                 u"Motion"_s,
                                 u"DiskImages"_s,
                                 u"videosubscriptionsd"_s,
                                 u"networkserviceproxy"_s,
                                 u"Animoji"_s,
                                 u"Caches"_s,
                                 u".DS_Store"_s,
                                 u".localized"_s,
                                 u"Mozilla"_s})
        EXPECT_TRUE(ghostnames::isExcluded(entry)) << entry.toStdString();
}

TEST(Excluded, areLibrariesThatComeInsideApplications)
{
    for (const QString &entry :
         {u"io.branch"_s, u"io.branch.sdk"_s, u"com.crashlytics.data"_s, u"com.bugsnag.Bugsnag"_s,
          u"org.swift.swiftpm"_s, u"org.swift.swiftpm.cache"_s, u"org.swift.swiftpmx"_s,
          u"ABCDE12345.com.crashlytics.data"_s, u"group.io.branch.sdk"_s})
        EXPECT_TRUE(ghostnames::isExcluded(entry)) << entry.toStdString();
}

TEST(Excluded, areNamesOfFourCharactersAndFewer)
{
    for (const QString &entry : {QString(), u"a"_s, u"Zoom"_s, u"a.bc"_s, u"カフェ"_s, u"cafe\u0301"_s,
                                 u"\U0001F1E9\U0001F1EA\U0001F1EB\U0001F1F7"_s})
        EXPECT_TRUE(ghostnames::isExcluded(entry)) << entry.toStdString();
}

TEST(Excluded, areNoOthers)
{
    for (const QString &entry :
         {u"Zooms"_s, u"com.applesauce.app"_s, u"com.example.apple"_s, u"com.apple"_s, u"Motion Pro"_s,
          u"Mozilla Tools"_s, u"com.crashlyticsx.data"_s, u"io.branches.app"_s, u"org.swift.tools"_s,
          u"is.workflow.my.app"_s, u"icloud drive"_s, u"com.mozilla.thing"_s})
        EXPECT_FALSE(ghostnames::isExcluded(entry)) << entry.toStdString();
}

TEST(GroupKey, isWhatTheEntriesOfOneOwnerHaveInCommon)
{
    const std::vector<Pair> table = {
        {u"com.example.App"_s, u"com.example.app"_s},
        {u"ABCDE12345.com.Example.App"_s, u"com.example.app"_s},
        {u"group.com.example.app"_s, u"com.example.app"_s},
        {u"com.example.App.binarycookies"_s, u"com.example.app"_s},
        {u"com.example.binarycookies.App.BinaryCookies"_s, u"com.example.app"_s},
        {u"com.example.App.savedState"_s, u"com.example.app"_s},
        {u"ABCDE12345.com.Example.App.savedState"_s, u"com.example.app"_s},
        {u"com.savedState.App"_s, u"com.app"_s},
        {u"com.example.savedstate"_s, u"com.example.savedstate"_s},
        {u"Some Old App"_s, u"some old app"_s},
        {u"Cafe\u0301 Old"_s, u"caf\u00E9 old"_s},
    };
    for (const Pair &pair : table)
        EXPECT_EQ(ghostnames::groupKey(pair.given), pair.expected) << pair.given.toStdString();
}

TEST(PreferencesIdentifier, isWhatStandsAheadOfTheEnding)
{
    EXPECT_EQ(ghostnames::preferencesIdentifier(u"com.example.App.plist"_s), u"com.example.App"_s);
    EXPECT_EQ(ghostnames::preferencesIdentifier(u"group.com.example.plist"_s), u"group.com.example"_s);
    EXPECT_EQ(ghostnames::preferencesIdentifier(u"com.example.App.plist.plist"_s),
              u"com.example.App.plist"_s);
}

TEST(PreferencesIdentifier, isNoneForOtherFiles)
{
    for (const QString &file :
         {u"com.example.plist"_s, u"loginwindow.plist"_s, u".GlobalPreferences.plist"_s, u".plist"_s,
          u"com.example.App"_s, u"com.example.App.PLIST"_s, u"com.example.App.plist.lockfile"_s, QString()})
        EXPECT_EQ(ghostnames::preferencesIdentifier(file), std::nullopt) << file.toStdString();
}

TEST(InferredName, isMadeOfTheLastComponent)
{
    const std::vector<Pair> table = {
        {u"com.oldvendor.legacy"_s, u"Legacy"_s},
        {u"com.oldvendor.my-old_tool"_s, u"My Old Tool"_s},
        {u"com.oldvendor.suite.my  tool"_s, u"My Tool"_s},
        {u"com.oldvendor.-_tool-"_s, u"Tool"_s},
        {u"com.oldvendor.4k_player"_s, u"4k Player"_s},
        {u"com.oldvendor.élan"_s, u"Élan"_s},
        {u"com.oldvendor.e\u0301lan"_s, u"E\u0301lan"_s},
        {u"com.oldvendor.ßeta"_s, u"SSeta"_s},
        {u"com.oldvendor."_s, QString()},
        {u"com.oldvendor.--"_s, QString()},
    };
    for (const Pair &pair : table)
        EXPECT_EQ(ghostnames::inferredName(pair.given), pair.expected) << pair.given.toStdString();
}

TEST(InferredName, ofWhatIsNoIdentifierIsTheKey)
{
    for (const QString &key : {u"some old app"_s, u"old-tool"_s, u"oldvendor.tool"_s, QString()})
        EXPECT_EQ(ghostnames::inferredName(key), key);
}
