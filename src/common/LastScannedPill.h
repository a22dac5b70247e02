#pragma once

#include "base/Date.h"

#include <QStringList>

#include <optional>

/// Tells how old a cached result is. Whoever shows it moves `now` along.
struct LastScannedPill
{
    std::optional<Date> date;
    double cacheLifetime = 0; ///< seconds
    Date now;

    bool isShown() const { return date.has_value(); }
    /// True from the lifetime's end on, and without a date.
    bool isStale() const { return !(remaining() > 0); }
    /// "Cached · 3 min ago" or "Stale · refreshing soon"; empty without a date.
    QString text() const;
    QString tooltip() const; ///< empty without a date
    /// All that `text` may be, each with numbers as wide as they get: for what keeps its width while the age goes on.
    static QStringList widestTexts();

private:
    double age() const;
    double remaining() const;
};

/// "just now", "12 sec ago", … "2 days ago"; `age` in seconds.
QString ageText(double age);
