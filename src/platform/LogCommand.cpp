#include "platform/LogCommand.h"

#include "base/ChildProcess.h"
#include "platform/SystemLog.h"

namespace logcommand {

QStringList arguments(int hours)
{
    return {
        QStringLiteral("show"),
        QStringLiteral("--predicate"),
        QStringLiteral("subsystem == \"%1\"").arg(SystemLog::subsystem),
        QStringLiteral("--last"),
        QStringLiteral("%1h").arg(hours),
        QStringLiteral("--style"),
        QStringLiteral("compact"),
    };
}

QString read(const QString &program, int hours)
{
    ChildProcess process(program, arguments(hours));
    process.launch();
    // A day's log is larger than a pipe holds, and a full pipe would keep the tool from ending: here the output
    // is drained first.
    const QByteArray output = process.readToEnd();
    process.waitUntilExit();
    return output.isValidUtf8() ? QString::fromUtf8(output) : QString();
}

} // namespace logcommand
