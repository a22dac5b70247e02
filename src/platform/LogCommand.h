#pragma once

#include <QString>
#include <QStringList>

/// Reading the log back through the base system's `log` tool, where the system has one.
namespace logcommand {

/// The arguments that ask for the program's lines of the last `hours`.
QStringList arguments(int hours);

/// Runs `program` with them and gives what it printed; empty when that is not UTF-8. Blocks. Throws Error (the
/// system's) when it can't be started.
QString read(const QString &program, int hours);

} // namespace logcommand
