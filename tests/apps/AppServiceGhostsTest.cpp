#include "AppServices.h"
#include "base/Files.h"
#include "filesystem/InjectedFaults.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class AppServiceGhostsTest : public testing::Test
{
protected:
    void scanGhosts()
    {
        services.apps->scanGhosts();
        test.settle();
    }

    QStringList keys() const
    {
        QStringList all;
        for (const GhostApp &ghost : services.apps->ghosts())
            all << ghost.bundleID;
        all.sort();
        return all;
    }

    InjectedFaults faults{nullptr}; // taken away at the end
    AppServices services;
    TestPlatform &test = services.test;
};

} // namespace

TEST_F(AppServiceGhostsTest, findsWhatIsLeft)
{
    services.file(u"Caches/com.gone.tool/data"_s);
    services.file(u"Preferences/com.gone.other.plist"_s);
    EXPECT_FALSE(services.apps->hasScannedGhosts());
    scanGhosts();
    EXPECT_EQ(keys(), (QStringList{u"com.gone.other"_s, u"com.gone.tool"_s}));
    EXPECT_TRUE(services.apps->hasScannedGhosts());
}

TEST_F(AppServiceGhostsTest, sparesWhatItListsAlthoughTheBundleIsGone)
{
    const QString bundle =
        services.bundle(u"Listed.app"_s, {{u"CFBundleIdentifier"_s, u"com.vendor.listed"_s}});
    services.file(u"Caches/com.vendor.tool/data"_s);
    services.scan();
    files::move(bundle, test.temp.at(u"away"_s));
    scanGhosts();
    EXPECT_EQ(keys(), QStringList());
    services.scan();
    scanGhosts();
    EXPECT_EQ(keys(), QStringList(u"com.vendor.tool"_s));
}

TEST_F(AppServiceGhostsTest, asksTheSystem)
{
    services.file(u"Caches/com.known.tool.helper/data"_s);
    test.applications.known.insert(u"com.known.tool"_s, {test.temp.folder(u"elsewhere/Tool.app"_s)});
    scanGhosts();
    EXPECT_EQ(keys(), QStringList());
}

TEST_F(AppServiceGhostsTest, isScanningUntilTheListIsThereAndKeepsTheOldOne)
{
    services.file(u"Caches/com.gone.first/data"_s);
    scanGhosts();
    services.file(u"Caches/com.gone.second/data"_s);
    QStringList told;
    const AppService &apps = *services.apps;
    QObject::connect(&apps, &AppService::ghostsChanged,
                     [&] { told << u"ghosts %1"_s.arg(apps.isScanningGhosts()); });
    QObject::connect(&apps, &AppService::isScanningGhostsChanged,
                     [&] { told << u"scanning %1"_s.arg(apps.isScanningGhosts()); });
    QObject::connect(&apps, &AppService::hasScannedGhostsChanged, [&] { told << u"has scanned"_s; });
    services.apps->scanGhosts();
    EXPECT_TRUE(apps.isScanningGhosts());
    EXPECT_EQ(test.workQueue.lastPriority(), WorkPriority::userInitiated);
    test.workQueue.run();
    EXPECT_TRUE(apps.isScanningGhosts());
    EXPECT_EQ(keys(), QStringList(u"com.gone.first"_s));
    test.mainQueue.run();
    EXPECT_EQ(keys(), (QStringList{u"com.gone.first"_s, u"com.gone.second"_s}));
    EXPECT_EQ(told, (QStringList{u"scanning 1"_s, u"ghosts 0"_s, u"scanning 0"_s}));
}

TEST_F(AppServiceGhostsTest, tellsOfTheFirstEndOnce)
{
    int told = 0;
    QObject::connect(services.apps.get(), &AppService::hasScannedGhostsChanged, [&] {
        EXPECT_FALSE(services.apps->isScanningGhosts());
        ++told;
    });
    scanGhosts();
    scanGhosts();
    EXPECT_EQ(told, 1);
}

TEST_F(AppServiceGhostsTest, deliversThePreferencesWhenItIsStoppedAtOnce)
{
    services.file(u"Caches/com.gone.first/data"_s);
    services.file(u"Preferences/com.gone.second.plist"_s);
    services.apps->scanGhosts();
    services.apps->setCancelGhosts(true);
    test.settle();
    EXPECT_EQ(keys(), QStringList(u"com.gone.second"_s));
    EXPECT_FALSE(services.apps->isScanningGhosts());
    EXPECT_TRUE(services.apps->hasScannedGhosts());
    EXPECT_TRUE(services.apps->cancelGhosts());
    EXPECT_FALSE(services.apps->cancelInstalled());
}

TEST_F(AppServiceGhostsTest, forgetsAnEarlierStop)
{
    services.file(u"Caches/com.gone.first/data"_s);
    services.apps->setCancelGhosts(true);
    scanGhosts();
    EXPECT_FALSE(services.apps->cancelGhosts());
    EXPECT_EQ(keys(), QStringList(u"com.gone.first"_s));
}

TEST_F(AppServiceGhostsTest, endsSoonAndDeliversNothingWhenItsServiceHasGone)
{
    for (int i = 0; i < 5; ++i)
        services.file(u"Caches/com.gone.tool%1/data"_s.arg(i));
    const QString probed = test.temp.file(u"probed"_s);
    test.useDu("echo >>'" + paths::toBytes(probed) + "'; echo \"8\t$2\"");
    const QString caches = services.inLibrary(u"Caches"_s);
    files::injectFaults([this, caches](files::Operation operation, const QString &path) {
        if (operation == files::Operation::list && path == caches)
            services.apps.reset();
        return 0;
    });
    services.apps->scanGhosts();
    test.settle();
    EXPECT_EQ(files::readAll(probed, 100), QByteArray());
}

TEST_F(AppServiceGhostsTest, keepsTheResultOfTheLaterOfTwo)
{
    services.file(u"Caches/com.gone.first/data"_s);
    services.apps->scanGhosts();
    test.workQueue.run();
    services.file(u"Caches/com.gone.second/data"_s);
    services.apps->scanGhosts();
    test.mainQueue.run(); // the first one's list
    EXPECT_TRUE(services.apps->isScanningGhosts());
    EXPECT_TRUE(services.apps->ghosts().empty());
    test.settle();
    EXPECT_EQ(keys().size(), 2);
    EXPECT_FALSE(services.apps->isScanningGhosts());
}

TEST_F(AppServiceGhostsTest, goesOnBesideAScanForApplications)
{
    services.file(u"Caches/com.gone.tool/data"_s);
    services.bundle(u"One.app"_s);
    services.apps->scanInstalledApps();
    services.apps->scanGhosts();
    services.apps->setCancelInstalled(true);
    test.settle();
    EXPECT_EQ(keys(), QStringList(u"com.gone.tool"_s));
    EXPECT_TRUE(services.apps->apps().empty());
}
