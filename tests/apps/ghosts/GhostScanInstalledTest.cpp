#include "GhostScanRun.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// What counts as installed.
struct GhostScanInstalledTest : testing::Test
{
    GhostScanRun scan;
};

} // namespace

TEST_F(GhostScanInstalledTest, areTheBundlesInBothApplicationsFolders)
{
    scan.app(u"Alpha"_s, u"com.ab.one"_s);
    scan.bundle(u"home/Applications/Inner/Beta.app"_s, {{u"CFBundleIdentifier"_s, u"com.cd.two"_s}});
    scan.bundle(u"Applications/Inner/Deep/Gamma.app"_s, {{u"CFBundleIdentifier"_s, u"com.ef.three"_s}});
    for (const QString &entry : {u"com.ab.one"_s, u"com.cd.two"_s, u"com.ef.three"_s})
        scan.leftover(u"Caches/"_s + entry);
    for (const QString &entry : {u"Alpha"_s, u"Beta Data"_s, u"Gamma"_s})
        scan.leftover(u"Application Support/"_s + entry);
    EXPECT_EQ(scan.sortedKeys(), (QStringList{u"com.ef.three"_s, u"gamma"_s})) << "that one lies too deep";
}

// The list of applications keeps inside its folder. What belongs to one outside is spared all the same: it runs from there.
TEST_F(GhostScanInstalledTest, areAlsoThoseBehindALinkOutOfTheFolder)
{
    scan.bundle(u"elsewhere/Far.app"_s, {{u"CFBundleIdentifier"_s, u"com.far.away"_s}});
    scan.test.temp.folder(u"Applications"_s);
    scan.test.temp.link(u"Applications/Games"_s, scan.test.temp.at(u"elsewhere"_s));
    scan.leftover(u"Caches/com.far.away"_s);
    scan.leftover(u"Application Support/Far Data"_s);
    scan.leftover(u"Application Support/Other"_s);
    EXPECT_EQ(scan.keys(), QStringList(u"other"_s));
}

TEST_F(GhostScanInstalledTest, areTheApplicationsOfTheLastScanThoughTheirBundlesAreGone)
{
    RealInstalledApp app;
    app.name = u"Listed"_s;
    app.bundleID = u"com.ab.Listed"_s;
    scan.apps.push_back(app);
    scan.leftover(u"Caches/com.AB.listed.helper"_s);
    scan.leftover(u"Application Support/listed-data"_s);
    scan.leftover(u"Application Support/Other"_s);
    EXPECT_EQ(scan.keys(), QStringList(u"other"_s));
}

TEST_F(GhostScanInstalledTest, haveTheNameThatTheyTellAndThatOfTheirFile)
{
    scan.bundle(u"Applications/Firstname.app"_s,
                {{u"CFBundleName"_s, u"Second"_s}, {u"CFBundleDisplayName"_s, u"Thirdname"_s}});
    scan.bundle(u"Applications/Fourth.app"_s, {{u"CFBundleDisplayName"_s, u"Fifthname"_s}});
    scan.bundle(u"Applications/Without.app"_s, {});
    for (const QString &entry :
         {u"firstname"_s, u"second"_s, u"thirdname"_s, u"fourth"_s, u"fifthname"_s, u"without"_s})
        scan.leftover(u"Application Support/"_s + entry);
    EXPECT_EQ(scan.keys(), QStringList(u"thirdname"_s));
}

TEST_F(GhostScanInstalledTest, areNamedByTheirFileThoughNothingElseCanBeRead)
{
    scan.test.temp.file(u"Applications/Plainfile.app"_s);
    scan.test.temp.file(u"Applications/Broken.app/Contents/Info.plist"_s, "<plist><dict><key>CFBundle");
    scan.leftover(u"Application Support/Plainfile"_s);
    scan.leftover(u"Application Support/Broken"_s);
    scan.leftover(u"Application Support/Other"_s);
    EXPECT_EQ(scan.keys(), QStringList(u"other"_s));
}

TEST_F(GhostScanInstalledTest, mayHaveNamesThatNoFileHas)
{
    const QString endless(100000, u'x');
    scan.bundle(u"Applications/One.app"_s,
                {{u"CFBundleName"_s, QString()}, {u"CFBundleIdentifier"_s, QString()}});
    scan.bundle(u"Applications/Two.app"_s,
                {{u"CFBundleName"_s, u"../.."_s}, {u"CFBundleIdentifier"_s, u".."_s}});
    scan.bundle(u"Applications/Three.app"_s,
                {{u"CFBundleName"_s, endless}, {u"CFBundleIdentifier"_s, u"com."_s + endless}});
    scan.leftover(u"Caches/com.gone.tool"_s);
    scan.leftover(u"Application Support/Some Old Thing"_s);
    const std::vector<GhostApp> ghosts = scan.run();
    ASSERT_EQ(ghosts.size(), 2U);
    EXPECT_FALSE(ghosts[0].looksInstalled || ghosts[1].looksInstalled);
}

TEST_F(GhostScanInstalledTest, areThoseThatTheSystemKnowsWhereTheyStillAre)
{
    scan.leftover(u"Caches/com.known.here.helper"_s);
    scan.leftover(u"Caches/com.known.gone"_s);
    scan.leftover(u"Caches/com.known.none"_s);
    const QString place = scan.test.temp.folder(u"elsewhere/Here.app"_s);
    scan.known = {{u"com.known.here"_s, {scan.test.temp.at(u"nowhere"_s), place}},
                  {u"com.known.gone"_s, {scan.test.temp.at(u"nowhere"_s)}}};
    EXPECT_EQ(scan.sortedKeys(), (QStringList{u"com.known.gone"_s, u"com.known.none"_s}));
}

TEST_F(GhostScanInstalledTest, areAskedOfTheSystemOnceInARun)
{
    for (const QString &folder : {u"Caches/"_s, u"Containers/"_s, u"WebKit/"_s, u"Application Support/"_s})
        scan.leftover(folder + u"com.gone.tool"_s);
    scan.preferences(u"com.gone.tool.plist"_s);
    EXPECT_EQ(scan.keys(), QStringList(u"com.gone.tool"_s));
    EXPECT_EQ(scan.asked, QStringList(u"com.gone.tool"_s));
    scan.run();
    EXPECT_EQ(scan.asked.size(), 2) << "applications come and go between two runs";
}
