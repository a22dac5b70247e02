#include "AppServices.h"

#include "base/Files.h"
#include "filesystem/InjectedFaults.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class AppServiceScanTest : public testing::Test
{
protected:
    void makeFive() const
    {
        for (int i = 0; i < 5; ++i)
            services.bundle(u"App %1.app"_s.arg(i), {{u"CFBundleVersion"_s, u"1"_s}});
    }

    /// Runs `block` once, while a scan has the second bundle at hand.
    void duringTheSecondBundle(std::function<void()> block)
    {
        files::injectFaults(
            [seen = 0, block = std::move(block)](files::Operation operation, const QString &path) mutable {
                if (operation == files::Operation::open && path.endsWith(u"/Info.plist") && ++seen == 2)
                    block();
                return 0;
            });
    }

    InjectedFaults faults{nullptr}; // taken away at the end
    AppServices services;
    TestPlatform &test = services.test;
};

} // namespace

TEST_F(AppServiceScanTest, listsWhatABundleTells)
{
    const QString path = services.bundle(u"Tide Tables.app"_s,
                                         {{u"CFBundleName"_s, u"Tides"_s},
                                          {u"CFBundleShortVersionString"_s, u"2.1"_s},
                                          {u"CFBundleIdentifier"_s, u"com.Example.Tides"_s},
                                          {u"CFBundleIconFile"_s, u"Tides.icns"_s}},
                                         50000);
    services.scan();
    ASSERT_EQ(services.apps->apps().size(), 1U);
    const RealInstalledApp app = services.apps->apps().front();
    EXPECT_FALSE(app.id.isNull());
    EXPECT_EQ(app.name, u"Tides");
    EXPECT_EQ(app.version, u"2.1");
    EXPECT_EQ(app.bundleID, u"com.Example.Tides");
    EXPECT_EQ(app.path, path);
    EXPECT_EQ(app.icon, path + u"/Contents/Resources/Tides.icns"_s);
    EXPECT_EQ(app.size, test.probes.probeSize(path, ProbeContext::generic));
    EXPECT_GE(app.size, 50000);
    EXPECT_EQ(app.lastUsed, files::attributes(path)->modified);
    EXPECT_TRUE(app.associatedFiles.empty());
    EXPECT_EQ(app.totalSize(), app.size);
    EXPECT_FALSE(app.selected);
}

TEST_F(AppServiceScanTest, standsInForWhatABundleDoesNotTell)
{
    services.bundle(u"Plain.app"_s);
    services.scan();
    ASSERT_EQ(services.apps->apps().size(), 1U);
    const RealInstalledApp app = services.apps->apps().front();
    EXPECT_EQ(app.name, u"Plain");
    EXPECT_EQ(app.version, u"\u2014");
    EXPECT_EQ(app.bundleID, u"unknown");
    EXPECT_EQ(app.icon, std::nullopt);
}

TEST_F(AppServiceScanTest, tellsWhenTheBundleWasLastModified)
{
    MadeBundle{.path = services.inApplications(u"Old.app"_s), .days = 400}.make();
    services.scan();
    ASSERT_EQ(services.apps->apps().size(), 1U);
    const std::optional<Date> lastUsed = services.apps->apps().front().lastUsed;
    ASSERT_TRUE(lastUsed);
    const double age = dates::secondsBetween(*lastUsed, std::chrono::system_clock::now());
    EXPECT_NEAR(age / (24 * 60 * 60), 400, 0.1);
}

TEST_F(AppServiceScanTest, listsTheFolderForApplicationsAlone)
{
    services.bundle(u"One.app"_s);
    services.bundle(u"Utilities/Two.app"_s);
    services.bundle(u"Utilities/Tools/Three.app"_s);
    MadeBundle{.path = paths::join(test.home, u"Applications/Four.app"_s)}.make();
    services.scan();
    QStringList names = services.names();
    names.sort();
    EXPECT_EQ(names, (QStringList{u"One"_s, u"Two"_s}));
}

TEST_F(AppServiceScanTest, putsTheLargestBundleFirstWhateverBelongsToIt)
{
    services.bundle(u"Small.app"_s, {{u"CFBundleIdentifier"_s, u"com.example.small"_s}}, 10000);
    services.bundle(u"Large.app"_s, {}, 200000);
    services.bundle(u"Middle.app"_s, {}, 100000);
    services.file(u"Caches/com.example.small/data"_s, 500000);
    services.scan();
    EXPECT_EQ(services.names(), (QStringList{u"Large"_s, u"Middle"_s, u"Small"_s}));
}

TEST_F(AppServiceScanTest, keepsEqualOnesInTheOrderInWhichTheyWereFound)
{
    test.useDu("echo \"8\t$2\"");
    for (int i = 0; i < 40; ++i)
        services.bundle(u"App %1.app"_s.arg(i * 7 % 40));
    QStringList listed;
    const auto names = files::list(services.inApplications({}));
    for (const QString &name : *names)
        listed << paths::stem(name);
    services.scan();
    EXPECT_EQ(services.names(), listed);
}

TEST_F(AppServiceScanTest, measuresAnUnmeasurableBundleAsNothing)
{
    test.useDu("exit 1");
    services.bundle(u"One.app"_s);
    services.scan();
    ASSERT_EQ(services.apps->apps().size(), 1U);
    EXPECT_EQ(services.apps->apps().front().size, 0);
}

