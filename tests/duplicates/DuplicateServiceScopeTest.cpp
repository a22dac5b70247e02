#include "duplicates/DuplicateServices.h"

#include "common/SettingsKeys.h"
#include "duplicates/HeardSignals.h"

#include <memory>
#include <stdexcept>

#include <gtest/gtest.h>

namespace {

/// What the duplicate finder looks at, and the commands that change it.
struct DuplicateServiceScopeTest : public testing::Test
{
    DuplicateServices services;
    TestPlatform &test = services.test;
    DuplicateService &duplicates = services.duplicates;
    HeardSignals heard{duplicates};
    const QString home = test.home;
    const QStringList defaultRules = {
        home + "/Library", home + "/.Trash", home + "/DerivedData", "node_modules", ".git",
        "DerivedData",     ".build",         "__pycache__",
    };
};

/// The same over this system's own places.
struct DuplicateServiceLinuxScopeTest : public testing::Test
{
    DuplicateServiceLinuxScopeTest() { test.usesLinuxLocations = true; }

    TestPlatform test;
    FileSystemService fileSystem{test.platform, test.probes};
    std::unique_ptr<DuplicateService> makeService()
    {
        return std::make_unique<DuplicateService>(
            test.platform, fileSystem, test.access,
            []() -> HistoryService & { throw std::logic_error("the scope records nothing"); });
    }
};

const QStringList scopeChanged = {QStringLiteral("scopeChanged")};

} // namespace

TEST_F(DuplicateServiceScopeTest, isTheHomeFolderWithEightRulesAtTheStart)
{
    EXPECT_EQ(duplicates.scanPaths(), QStringList{home});
    EXPECT_EQ(duplicates.ignorePaths(), defaultRules);
}

TEST_F(DuplicateServiceScopeTest, addsAScanPathAtTheEndAndASecondTimeNot)
{
    duplicates.addScanPath("/b");
    duplicates.addScanPath("/a");
    EXPECT_EQ(heard.take(), scopeChanged + scopeChanged);
    duplicates.addScanPath("/b");
    duplicates.addScanPath(home);
    EXPECT_EQ(duplicates.scanPaths(), QStringList({home, "/b", "/a"}));
    EXPECT_TRUE(heard.take().isEmpty());
}

TEST_F(DuplicateServiceScopeTest, takesAScanPathAsTheTextThatItIs)
{
    duplicates.addScanPath("/a");
    duplicates.addScanPath("/a/");
    duplicates.addScanPath("/A");
    duplicates.addScanPath("/a/../a");
    EXPECT_EQ(duplicates.scanPaths(), QStringList({home, "/a", "/a/", "/A", "/a/../a"}));
}

TEST_F(DuplicateServiceScopeTest, putsAReplacementInTheOldPathsPlace)
{
    for (const char *path : {"/a", "/b", "/c"})
        duplicates.addScanPath(path);
    heard.take();
    duplicates.replaceScanPath("/b", "/new");
    EXPECT_EQ(duplicates.scanPaths(), QStringList({home, "/a", "/new", "/c"}));
    EXPECT_EQ(heard.take(), scopeChanged);
    duplicates.replaceScanPath(home, "/first");
    EXPECT_EQ(duplicates.scanPaths(), QStringList({"/first", "/a", "/new", "/c"}));
}

TEST_F(DuplicateServiceScopeTest, replacementThatIsListedAlreadyOnlyTakesTheOldPathAway)
{
    for (const char *path : {"/a", "/b", "/c"})
        duplicates.addScanPath(path);
    heard.take();
    duplicates.replaceScanPath("/a", "/c");
    EXPECT_EQ(duplicates.scanPaths(), QStringList({home, "/b", "/c"}));
    EXPECT_EQ(heard.take(), scopeChanged);
    duplicates.replaceScanPath("/c", home);
    EXPECT_EQ(duplicates.scanPaths(), QStringList({home, "/b"}));
}

TEST_F(DuplicateServiceScopeTest, replacingAPathByItselfOrOneThatIsNotListedChangesNothing)
{
    duplicates.addScanPath("/a");
    duplicates.replaceScanPath("/a", "/a");
    EXPECT_EQ(duplicates.scanPaths(), QStringList({home, "/a"}));
    duplicates.replaceScanPath("/missing", "/b");
    EXPECT_EQ(duplicates.scanPaths(), QStringList({home, "/a"}));
    duplicates.replaceScanPath("/missing", "/a");
    EXPECT_EQ(duplicates.scanPaths(), QStringList({home, "/a"}));
}

