#include "filesystem/InjectedFaults.h"
#include "GhostScanRun.h"

#include <limits>
#include <set>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct GhostScanTest : testing::Test
{
    GhostScanRun scan;
};

} // namespace

TEST_F(GhostScanTest, findsNothingInAHomeWithoutALibrary)
{
    EXPECT_EQ(scan.keys(), QStringList());
}

TEST_F(GhostScanTest, findsWhatIsLeftInEachFolder)
{
    const QStringList entries{u"Caches/com.gone.tool"_s,
                              u"Application Support/com.gone.tool"_s,
                              u"Containers/com.gone.tool"_s,
                              u"Group Containers/group.com.gone.tool"_s,
                              u"Saved Application State/com.gone.tool.savedState"_s,
                              u"HTTPStorages/com.gone.tool.binarycookies"_s,
                              u"WebKit/com.gone.tool"_s};
    QStringList expected;
    for (const QString &entry : entries)
        expected << scan.leftover(entry);
    expected << scan.preferences(u"com.gone.tool.plist"_s);
    const std::vector<GhostApp> ghosts = scan.run();
    ASSERT_EQ(ghosts.size(), 1U);
    EXPECT_EQ(GhostScanRun::pathsOf(ghosts[0]), expected);
    QStringList categories;
    for (const AssociatedFile &file : ghosts[0].files)
        categories << file.category;
    EXPECT_EQ(categories, (QStringList{u"Cache"_s, u"Support"_s, u"Container"_s, u"Container"_s, u"Other"_s,
                                       u"Other"_s, u"Other"_s, u"Preferences"_s}));
}

TEST_F(GhostScanTest, tellsAllOfAGroup)
{
    const QString path = scan.leftover(u"Caches/com.OldVendor.my-old_tool"_s);
    const QString list = scan.preferences(u"com.oldvendor.my-old_tool.plist"_s, 77);
    const GhostApp ghost = scan.ghost(u"com.oldvendor.my-old_tool"_s);
    EXPECT_EQ(ghost.inferredName, u"My Old Tool");
    EXPECT_TRUE(ghost.selected);
    EXPECT_FALSE(ghost.looksInstalled);
    ASSERT_EQ(ghost.files.size(), 2U);
    EXPECT_EQ(ghost.files[0].path, path);
    EXPECT_EQ(ghost.files[0].size, scan.test.probes.probeSize(path, ProbeContext::generic));
    EXPECT_EQ(ghost.files[1].path, list);
    EXPECT_EQ(ghost.files[1].size, 77) << "the file's own, not what it takes on the disk";
    EXPECT_TRUE(ghost.files[0].selected && ghost.files[1].selected);
    EXPECT_EQ((std::set{QUuid(), ghost.id, ghost.files[0].id, ghost.files[1].id}).size(), 4U);
}

TEST_F(GhostScanTest, putsTheLargestFirstAndEqualOnesAsTheyWereFound)
{
    scan.test.useDu("case \"$2\" in *small) printf '4\\t';; *) printf '8\\t';; esac\n");
    scan.leftover(u"Caches/com.gone.small"_s);
    scan.leftover(u"Application Support/com.gone.second"_s);
    scan.leftover(u"Containers/com.gone.third"_s);
    scan.leftover(u"WebKit/com.gone.fourth"_s);
    scan.leftover(u"WebKit/com.gone.small"_s);
    scan.preferences(u"com.gone.small.plist"_s, 1);
    EXPECT_EQ(scan.keys(), (QStringList{u"com.gone.small"_s, u"com.gone.second"_s, u"com.gone.third"_s,
                                        u"com.gone.fourth"_s}));
}

TEST_F(GhostScanTest, sumsUpMoreThanACountHolds)
{
    scan.test.useDu("printf '9007199254740991\\t'\n");
    scan.leftover(u"Caches/com.gone.tool"_s);
    scan.leftover(u"WebKit/com.gone.tool"_s);
    EXPECT_EQ(scan.ghost(u"com.gone.tool"_s).totalSize(), std::numeric_limits<qint64>::max());
}

TEST_F(GhostScanTest, leavesOutWhatMeasuresNothing)
{
    scan.test.useDu("case \"$2\" in *Caches*) printf '0\\t';; *) printf '8\\t';; esac\n");
    scan.leftover(u"Caches/com.gone.tool"_s);
    scan.leftover(u"Caches/com.gone.other"_s);
    const QString left = scan.leftover(u"WebKit/com.gone.tool"_s);
    scan.preferences(u"com.gone.tool.plist"_s, 0);
    const std::vector<GhostApp> ghosts = scan.run();
    ASSERT_EQ(ghosts.size(), 1U);
    EXPECT_EQ(GhostScanRun::pathsOf(ghosts[0]), QStringList(left));
}

