#include "common/LastScannedPill.h"

#include "common/CacheLifetime.h"

#include <algorithm>

namespace {
constexpr qint64 minute = 60;
constexpr qint64 hour = 60 * minute;
constexpr qint64 day = 24 * hour;
} // namespace

QString ageText(double age)
{
    const auto seconds = static_cast<qint64>(age);
    if (seconds < 5)
        return QStringLiteral("just now");
    if (seconds < minute)
        return QStringLiteral("%1 sec ago").arg(seconds);
    if (seconds < hour)
        return QStringLiteral("%1 min ago").arg(seconds / minute);
    if (seconds < day)
        return QStringLiteral("%1 hr ago").arg(seconds / hour);
    return seconds < 2 * day ? QStringLiteral("%1 day ago").arg(seconds / day)
                             : QStringLiteral("%1 days ago").arg(seconds / day);
}

namespace {

const QString staleText = QStringLiteral("Stale · refreshing soon");

QString cachedText(double age)
{
    return QStringLiteral("Cached · %1").arg(ageText(age));
}

} // namespace

double LastScannedPill::age() const
{
    return date ? dates::secondsBetween(*date, now) : 0;
}

double LastScannedPill::remaining() const
{
    return date ? std::min(cacheLifetime - age(), longestCacheLifetime) : 0;
}

QString LastScannedPill::text() const
{
    if (!isShown())
        return {};
    return isStale() ? staleText : cachedText(age());
}

QStringList LastScannedPill::widestTexts()
{
    QStringList texts{staleText};
    for (const qint64 age : {qint64(0), qint64(44), 44 * minute, 20 * hour, day, 44 * day})
        texts << cachedText(static_cast<double>(age));
    return texts;
}

QString LastScannedPill::tooltip() const
{
    if (!isShown())
        return {};
    if (isStale())
        return QStringLiteral("Cache expired — next view will re-scan automatically.");
    const auto left = static_cast<qint64>(remaining());
    return QStringLiteral("Last scanned %1. Auto-refresh in %2 min %3 sec, or click Refresh to update now.")
        .arg(ageText(age()))
        .arg(left / minute)
        .arg(left % minute);
}
