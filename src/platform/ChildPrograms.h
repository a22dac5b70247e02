#pragma once

#include <QString>

/// Where the programs of the base system are that we run as child processes. Absolute paths.
struct ChildPrograms {
    QString du = QStringLiteral("/usr/bin/du");
};
