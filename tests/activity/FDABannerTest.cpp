#include "activity/FDABanner.h"

#include "activity/FDAContexts.h"
#include "common/NotificationNames.h"
#include "support/TestPlatform.h"

#include <gtest/gtest.h>

using namespace fdacontexts;

namespace {

struct FDABannerTest : public testing::Test
{
    TestPlatform test;
    FDAService &service = test.access;

    void grant() { test.temp.folder(QStringLiteral("home/Library/Safari")); }
    void becomeActive() { test.notifications.post(notifications::becameActive); }
};

} // namespace

TEST_F(FDABannerTest, aGrantWhileRunningShowsForEveryToolAtOnce)
{
    FDABanner finder(service, duplicates);
    FDABanner disk(service, analyzer);
    service.markDenied(duplicates);
    service.hasFullDiskAccess();
    test.settle();
    EXPECT_TRUE(finder.isShown());
    EXPECT_FALSE(disk.isShown());

    grant();
    becomeActive();
    test.settle();
    for (const FDABanner *banner : {&finder, &disk}) {
        EXPECT_TRUE(banner->isShown());
        EXPECT_EQ(banner->title(), QStringLiteral("Full Disk Access enabled"));
        EXPECT_EQ(banner->text(), QStringLiteral("Restart Quillmere to start using protected folders."));
        EXPECT_EQ(banner->symbol(), QStringLiteral("checkmark.shield.fill"));
        EXPECT_EQ(banner->buttonText(), QStringLiteral("Restart now"));
        EXPECT_EQ(banner->buttonSymbol(), QStringLiteral("arrow.clockwise"));
        EXPECT_EQ(banner->buttonTip(),
                  QStringLiteral("Quit and reopen Quillmere so the new permission takes effect"));
        EXPECT_FALSE(banner->canBeHidden());
    }
    // A grant found on coming to the front leaves the denied tools as they are.
    EXPECT_TRUE(service.deniedContexts().contains(duplicates));
}

TEST_F(FDABannerTest, staysHiddenForTheToolThatHidItAlone)
{
    FDABanner finder(service, duplicates);
    FDABanner cleaner(service, cleanup);
    service.markDenied(duplicates);
    service.markDenied(cleanup);
    test.settle();
    finder.hide();
    test.settle();
    service.markDenied(duplicates); // a later scan
    test.settle();
    EXPECT_FALSE(finder.isShown());
    EXPECT_TRUE(cleaner.isShown());
}

TEST_F(FDABannerTest, leadsToTheSettingsWhileAccessIsDenied)
{
    FDABanner banner(service, analyzer);
    service.markDenied(analyzer);
    test.settle();
    EXPECT_EQ(banner.title(), QStringLiteral("Some folders couldn't be scanned"));
    EXPECT_EQ(banner.text(),
              QStringLiteral("Quillmere needs Full Disk Access to read protected folders. Find "
                             "Quillmere in the list and toggle the switch on."));
    EXPECT_EQ(banner.symbol(), QStringLiteral("lock.shield.fill"));
    EXPECT_EQ(banner.buttonText(), QStringLiteral("Open System Settings"));
    EXPECT_EQ(banner.buttonSymbol(), QString());
    EXPECT_EQ(banner.buttonTip(), QString());
    EXPECT_EQ(banner.hideTip(), QStringLiteral("Hide for this session"));
    EXPECT_TRUE(banner.canBeHidden());
    banner.act();
    EXPECT_EQ(test.workspace.settingsPage,
              "x-apple.systempreferences:com.apple.preference.security?Privacy_AllFiles");
    EXPECT_TRUE(service.isPolling());
}

TEST_F(FDABannerTest, asksTheDiskAgainWhenItAppears)
{
    service.hasFullDiskAccess();
    grant();
    FDABanner banner(service, analyzer);
    banner.appear();
    test.settle();
    EXPECT_TRUE(service.grantedAfterPrompt());
}
