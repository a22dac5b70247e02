#include "common/CacheLifetime.h"

#include "base/Defaults.h"
#include "common/SettingsKeys.h"

#include <algorithm>

double cacheLifetime(const Defaults &defaults)
{
    constexpr qint64 usual = 5;
    const qint64 minutes = defaults.integer(settings::diskCacheLifetimeMinutes);
    return std::min(static_cast<double>(minutes < 1 ? usual : minutes) * 60, longestCacheLifetime);
}
