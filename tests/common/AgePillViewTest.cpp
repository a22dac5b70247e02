#include "common/AgePillView.h"

#include "common/CacheLifetime.h"
#include "common/SettingsKeys.h"
#include "support/TestPlatform.h"

#include <QSignalSpy>

#include <limits>

#include <gtest/gtest.h>

namespace {

struct AgePillViewTest : ::testing::Test
{
    TestPlatform test;
    AgePillView pill{test.platform, [this] { return cacheLifetime(test.defaults); }};
};

} // namespace

TEST_F(AgePillViewTest, isShownWithAResultWhileNoScanRuns)
{
    EXPECT_FALSE(pill.isShown());
    pill.set(std::nullopt, true);
    EXPECT_FALSE(pill.isShown());
    pill.set(test.clock.now(), false);
    EXPECT_TRUE(pill.isShown());
    EXPECT_EQ(pill.text(), QStringLiteral("Cached · just now"));
    pill.set(test.clock.now(), true);
    EXPECT_FALSE(pill.isShown());
}

TEST_F(AgePillViewTest, saysNothingWithoutAResult)
{
    EXPECT_EQ(pill.text() + pill.tooltip(), QString());
}

TEST_F(AgePillViewTest, movesOnEveryThirtySeconds)
{
    pill.set(test.clock.now(), false);
    const QSignalSpy changes(&pill, &AgePillView::changed);
    test.clock.advance(180);
    EXPECT_EQ(pill.text(), QStringLiteral("Cached · just now"));
    test.mainQueue.advance(29);
    EXPECT_EQ(changes.count(), 0);
    test.mainQueue.advance(2);
    EXPECT_EQ(changes.count(), 1);
    EXPECT_EQ(pill.text(), QStringLiteral("Cached · 3 min ago"));
    EXPECT_EQ(pill.tooltip(),
              QStringLiteral(
                  "Last scanned 3 min ago. Auto-refresh in 2 min 0 sec, or click Refresh to update now."));
    EXPECT_FALSE(pill.isStale());
    test.clock.advance(120);
    test.mainQueue.advance(30);
    EXPECT_TRUE(pill.isStale());
    EXPECT_EQ(pill.text(), QStringLiteral("Stale · refreshing soon"));
    EXPECT_EQ(pill.tooltip(), QStringLiteral("Cache expired — next view will re-scan automatically."));
}

TEST_F(AgePillViewTest, isOfThisMomentWheneverTheResultChanges)
{
    pill.set(test.clock.now(), false);
    test.clock.advance(7);
    pill.set(test.clock.now(), false);
    EXPECT_EQ(pill.text(), QStringLiteral("Cached · just now"));
    test.clock.advance(7);
    pill.set(test.clock.now(), true);
    EXPECT_EQ(pill.text(), QStringLiteral("Cached · just now"));
}

TEST_F(AgePillViewTest, takesItsLifetimeAsTheSettingsStand)
{
    const Date scanned = test.clock.now();
    test.clock.advance(400);
    pill.set(scanned, false);
    EXPECT_TRUE(pill.isStale());
    test.defaults.set(settings::diskCacheLifetimeMinutes, 10);
    EXPECT_EQ(pill.text(), QStringLiteral("Cached · 6 min ago"));
}

TEST_F(AgePillViewTest, bearsALifetimeAtTheEndOf64Bits)
{
    test.defaults.set(settings::diskCacheLifetimeMinutes, std::numeric_limits<qint64>::max());
    pill.set(test.clock.now(), false);
    EXPECT_EQ(pill.text(), QStringLiteral("Cached · just now"));
    EXPECT_TRUE(pill.tooltip().startsWith(QStringLiteral("Last scanned just now. Auto-refresh in 7686143")))
        << pill.tooltip().toStdString();
}
