#include "base/Paths.h"
#include "duplicates/Contents.h"
#include "duplicates/scan/DuplicateScan.h"
#include "duplicates/scan/ScanRun.h"
#include "support/TempHome.h"

#include <algorithm>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// The content of a pair: no two pairs share one, and many share a size.
QByteArray contentOf(int pair)
{
    return QByteArray::number(100000 + pair) + QByteArray(pair % 100, 'x');
}

} // namespace

/// A folder of a thousand files and links to it, which the walk follows: a million files found, for little disk.
TEST(LargeDuplicateScan, groupsAMillionEmptyFiles)
{
    constexpr int folders = 1000;
    constexpr int filesInEach = 1000;
    constexpr size_t count = size_t(folders) * filesInEach;
    const TempHome temp;
    for (int number = 0; number < filesInEach; ++number)
        temp.file(u"0/%1"_s.arg(number));
    for (int number = 1; number < folders; ++number)
        temp.link(QString::number(number), u"0"_s);
    const auto result = ScanRun({temp.path()}).run();
    EXPECT_EQ(result.hashFailureCount, 0);
    ASSERT_EQ(result.groups.size(), 1U);
    const DuplicateFileGroup &group = result.groups.front();
    EXPECT_EQ(group.hash, contents::sha256({}));
    EXPECT_EQ(group.wastedBytes(), 0);
    ASSERT_EQ(group.files.size(), count);
    std::vector<bool> found(count);
    for (const DuplicateFileEntry &file : group.files) {
        const size_t folder = paths::lastComponent(paths::parent(file.path)).toULong();
        found.at(folder * filesInEach + file.name.toULong()) = true;
    }
    EXPECT_EQ(std::count(found.begin(), found.end(), true), count) << "each under its own path";
    EXPECT_TRUE(group.files.front().keep);
    EXPECT_TRUE(std::none_of(group.files.begin() + 1, group.files.end(),
                             [](const DuplicateFileEntry &file) { return file.keep; }));
}

/// Each file has its copy in a link to its folder.
TEST(LargeDuplicateScan, findsFiftyThousandGroups)
{
    constexpr int pairs = 50000;
    const TempHome temp;
    for (int pair = 0; pair < pairs; ++pair)
        temp.file(u"1/%1"_s.arg(pair), contentOf(pair));
    temp.link(u"2"_s, u"1"_s);
    ScanRun run({temp.at(u"1"_s), temp.at(u"2"_s)});
    const auto result = run.run();
    EXPECT_EQ(result.hashFailureCount, 0);
    EXPECT_EQ(run.done.size(), 100U) << "sizes";
    ASSERT_EQ(result.groups.size(), size_t(pairs));
    std::vector<bool> found(pairs);
    for (const DuplicateFileGroup &group : result.groups) {
        const QString &name = group.files.front().name;
        const int pair = name.toInt();
        ASSERT_EQ(ScanRun::paths(group), QStringList({temp.at(u"1/"_s + name), temp.at(u"2/"_s + name)}));
        ASSERT_EQ(group.hash, contents::sha256(contentOf(pair)));
        ASSERT_EQ(group.wastedBytes(), contentOf(pair).size());
        found.at(static_cast<size_t>(pair)) = true;
    }
    EXPECT_EQ(std::count(found.begin(), found.end(), true), pairs);
    EXPECT_TRUE(std::is_sorted(result.groups.begin(), result.groups.end(),
                               [](const DuplicateFileGroup &left, const DuplicateFileGroup &right) {
                                   return left.wastedBytes() > right.wastedBytes();
                               }));
}
