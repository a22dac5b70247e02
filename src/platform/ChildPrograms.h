#pragma once

#include <QString>

/// Where the programs of the base system are that we run as child processes. Absolute paths.
struct ChildPrograms
{
    QString du = QStringLiteral("/usr/bin/du");
    QString find = QStringLiteral("/usr/bin/find");
    QString sh = QStringLiteral("/bin/sh");
    QString pkexec =
        QStringLiteral("/usr/bin/pkexec");  ///< asks for an administrator and runs as one; Linux only
    QString mv = QStringLiteral("/bin/mv"); ///< what an administrator's move runs
};
