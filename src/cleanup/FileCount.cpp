#include "cleanup/FileCount.h"

#include "base/ChildProcess.h"
#include "base/Error.h"
#include "base/Text.h"
#include "platform/ChildPrograms.h"

namespace filecount {

QString line(const QString &path)
{
    QString escaped = path;
    escaped.replace(u'\'', QStringLiteral("'\\''"));
    return QStringLiteral("find '") + escaped
           + QStringLiteral("' -maxdepth 3 -type f 2>/dev/null | head -10000 | wc -l");
}

qint64 count(const ChildPrograms &programs, const QString &path)
{
    ChildProcess shell(programs.sh, {QStringLiteral("-c"), line(path)});
    try {
        shell.launch();
    } catch (const Error &) {
        return 0;
    }
    shell.waitUntilExit();
    return text::parseInteger(shell.readToEnd().trimmed()).value_or(0); // some systems pad the number
}

} // namespace filecount
