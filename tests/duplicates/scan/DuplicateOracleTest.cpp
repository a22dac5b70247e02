#include "DuplicateOracle.h"

#include "base/Paths.h"
#include "duplicates/scan/DuplicateScan.h"
#include "RandomTree.h"
#include "ScanRun.h"

#include <algorithm>
#include <tuple>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

std::vector<std::string> bytes(const QStringList &list)
{
    std::vector<std::string> all;
    for (const QString &path : list)
        all.push_back(paths::toBytes(path).toStdString());
    return all;
}

QStringList randomScanPaths(RandomTree &tree)
{
    QStringList all;
    for (int left = tree.upTo(3); left >= 0; --left) {
        QString path = tree.chance(50) ? tree.root() : tree.any(tree.folders());
        if (tree.chance(15))
            path += tree.chance(50) ? u"/"_s : u"/../"_s + paths::lastComponent(path);
        if (tree.chance(5))
            path += u" missing"_s;
        if (tree.chance(5) && !tree.files().isEmpty())
            path = tree.any(tree.files());
        all << path;
    }
    return all;
}

QStringList randomRules(RandomTree &tree)
{
    QStringList all = {tree.root() + u"/Library"_s};
    for (const QString &rule : {u"node_modules"_s, u".git"_s, u"a"_s, u"d7"_s, paths::fromBytes("\xFF")}) {
        if (tree.chance(25))
            all << rule;
    }
    for (int left = tree.upTo(3); left > 0; --left) {
        QString rule = tree.any(tree.folders());
        if (rule == tree.root() && tree.chance(80))
            continue; // seldom the whole
        if (tree.chance(15))
            rule.chop(1);
        if (tree.chance(15))
            rule += u'/';
        all << rule;
    }
    return all;
}

ScanRun randomRun(RandomTree &tree)
{
    ScanRun run(randomScanPaths(tree), tree.any(std::vector<qint64>{0, 1, 1000}));
    run.request.ignorePaths = randomRules(tree);
    for (const QString &file : tree.files()) {
        if (tree.chance(5))
            run.request.markedForDeletion.insert(file);
    }
    return run;
}

std::vector<DuplicateOracle::Group> sorted(std::vector<DuplicateOracle::Group> groups)
{
    std::sort(groups.begin(), groups.end(), [](const auto &left, const auto &right) {
        return std::tie(left.size, left.hash) < std::tie(right.size, right.hash);
    });
    return groups;
}

std::vector<DuplicateOracle::Group> plain(const duplicatescan::Result &result)
{
    std::vector<DuplicateOracle::Group> all;
    for (const DuplicateFileGroup &group : result.groups) {
        DuplicateOracle::Group made{group.hash.toStdString(), group.size, bytes(ScanRun::paths(group)), {}};
        for (const DuplicateFileEntry &file : group.files) {
            made.keep.push_back(file.keep);
            EXPECT_EQ(file.name, paths::lastComponent(file.path));
        }
        all.push_back(made);
    }
    return all;
}

class DuplicateOracleTest : public testing::TestWithParam<unsigned>
{
};

} // namespace

/// Several scopes over one tree.
TEST_P(DuplicateOracleTest, agreesWithTheScan)
{
    RandomTree tree(GetParam());
    for (int scope = 0; scope < 5; ++scope) {
        ScanRun run = randomRun(tree);
        if (scope == 0)
            run.request = {{tree.root()}, {}, 0, {}};
        const auto result = run.run();
        DuplicateOracle oracle{
            bytes(run.request.scanPaths), bytes(run.request.ignorePaths), run.request.minFileSize, {}};
        for (const QString &path : run.request.markedForDeletion)
            oracle.marked.insert(paths::toBytes(path).toStdString());
        ASSERT_EQ(sorted(plain(result)), sorted(oracle.groups())) << "scope " << scope;
        EXPECT_EQ(bytes(run.entered), oracle.visited()) << "scope " << scope;
        EXPECT_EQ(result.hashFailureCount, 0);
        EXPECT_TRUE(std::is_sorted(result.groups.begin(), result.groups.end(),
                                   [](const DuplicateFileGroup &left, const DuplicateFileGroup &right) {
                                       return left.wastedBytes() > right.wastedBytes();
                                   }));
        EXPECT_TRUE(scope > 0 || !result.groups.empty());
    }
}

INSTANTIATE_TEST_SUITE_P(RandomTrees, DuplicateOracleTest, testing::Range(1U, 49U));
