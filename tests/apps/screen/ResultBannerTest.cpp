#include "apps/screen/ResultBanner.h"

#include "support/SteppedQueues.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct ResultBannerTest : public testing::Test
{
    SteppedMainQueue queue;
    ResultBanner banner{queue};

    static UninstallResult success(const QString &name)
    {
        UninstallResult result;
        result.appName = name;
        result.removedCount = 3;
        result.freedSize = 2048;
        result.success = true;
        return result;
    }
};

} // namespace

TEST_F(ResultBannerTest, isDownAtFirst)
{
    EXPECT_FALSE(banner.isUp());
    EXPECT_FALSE(banner.isSuccess());
    EXPECT_FALSE(banner.hasRetry());
    EXPECT_EQ(banner.title(), QString());
    EXPECT_EQ(banner.detail(), QString());
}

TEST_F(ResultBannerTest, tellsASuccess)
{
    const QSignalSpy changes(&banner, &ResultBanner::changed);
    banner.show(success(u"Notes"_s));
    EXPECT_EQ(changes.count(), 1);
    EXPECT_TRUE(banner.isUp());
    EXPECT_TRUE(banner.isSuccess());
    EXPECT_EQ(banner.title(), u"Notes cleaned");
    EXPECT_EQ(banner.detail(), u"3 items moved to Trash · 2.0 KB freed");
}

TEST_F(ResultBannerTest, tellsAFailure)
{
    UninstallResult result = success(u"Line\nFeed"_s);
    result.success = false;
    banner.show(result);
    EXPECT_EQ(banner.title(), u"Failed: Line↵Feed");
    EXPECT_EQ(banner.detail(), u"Unknown error");
    result.error = u"a\u202Eb\nc"_s; // a name in it is told by whoever made the application
    banner.show(result);
    EXPECT_EQ(banner.detail(), u"a\uFFFDb↵c");
    result.error = u"No."_s;
    result.retryableApp = RealInstalledApp();
    banner.show(result);
    EXPECT_EQ(banner.detail(), u"No.");
    EXPECT_TRUE(banner.hasRetry());
}

TEST_F(ResultBannerTest, goesAfterItsTime)
{
    banner.show(success(u"Notes"_s), 3);
    queue.advance(2.9);
    EXPECT_TRUE(banner.isUp());
    queue.advance(0.2);
    EXPECT_FALSE(banner.isUp());
}

TEST_F(ResultBannerTest, takesANewerOneAlongWhenTheTimeOfAnOlderIsOver)
{
    banner.show(success(u"Old"_s), 3);
    queue.advance(2);
    banner.show(success(u"New"_s), 3);
    EXPECT_EQ(banner.title(), u"New cleaned");
    queue.advance(1.1);
    EXPECT_FALSE(banner.isUp());
    queue.advance(5);
    EXPECT_FALSE(banner.isUp());
}

TEST_F(ResultBannerTest, staysWithoutATime)
{
    banner.show(success(u"Notes"_s));
    queue.advance(1000);
    EXPECT_TRUE(banner.isUp());
    banner.clear();
    EXPECT_FALSE(banner.isUp());
}