TEST_F(AppServiceScanTest, leavesOutWhatIsNoBundle)
{
    test.temp.file(u"Applications/File.app"_s);
    test.temp.link(u"Applications/Nowhere.app"_s, u"missing"_s);
    services.bundle(u"One.app"_s);
    services.scan();
    EXPECT_EQ(services.names(), QStringList(u"One"_s));
}

TEST_F(AppServiceScanTest, findsNothingWithoutAFolderForApplications)
{
    services.scan();
    EXPECT_TRUE(services.apps->apps().empty());
    EXPECT_FALSE(services.apps->isLoading());
}

TEST_F(AppServiceScanTest, leavesOutABundleThatVanishesMeanwhile)
{
    test.useDu("rm -rf '" + paths::toBytes(services.inApplications({})) + "'/*; echo \"8\t$2\"");
    for (int i = 0; i < 3; ++i)
        services.bundle(u"App %1.app"_s.arg(i));
    services.scan();
    ASSERT_EQ(services.apps->apps().size(), 1U); // the one at hand when all went
    EXPECT_EQ(services.apps->apps().front().size, 8192);
    EXPECT_EQ(services.apps->apps().front().lastUsed, std::nullopt);
}

TEST_F(AppServiceScanTest, givesFreshIdsEachTime)
{
    services.bundle(u"One.app"_s);
    services.scan();
    const QUuid first = services.apps->apps().front().id;
    services.scan();
    EXPECT_NE(services.apps->apps().front().id, first);
}

TEST_F(AppServiceScanTest, isLoadingUntilTheListIsThereAndKeepsTheOldOne)
{
    services.bundle(u"One.app"_s);
    services.scan();
    services.bundle(u"Two.app"_s, {}, 100000);
    QStringList told;
    QObject::connect(services.apps.get(), &AppService::appsChanged,
                     [&] { told << u"apps %1"_s.arg(services.apps->isLoading()); });
    QObject::connect(services.apps.get(), &AppService::isLoadingChanged,
                     [&] { told << u"loading %1"_s.arg(services.apps->isLoading()); });
    services.apps->scanInstalledApps();
    EXPECT_TRUE(services.apps->isLoading());
    EXPECT_EQ(test.workQueue.lastPriority(), WorkPriority::userInitiated);
    test.workQueue.run();
    EXPECT_TRUE(services.apps->isLoading());
    EXPECT_EQ(services.names(), QStringList(u"One"_s));
    test.mainQueue.run();
    EXPECT_EQ(services.names(), (QStringList{u"Two"_s, u"One"_s}));
    EXPECT_EQ(told, (QStringList{u"loading 1"_s, u"apps 0"_s, u"loading 0"_s}));
}

TEST_F(AppServiceScanTest, deliversAsFarAsItCameWhenItIsStopped)
{
    makeFive();
    duringTheSecondBundle([this] { services.apps->setCancelInstalled(true); });
    services.scan();
    EXPECT_EQ(services.apps->apps().size(), 2U); // the one at hand is listed to its end
    EXPECT_FALSE(services.apps->isLoading());
    EXPECT_TRUE(services.apps->cancelInstalled());
}

TEST_F(AppServiceScanTest, deliversNothingWhenItIsStoppedAtOnce)
{
    makeFive();
    services.scan();
    services.apps->scanInstalledApps();
    services.apps->setCancelInstalled(true);
    EXPECT_TRUE(services.apps->isLoading());
    test.settle();
    EXPECT_TRUE(services.apps->apps().empty());
    EXPECT_FALSE(services.apps->isLoading());
}

TEST_F(AppServiceScanTest, forgetsAnEarlierStop)
{
    makeFive();
    services.apps->setCancelInstalled(true);
    services.scan();
    EXPECT_FALSE(services.apps->cancelInstalled());
    EXPECT_EQ(services.apps->apps().size(), 5U);
}

TEST_F(AppServiceScanTest, endsSoonAndDeliversNothingWhenItsServiceHasGone)
{
    makeFive();
    const QString probed = test.temp.file(u"probed"_s);
    test.useDu("echo >>'" + paths::toBytes(probed) + "'; echo \"8\t$2\"");
    duringTheSecondBundle([this] { services.apps.reset(); });
    services.apps->scanInstalledApps();
    test.settle();
    EXPECT_EQ(files::readAll(probed, 100).count('\n'), 2);
}

TEST_F(AppServiceScanTest, listsAgainWhatIsThereThoughItWasTakenOut)
{
    const QString path = services.bundle(u"One.app"_s);
    services.scan();
    services.apps->takeOut(std::vector<RealInstalledApp>(services.apps->apps()));
    EXPECT_FALSE(services.at(path));
    services.scan();
    EXPECT_TRUE(services.at(path));
}

TEST_F(AppServiceScanTest, keepsTheResultOfTheLaterOfTwo)
{
    services.bundle(u"One.app"_s);
    services.apps->scanInstalledApps();
    test.workQueue.run();
    const QString second = services.bundle(u"Two.app"_s);
    services.apps->scanInstalledApps();
    test.mainQueue.run(); // the first one's list
    EXPECT_TRUE(services.apps->isLoading());
    EXPECT_TRUE(services.apps->apps().empty());
    test.settle();
    EXPECT_TRUE(services.at(second));
    EXPECT_FALSE(services.apps->isLoading());
}
