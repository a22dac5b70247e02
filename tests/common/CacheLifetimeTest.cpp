#include "common/CacheLifetime.h"

#include "base/Defaults.h"
#include "common/SettingsKeys.h"

#include <limits>

#include <gtest/gtest.h>

namespace {

double lifetimeOf(const QVariant &stored)
{
    Defaults defaults;
    defaults.registerDefaults(settings::registeredDefaults());
    if (stored.isValid())
        defaults.set(settings::diskCacheLifetimeMinutes, stored);
    return cacheLifetime(defaults);
}

} // namespace

TEST(CacheLifetime, isTheStoredMinutesInSeconds)
{
    EXPECT_EQ(lifetimeOf(1), 60);
    EXPECT_EQ(lifetimeOf(60), 3600);
}

TEST(CacheLifetime, isFiveMinutesWhereLessOrNoNumberIsStored)
{
    for (const QVariant &stored : {QVariant(), QVariant(0), QVariant(-1), QVariant(QStringLiteral("60")),
                                   QVariant(std::numeric_limits<qint64>::min())})
        EXPECT_EQ(lifetimeOf(stored), 300);
}

TEST(CacheLifetime, isHeldToWhatFits64Bits)
{
    EXPECT_EQ(lifetimeOf(std::numeric_limits<qint64>::max()), longestCacheLifetime);
    EXPECT_EQ(lifetimeOf(qint64(1) << 56), 60 * 0x1p56);
}
