#pragma once

#include <QString>

struct ChildPrograms;

/// How many files a folder holds, for a label: at most 10,000, and none more than three levels down.
namespace filecount {

/// The shell's line that counts. The path may hold any bytes.
QString line(const QString &path);

/// Runs it. 0 where the shell can't be started or prints no number. Blocks; any thread but the main one.
qint64 count(const ChildPrograms &programs, const QString &path);

} // namespace filecount