TEST_F(DuplicateServiceScopeTest, removesAScanPathEvenTheLast)
{
    duplicates.addScanPath("/a");
    heard.take();
    duplicates.removeScanPath(home);
    EXPECT_EQ(duplicates.scanPaths(), QStringList{"/a"});
    duplicates.removeScanPath("/a");
    EXPECT_TRUE(duplicates.scanPaths().isEmpty());
    EXPECT_EQ(heard.take(), scopeChanged + scopeChanged);
    duplicates.removeScanPath("/a");
    EXPECT_TRUE(heard.take().isEmpty());
}

TEST_F(DuplicateServiceScopeTest, addsARuleAtTheEndAndASecondTimeNot)
{
    duplicates.addIgnorePath("/a");
    duplicates.addIgnorePath("vendor");
    EXPECT_EQ(heard.take(), scopeChanged + scopeChanged);
    duplicates.addIgnorePath("/a");
    duplicates.addIgnorePath(".git");
    EXPECT_EQ(duplicates.ignorePaths(), defaultRules + QStringList({"/a", "vendor"}));
    EXPECT_TRUE(heard.take().isEmpty());
}

TEST_F(DuplicateServiceScopeTest, removesARule)
{
    duplicates.addIgnorePath("/a");
    duplicates.addIgnorePath("vendor");
    heard.take();
    duplicates.removeIgnorePath("/a");
    EXPECT_EQ(duplicates.ignorePaths(), defaultRules + QStringList{"vendor"});
    EXPECT_EQ(heard.take(), scopeChanged);
    duplicates.removeIgnorePath("/a");
    EXPECT_EQ(duplicates.ignorePaths(), defaultRules + QStringList{"vendor"});
    EXPECT_TRUE(heard.take().isEmpty());
}

TEST_F(DuplicateServiceScopeTest, isResetToTheHomeFolderAndTheEightRules)
{
    duplicates.addScanPath("/a");
    duplicates.removeScanPath(home);
    duplicates.addIgnorePath("/b");
    duplicates.removeIgnorePath(".git"); // the screen doesn't offer it; the service does as it is told
    duplicates.setMinFileSize(7);
    heard.take();
    duplicates.resetScope();
    EXPECT_EQ(duplicates.scanPaths(), QStringList{home});
    EXPECT_EQ(duplicates.ignorePaths(), defaultRules);
    EXPECT_EQ(duplicates.minFileSize(), 7); // no part of the two lists
    EXPECT_EQ(heard.take(), scopeChanged);
}

TEST_F(DuplicateServiceScopeTest, theEightRulesAreBuiltInWhateverTheListHolds)
{
    duplicates.addIgnorePath("/user");
    duplicates.removeIgnorePath(".git");
    for (const QString &rule : defaultRules)
        EXPECT_TRUE(duplicates.isBuiltIn(rule)) << rule.toStdString();
    for (const QString &rule : {QString("/user"), QString("Node_Modules"), home + "/Library/", QString()})
        EXPECT_FALSE(duplicates.isBuiltIn(rule)) << rule.toStdString();
}

TEST_F(DuplicateServiceScopeTest, aScanPathAtOrBelowABuiltInFolderOverridesIt)
{
    const QString library = home + "/Library";
    EXPECT_FALSE(duplicates.isOverridden(library)); // though it lies below the home folder
    for (const QString &inside : {library, library + "/Mail", library + "/"}) {
        duplicates.addScanPath(inside);
        EXPECT_TRUE(duplicates.isOverridden(library)) << inside.toStdString();
        EXPECT_FALSE(duplicates.isOverridden(home + "/DerivedData"));
        duplicates.removeScanPath(inside);
    }
    for (const QString &beside : {home + "/Lib", home + "/Library2", home + "/library/Mail"}) {
        duplicates.addScanPath(beside);
        EXPECT_FALSE(duplicates.isOverridden(library)) << beside.toStdString();
    }
}

TEST_F(DuplicateServiceScopeTest, noBareRuleAndNoneOfTheUsersIsEverOverridden)
{
    duplicates.addScanPath(home + "/node_modules");
    duplicates.addScanPath("node_modules");
    EXPECT_FALSE(duplicates.isOverridden("node_modules"));
    duplicates.addIgnorePath("/user");
    duplicates.addScanPath("/user");
    duplicates.addScanPath("/user/inside");
    EXPECT_FALSE(duplicates.isOverridden("/user"));
}

