#include "activity/Diagnostics.h"

#include "base/Error.h"

namespace {
constexpr int hoursOfDay = 24;
}

namespace diagnostics {

QString recentLogs(SystemLog &log, int hours)
{
    try {
        return log.recentEntries(hours);
    } catch (const Error &error) {
        return QStringLiteral("Couldn't read system log: ") + error.description;
    }
}

void copyDiagnosticLogs(SystemLog &log, Workspace &workspace)
{
    const QString lines = recentLogs(log, hoursOfDay);
    workspace.copyText(lines.isEmpty() ? QStringLiteral("(no entries in the last 24h)") : lines);
}

} // namespace diagnostics
