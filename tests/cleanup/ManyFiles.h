#pragma once

#include "base/Paths.h"
#include "support/TempHome.h"

#include <filesystem>

/// Makes that many empty files in a folder of the test's. All are names of one file, which are made in far less time than
/// files of their own.
inline void makeManyFiles(const TempHome &temp, const QString &folder, int count)
{
    const QString first = temp.file(folder + QStringLiteral("/file 0"));
    const std::filesystem::path native = paths::toBytes(first).toStdString();
    for (int number = 1; number < count; ++number)
        std::filesystem::create_hard_link(native, native.parent_path() / ("file " + std::to_string(number)));
}