TEST_F(DuplicateServiceScopeTest, aBuiltInFolderIsScannedFromARootInItWhileOthersStayOut)
{
    services.file("Library/Mail/x");
    services.file("Library/y");
    services.file("z");
    duplicates.setMinFileSize(0);
    services.scan();
    EXPECT_TRUE(services.shown().isEmpty());
    duplicates.addScanPath(home + "/Lib");
    services.scan();
    EXPECT_TRUE(services.shown().isEmpty());
    duplicates.addScanPath(home + "/Library/Mail");
    services.scan();
    EXPECT_EQ(services.shown(), QStringList{"5: z Library/Mail/x-"});
    duplicates.replaceScanPath(home + "/Library/Mail", home + "/Library");
    services.scan();
    ASSERT_EQ(duplicates.groups().size(), 1U);
    EXPECT_EQ(duplicates.groups()[0].files.size(), 3U);
    EXPECT_TRUE(services.shown()[0].startsWith("5: z "));
}

TEST_F(DuplicateServiceScopeTest, anExclusionOfTheUserThatHoldsAScanPathHasNoEffectOnIt)
{
    services.file("one/x");
    services.file("one/y");
    duplicates.setMinFileSize(0);
    services.useScanPaths({"one"});
    duplicates.addIgnorePath(home);
    duplicates.addIgnorePath(home + "/one");
    services.scan();
    EXPECT_EQ(duplicates.groups().size(), 1U);
    EXPECT_FALSE(duplicates.isOverridden(home + "/one"));
    services.useScanPaths({});
    duplicates.addScanPath(home);
    duplicates.addIgnorePath(home + "/one");
    services.scan();
    EXPECT_TRUE(duplicates.groups().empty());
}

TEST_F(DuplicateServiceScopeTest, smallestSizeIsReadFromTheSettingsAtTheStart)
{
    EXPECT_EQ(duplicates.minFileSize(), 102400); // nothing stored
    test.defaults.registerDefaults(settings::registeredDefaults());
    EXPECT_EQ(services.makeAnother()->minFileSize(), 102400);
    const std::pair<QVariant, qint64> stored[] = {
        {qint64(5000), 5000},
        {0, 0},
        {qint64(1) << 40, qint64(1) << 40},
        {QStringLiteral("5000"), 102400},
        {true, 102400},
        {false, 102400},
        {1.5, 102400},
        {QVariantList{5000}, 102400},
    };
    for (const auto &[value, expected] : stored) {
        test.defaults.set(settings::duplicateMinSize, value);
        EXPECT_EQ(services.makeAnother()->minFileSize(), expected) << value.typeName();
    }
    EXPECT_EQ(duplicates.minFileSize(), 102400); // a running one does not look again
}

TEST_F(DuplicateServiceScopeTest, smallestSizeIsWrittenThroughAtOnce)
{
    duplicates.setMinFileSize(qint64(3) << 32);
    EXPECT_EQ(duplicates.minFileSize(), qint64(3) << 32);
    EXPECT_EQ(test.defaults.integerIfAny(settings::duplicateMinSize), qint64(3) << 32);
    EXPECT_EQ(heard.take(), QStringList{"minFileSizeChanged"});
}

TEST_F(DuplicateServiceScopeTest, aRestartKeepsTheSmallestSizeAndBringsTheListsBack)
{
    duplicates.setMinFileSize(1234);
    duplicates.addScanPath("/a");
    duplicates.removeScanPath(home);
    duplicates.addIgnorePath("/b");
    duplicates.removeIgnorePath("DerivedData");
    const auto next = services.makeAnother();
    EXPECT_EQ(next->minFileSize(), 1234);
    EXPECT_EQ(next->scanPaths(), QStringList{home});
    EXPECT_EQ(next->ignorePaths(), defaultRules);
}

TEST_F(DuplicateServiceLinuxScopeTest, keepsTheFoldersOfSnapsOutAsItsNinthRule)
{
    const auto duplicates = makeService();
    const QString snap = test.home + "/snap";
    ASSERT_EQ(duplicates->ignorePaths().size(), 9);
    EXPECT_EQ(duplicates->ignorePaths().last(), snap);
    test.temp.file("home/a", "equal");
    test.temp.file("home/snap/app/12/b", "equal");
    test.temp.link("home/snap/app/current", "12");
    duplicates->setMinFileSize(0);
    duplicates->scan();
    test.settle();
    EXPECT_TRUE(duplicates->groups().empty());
}

TEST_F(DuplicateServiceLinuxScopeTest, treatsTheNinthRuleLikeTheOthers)
{
    const auto duplicates = makeService();
    const QString snap = test.home + "/snap";
    EXPECT_TRUE(duplicates->isBuiltIn(snap));
    EXPECT_FALSE(duplicates->isOverridden(snap));
    duplicates->addScanPath(snap + "/app");
    EXPECT_TRUE(duplicates->isOverridden(snap));
    duplicates->removeIgnorePath(snap);
    duplicates->resetScope();
    EXPECT_EQ(duplicates->ignorePaths().last(), snap);
    EXPECT_FALSE(duplicates->isOverridden(snap));
}
