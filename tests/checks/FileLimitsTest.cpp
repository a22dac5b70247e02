#include "base/Paths.h"
#include "support/TempHome.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// A file that is longer does more than one thing; lines at most, by the ending of its name.
const std::map<std::string, std::ptrdiff_t> limits = {{".cpp", 400}, {".h", 200}, {".qml", 250}};

/// The files at and below `root` that are over their limit, each with its lines.
std::vector<std::string> tooLong(const std::filesystem::path &root)
{
    std::vector<std::string> found;
    for (const auto &entry : std::filesystem::recursive_directory_iterator(root)) {
        const auto limit = limits.find(entry.path().extension().string());
        if (!entry.is_regular_file() || limit == limits.end())
            continue;
        std::ifstream file(entry.path(), std::ios::binary);
        const auto lines =
            std::count(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>(), '\n');
        if (lines > limit->second)
            found.push_back(entry.path().lexically_relative(root).string() + ": " + std::to_string(lines));
    }
    std::ranges::sort(found);
    return found;
}

} // namespace

TEST(FileLimits, areKept)
{
    for (const char *folder : {"src", "tests", "tools", "benchmarks"}) {
        for (const std::string &file : tooLong(std::filesystem::path(QUILLMERE_SOURCE_DIR) / folder))
            ADD_FAILURE() << folder << '/' << file << " lines";
    }
}

TEST(FileLimits, findTheFilesThatAreTooLong)
{
    const TempHome temp;
    temp.file(u"deep/Full.h"_s, QByteArray("x\n").repeated(200));
    temp.file(u"deep/Long.h"_s, QByteArray("x\n").repeated(201));
    temp.file(u"Long.qml"_s, QByteArray("\n").repeated(251));
    temp.file(u"Long.cpp"_s, QByteArray("x\n").repeated(401));
    temp.file(u"Long.md"_s, QByteArray("x\n").repeated(5000));
    EXPECT_EQ(tooLong(paths::toBytes(temp.path()).toStdString()),
              (std::vector<std::string>{"Long.cpp: 401", "Long.qml: 251", "deep/Long.h: 201"}));
}
