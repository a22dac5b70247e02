#pragma once

#include <QString>
#include <QStringList>

/// What tests of child processes run their small scripts with.
inline const QString shell = QStringLiteral("/bin/sh");

/// The shell's arguments for a script. What is appended are the script's own: "$0", "$1" and so on.
inline QStringList script(const QString &text)
{
    return {QStringLiteral("-c"), text};
}
