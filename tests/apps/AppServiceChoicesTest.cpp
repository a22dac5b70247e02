#include "AppServices.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// The lists of applications and ghosts as the service keeps them between two scans.
struct AppServiceChoicesTest : public testing::Test
{
    AppServices services;
    TestPlatform &test = services.test;
    AppService &apps = *services.apps;

    void SetUp() override
    {
        services.bundle(u"Alpha.app"_s, {{u"CFBundleIdentifier"_s, u"net.first.alpha"_s}}, 90000);
        services.bundle(u"Beta.app"_s, {{u"CFBundleIdentifier"_s, u"net.second.beta"_s}}, 50000);
        services.file(u"Caches/org.vanished.tool/data"_s, 50000);
        services.file(u"Preferences/org.vanished.tool.plist"_s);
        services.file(u"Caches/org.departed.thing/data"_s, 9000);
        services.scan();
        apps.scanGhosts();
        test.settle();
    }

    QStringList keys() const
    {
        QStringList all;
        for (const GhostApp &ghost : apps.ghosts())
            all << ghost.bundleID;
        return all;
    }
};

} // namespace

TEST_F(AppServiceChoicesTest, ticksApplicationsByTheirIds)
{
    const QSignalSpy changes(&apps, &AppService::appChanged);
    apps.toggleApp(apps.apps()[1].id);
    EXPECT_TRUE(apps.apps()[1].selected);
    apps.toggleApp(QUuid::createUuid());
    ASSERT_EQ(changes.count(), 1);
    EXPECT_EQ(changes[0][0].value<size_t>(), 1U);
    apps.toggleApp(apps.apps()[0].id);
    apps.clearSelection();
    EXPECT_FALSE(apps.apps()[0].selected);
    EXPECT_FALSE(apps.apps()[1].selected);
}

TEST_F(AppServiceChoicesTest, ticksGhostsAndTheirFiles)
{
    EXPECT_TRUE(apps.ghosts()[0].selected);
    apps.toggleGhost(apps.ghosts()[0].id);
    EXPECT_FALSE(apps.ghosts()[0].selected);
    apps.selectAllGhosts(true);
    EXPECT_TRUE(apps.ghosts()[0].selected);
    apps.selectAllGhosts(false);
    EXPECT_FALSE(apps.ghosts()[1].selected);
    GhostApp changed = apps.ghosts()[0];
    changed.files[1].selected = false;
    apps.takeFileTicks(changed);
    EXPECT_FALSE(apps.ghosts()[0].files[1].selected);
    apps.toggleGhost(QUuid::createUuid());
    apps.takeFileTicks(GhostApp());
}

TEST_F(AppServiceChoicesTest, takesOutWhatIsGone)
{
    const QSignalSpy shrunk(&apps, &AppService::appsShrunk);
    apps.takeOut(std::vector<RealInstalledApp>{apps.apps()[0]});
    EXPECT_EQ(services.names(), QStringList{u"Beta"_s});
    apps.takeOut(std::vector<GhostApp>{apps.ghosts()[1]});
    EXPECT_EQ(keys(), QStringList{u"org.vanished.tool"_s});
    EXPECT_EQ(shrunk.count(), 1);
}

TEST_F(AppServiceChoicesTest, takesOutWhatAnotherScanHasListedMeanwhile)
{
    const std::vector<RealInstalledApp> goneApps{apps.apps()[0]};
    const std::vector<GhostApp> goneGhosts{apps.ghosts()[0]};
    services.scan();
    apps.scanGhosts();
    test.settle();
    ASSERT_NE(apps.apps()[0].id, goneApps[0].id);
    apps.takeOut(goneApps);
    EXPECT_EQ(services.names(), QStringList{u"Beta"_s});
    apps.takeOut(goneGhosts);
    EXPECT_EQ(keys(), QStringList{u"org.departed.thing"_s});
}

TEST_F(AppServiceChoicesTest, uninstallsAndRecords)
{
    const RealInstalledApp app = apps.apps()[0];
    const UninstallReport report = apps.uninstall(app, {});
    EXPECT_EQ(test.recycler.recycled, QStringList{app.path});
    EXPECT_EQ(report.appPath, app.path);
    test.settle();
    EXPECT_EQ(services.madeHistory->entries().size(), 1U);
}
