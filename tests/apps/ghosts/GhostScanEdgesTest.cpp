#include "GhostScanRun.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct GhostScanEdgesTest : testing::Test
{
    GhostScanRun scan;
};

} // namespace

TEST_F(GhostScanEdgesTest, putsTheStateOfWindowsToItsApplication)
{
    scan.leftover(u"Caches/com.example.App"_s);
    scan.leftover(u"Saved Application State/com.example.App.savedState"_s);
    const std::vector<GhostApp> ghosts = scan.run();
    ASSERT_EQ(ghosts.size(), 1U);
    EXPECT_EQ(ghosts[0].bundleID, u"com.example.app");
    EXPECT_EQ(ghosts[0].files.size(), 2U);
}

TEST_F(GhostScanEdgesTest, readsContainersOfGroupsAsThoseOfTheirApplication)
{
    scan.leftover(u"Group Containers/ABCDE12345.com.example.app"_s);
    scan.leftover(u"Group Containers/group.com.example.app"_s);
    scan.leftover(u"Group Containers/A1B2C.com.example.app"_s);
    EXPECT_EQ(scan.sortedKeys(), (QStringList{u"a1b2c.com.example.app"_s, u"com.example.app"_s}))
        << "five characters make no team";
    EXPECT_EQ(scan.ghost(u"com.example.app"_s).files.size(), 2U);
}

TEST_F(GhostScanEdgesTest, sparesGroupsOfTheSystem)
{
    scan.leftover(u"Group Containers/group.com.apple.notes"_s);
    scan.leftover(u"Group Containers/ABCDE12345.com.apple.notes"_s);
    EXPECT_EQ(scan.keys(), QStringList());
}

TEST_F(GhostScanEdgesTest, judgesEntriesWithoutDotsWhereNamesAreAlone)
{
    scan.leftover(u"Caches/SomeTool"_s);
    EXPECT_EQ(scan.keys(), QStringList());
    scan.leftover(u"Application Support/SomeTool"_s);
    EXPECT_EQ(scan.keys(), QStringList(u"sometool"_s));
    scan.app(u"SomeTool Pro"_s, u"com.ab.app"_s);
    EXPECT_EQ(scan.keys(), QStringList());
}

TEST_F(GhostScanEdgesTest, sparesAFolderThatAnInstalledIdentifierContains)
{
    scan.leftover(u"Application Support/Acme"_s);      // which is too short in any case
    scan.leftover(u"Application Support/Acme Data"_s); // by a piece of it
    EXPECT_EQ(scan.keys(), QStringList(u"acme data"_s));
    scan.app(u"Editor"_s, u"com.acmesoft.editor"_s);
    EXPECT_EQ(scan.keys(), QStringList());
}

TEST_F(GhostScanEdgesTest, sparesNamesOfFourLetters)
{
    scan.leftover(u"Application Support/Zoom"_s);
    scan.leftover(u"Application Support/Zooms"_s);
    EXPECT_EQ(scan.keys(), QStringList(u"zooms"_s));
}

TEST_F(GhostScanEdgesTest, sparesAllOfAVendorWithOneApplicationInstalled)
{
    scan.leftover(u"Caches/com.vendor.tool-beta"_s);
    EXPECT_EQ(scan.keys(), QStringList(u"com.vendor.tool-beta"_s));
    scan.app(u"Other"_s, u"com.vendor.other"_s);
    EXPECT_EQ(scan.keys(), QStringList());
}

TEST_F(GhostScanEdgesTest, dropsAKilobyteAndKeepsAByteMore)
{
    scan.preferences(u"com.gone.small.plist"_s, 1024);
    scan.preferences(u"com.gone.large.plist"_s, 1025);
    EXPECT_EQ(scan.keys(), QStringList(u"com.gone.large"_s));
}

TEST_F(GhostScanEdgesTest, countsAllOfAGroupForThat)
{
    scan.preferences(u"com.gone.tool.plist"_s, 1024);
    scan.preferences(u"com.Gone.tool.plist"_s, 1);
    EXPECT_EQ(scan.ghost(u"com.gone.tool"_s).totalSize(), 1025);
}

TEST_F(GhostScanEdgesTest, infersNamesFromIdentifiers)
{
    scan.leftover(u"Caches/com.oldvendor.legacy"_s);
    scan.leftover(u"Caches/com.oldvendor.my-old_tool"_s);
    EXPECT_EQ(scan.ghost(u"com.oldvendor.legacy"_s).inferredName, u"Legacy");
    EXPECT_EQ(scan.ghost(u"com.oldvendor.my-old_tool"_s).inferredName, u"My Old Tool");
}

TEST_F(GhostScanEdgesTest, leavesTheNameOfAFolderInLowerCase)
{
    scan.leftover(u"Application Support/Some Old App"_s);
    EXPECT_EQ(scan.ghost(u"some old app"_s).inferredName, u"some old app");
}

TEST_F(GhostScanEdgesTest, warnsOfNamesThatResembleSomethingInstalled)
{
    scan.app(u"Foo Media Player"_s, u"xy.ab.one"_s);
    scan.leftover(u"Caches/com.gone.foo"_s);
    scan.leftover(u"Caches/com.gone.media"_s);
    EXPECT_FALSE(scan.ghost(u"com.gone.foo"_s).looksInstalled) << "three characters say nothing";
    EXPECT_TRUE(scan.ghost(u"com.gone.media"_s).looksInstalled);
}

TEST_F(GhostScanEdgesTest, keepsThePrefixOfPreferences)
{
    scan.preferences(u"ABCDE12345.com.gone.Tool.plist"_s);
    scan.leftover(u"Group Containers/ABCDE12345.com.gone.Tool"_s);
    EXPECT_EQ(scan.sortedKeys(), (QStringList{u"abcde12345.com.gone.tool"_s, u"com.gone.tool"_s}));
}
