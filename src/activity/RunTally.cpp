#include "activity/RunTally.h"

#include "activity/HistoryEntry.h"
#include "base/Sums.h"

#include <algorithm>

namespace {

constexpr qsizetype mostToldFailures = 5;

} // namespace

void RunTally::succeeded(const QString &path, qint64 size)
{
    done.append(path);
    bytes = sums::saturated(bytes, size);
}

void RunTally::failed(const QString &path, const Error &error)
{
    failures.append(path + QStringLiteral(": ") + error.description);
}

QStringList RunTally::recordedPaths() const
{
    return done.first(std::min(done.size(), HistoryEntry::mostPaths));
}

QString RunTally::firstFailures() const
{
    return failures.first(std::min(failures.size(), mostToldFailures)).join(u'\n');
}
