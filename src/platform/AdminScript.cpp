#include "platform/AdminScript.h"

namespace adminscript {

QString source(const QString &path, const QString &home)
{
    QString escaped = path;
    // Backslashes first: those that escape the quotes must not be doubled.
    escaped.replace(u'\\', QStringLiteral("\\\\"));
    escaped.replace(u'"', QStringLiteral("\\\""));
    return QStringLiteral("do shell script \"/bin/mv -f \\\"") + escaped + QStringLiteral("\\\" \\\"") + home
           + QStringLiteral("/.Trash/\\\"\" with administrator privileges");
}

} // namespace adminscript