TEST_F(GhostScanTest, measuresOnlyWhatHasPassedAllTests)
{
    scan.app(u"Example"_s, u"com.example.app"_s);
    scan.leftover(u"Caches/com.example.app"_s);
    scan.leftover(u"Caches/SomeTool"_s);
    scan.leftover(u"Application Support/Example"_s);
    scan.leftover(u"Containers/com.apple.mail"_s);
    const QString asked = scan.test.temp.at(u"asked"_s);
    scan.test.useDu("echo \"$2\" >>" + paths::toBytes(asked) + "\nprintf '8\\t'\n");
    EXPECT_EQ(scan.keys(), QStringList());
    EXPECT_FALSE(files::exists(asked));
}

TEST_F(GhostScanTest, leavesOutFoldersThatCannotBeRead)
{
    scan.leftover(u"Caches/com.gone.first"_s);
    scan.leftover(u"Containers/com.gone.second"_s);
    scan.preferences(u"com.gone.third.plist"_s);
    {
        const InjectedFaults faults(files::Operation::list, scan.inLibrary(u"Caches"_s));
        EXPECT_EQ(scan.sortedKeys(), (QStringList{u"com.gone.second"_s, u"com.gone.third"_s}));
    }
    const InjectedFaults faults(files::Operation::list, scan.inLibrary(u"Preferences"_s));
    EXPECT_EQ(scan.sortedKeys(), (QStringList{u"com.gone.first"_s, u"com.gone.second"_s}));
}

TEST_F(GhostScanTest, leavesOutPreferencesThatVanish)
{
    scan.preferences(u"com.gone.first.plist"_s);
    const InjectedFaults faults(files::Operation::attributes, scan.preferences(u"com.gone.second.plist"_s));
    EXPECT_EQ(scan.keys(), QStringList(u"com.gone.first"_s));
}

TEST_F(GhostScanTest, readsNothingBehindALinkAsAnEntry)
{
    scan.test.temp.file(u"home/Documents/big"_s, QByteArray(200000, 'x'));
    scan.test.temp.link(u"home/Library/Caches/com.gone.tool"_s, scan.test.temp.at(u"home/Documents"_s));
    EXPECT_LT(scan.ghost(u"com.gone.tool"_s).totalSize(), 100000) << "the link itself takes next to nothing";
}

TEST_F(GhostScanTest, holdsNamesInAnyBytes)
{
    const QString bytes = QChar(0xDCFF) + u"gone"_s + QChar(0xDC80);
    const QString path = scan.leftover(u"Application Support/"_s + bytes);
    EXPECT_EQ(GhostScanRun::pathsOf(scan.ghost(bytes)), QStringList(path));
}

TEST_F(GhostScanTest, putsEncodingsOfOneNameInOneGroup)
{
    const QStringList paths{scan.leftover(u"Caches/com.gone.caf\u00E9"_s),
                            scan.leftover(u"Containers/com.gone.cafe\u0301"_s)};
    EXPECT_EQ(GhostScanRun::pathsOf(scan.ghost(u"com.gone.caf\u00E9"_s)), paths);
}

// A stop.

TEST_F(GhostScanTest, readsPreferencesAloneOnceItIsStopped)
{
    scan.leftover(u"Caches/com.gone.first"_s);
    scan.preferences(u"com.gone.second.plist"_s);
    scan.isCancelled = [] { return true; };
    EXPECT_EQ(scan.keys(), QStringList(u"com.gone.second"_s));
}

TEST_F(GhostScanTest, stopsAheadOfTheNextEntry)
{
    scan.leftover(u"Caches/com.gone.first"_s);
    scan.leftover(u"Caches/com.gone.second"_s);
    scan.leftover(u"Containers/com.gone.third"_s);
    scan.preferences(u"com.gone.fourth.plist"_s);
    int questions = 0; // ahead of the first folder, then ahead of each entry
    scan.isCancelled = [&questions] { return ++questions > 2; };
    const QStringList keys = scan.sortedKeys();
    EXPECT_EQ(keys.size(), 2);
    EXPECT_TRUE(keys.contains(u"com.gone.fourth"_s));
    EXPECT_FALSE(keys.contains(u"com.gone.third"_s));
    EXPECT_EQ(questions, 4) << "one of them ended the entries, the last one the folders";
}
