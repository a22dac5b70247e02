#include "apps/uninstall/BulkUninstall.h"

#include "base/Ids.h"

#include <QMap>
#include <QSet>
#include <QStringList>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// A run over "A", "B" and "C" of 100 bytes each.
struct BulkUninstallTest : public testing::Test
{
    QMap<QString, UninstallReport>
        reports;                 ///< by name; the bundle and one file of 5 bytes go where there is none
    QSet<QString> administrated; ///< names of those that go as an administrator
    QStringList asked;           ///< "uninstall A", in order
    QStringList gone;

    UninstallResult run(const QStringList &names = {u"A"_s, u"B"_s, u"C"_s})
    {
        std::vector<RealInstalledApp> apps;
        for (const QString &name : names) {
            RealInstalledApp app;
            app.id = ids::fresh();
            app.name = name;
            app.size = 100;
            apps.push_back(app);
        }
        BulkUninstall bulk(apps);
        bulk.run({[this](const RealInstalledApp &app) {
                      asked << u"uninstall "_s + app.name;
                      return reports.value(app.name, {{}, true, {}, 1, 0, 105});
                  },
                  [this](const RealInstalledApp &app) {
                      asked << u"administrator "_s + app.name;
                      return administrated.contains(app.name);
                  }});
        for (const RealInstalledApp &app : bulk.gone())
            gone << app.name;
        return bulk.result();
    }

    static UninstallReport refused(int filesRemoved)
    {
        return {{}, false, Error{u"Platform"_s, 1, u"No."_s}, filesRemoved, 0, qint64{5} * filesRemoved};
    }
};

} // namespace

TEST_F(BulkUninstallTest, tellsThatAllWentWell)
{
    const UninstallResult result = run();
    EXPECT_EQ(asked, QStringList({u"uninstall A"_s, u"uninstall B"_s, u"uninstall C"_s}));
    EXPECT_EQ(gone, QStringList({u"A"_s, u"B"_s, u"C"_s}));
    EXPECT_TRUE(result.success);
    EXPECT_EQ(result.appName, u"3 apps");
    EXPECT_EQ(result.error, std::nullopt);
    EXPECT_EQ(result.removedCount, 6);
    EXPECT_EQ(result.freedSize, 315);
    EXPECT_FALSE(result.id.isNull());
    EXPECT_EQ(result.retryableApp, std::nullopt);
}

TEST_F(BulkUninstallTest, asksForAnAdministratorWhenAllOthersAreThrough)
{
    reports = {{u"A"_s, refused(1)}, {u"B"_s, refused(0)}};
    administrated = {u"A"_s, u"B"_s};
    const UninstallResult result = run();
    EXPECT_EQ(asked, QStringList({u"uninstall A"_s, u"uninstall B"_s, u"uninstall C"_s, u"administrator A"_s,
                                  u"administrator B"_s}));
    EXPECT_EQ(gone, QStringList({u"C"_s, u"A"_s, u"B"_s}));
    EXPECT_TRUE(result.success);
    EXPECT_EQ(result.removedCount, 1 + 0 + 2 + 1 + 1);
    EXPECT_EQ(result.freedSize, 5 + 0 + 105 + 100 + 100);
}

TEST_F(BulkUninstallTest, goesOnAfterARefusedPassword)
{
    reports = {{u"A"_s, refused(0)}, {u"B"_s, refused(0)}};
    administrated = {u"B"_s};
    const UninstallResult result = run();
    EXPECT_EQ(gone, QStringList({u"C"_s, u"B"_s}));
    EXPECT_FALSE(result.success);
    EXPECT_EQ(result.appName, u"2 of 3 apps");
    EXPECT_EQ(result.error, u"Some apps could not be uninstalled.");
}

TEST_F(BulkUninstallTest, tellsOfAppsThatAreHalfGone)
{
    reports = {{u"A"_s, refused(2)}, {u"B"_s, refused(0)}};
    const UninstallResult result = run();
    EXPECT_FALSE(result.success);
    EXPECT_EQ(result.appName, u"1 of 3 apps (1 partial)");
    EXPECT_EQ(result.error, u"Some apps couldn't be moved to Trash, but their associated files were cleaned. "
                            u"Reveal those apps in "
                            u"Finder to remove them manually — no ghost files left behind.");
    EXPECT_EQ(result.removedCount, 2 + 2);
    EXPECT_EQ(result.freedSize, 10 + 105);
}

TEST_F(BulkUninstallTest, isNoLongerPartialOnceAnAdministratorHasHelped)
{
    reports = {{u"A"_s, refused(2)}, {u"B"_s, refused(0)}};
    administrated = {u"A"_s};
    EXPECT_EQ(run().appName, u"2 of 3 apps");
}

TEST_F(BulkUninstallTest, neverCountsFewerThanNonePartial)
{
    // The bundle has gone and a file had to stay: tried again, though it was never counted as partial.
    reports = {{u"A"_s, {{}, true, {}, 1, 1, 105}}, {u"B"_s, refused(0)}};
    administrated = {u"A"_s};
    EXPECT_EQ(run().appName, u"2 of 3 apps");
    reports.insert(u"B"_s, refused(3));
    EXPECT_EQ(run().appName, u"2 of 3 apps"); // the one of B makes up for that of A
}

TEST_F(BulkUninstallTest, countsTheBundleAgainThatHadGoneWithoutItsFiles)
{
    reports = {{u"A"_s, {{}, true, {}, 0, 1, 100}}};
    administrated = {u"A"_s};
    const UninstallResult result = run({u"A"_s});
    EXPECT_TRUE(result.success);
    EXPECT_EQ(result.appName, u"1 apps");
    EXPECT_EQ(result.removedCount, 2);
    EXPECT_EQ(result.freedSize, 200);
}
