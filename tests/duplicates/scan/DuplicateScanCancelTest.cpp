#include "duplicates/scan/DuplicateScan.h"

#include "CallCounts.h"
#include "OrderedFiles.h"
#include "ScanRun.h"

#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace {

using Done = std::vector<std::pair<size_t, size_t>>;
using Groups = std::vector<QStringList>;

} // namespace

TEST(DuplicateScan, tellsOfEachSharedSizeThatItHasCompared)
{
    const OrderedFiles home({"a", "b", "unique", "four", "four", "fives", "fives"});
    ScanRun run(home.scanPaths);
    EXPECT_EQ(run.run().groups.size(), 2U);
    EXPECT_EQ(run.entered, home.scanPaths);
    EXPECT_EQ(run.comparisons, 1);
    EXPECT_EQ(run.done, (Done{{1, 3}, {2, 3}, {3, 3}}));
}

TEST(DuplicateScan, comparesNothingWhenItIsCancelledBeforeTheWalk)
{
    const OrderedFiles home({"same", "same"});
    ScanRun run(home.scanPaths);
    run.isCancelled = [] { return true; };
    const auto result = run.run();
    EXPECT_TRUE(result.wasCancelledInWalk);
    EXPECT_TRUE(result.groups.empty());
    EXPECT_EQ(run.entered, QStringList());
    EXPECT_EQ(run.comparisons, 0);
}

TEST(DuplicateScan, comparesNothingWhenItIsCancelledInTheWalk)
{
    const OrderedFiles home({"same", "same", "same"});
    ScanRun run(home.scanPaths);
    run.isCancelled = [&run] { return run.entered.size() == 2; };
    const CallCounts calls;
    const auto result = run.run();
    EXPECT_TRUE(result.wasCancelledInWalk);
    EXPECT_TRUE(result.wasCancelled);
    EXPECT_TRUE(result.groups.empty());
    EXPECT_EQ(result.hashFailureCount, 0);
    EXPECT_EQ(run.entered, home.scanPaths.first(2));
    EXPECT_EQ(run.comparisons, 0);
    EXPECT_EQ(calls.opened, QStringList());
}

TEST(DuplicateScan, comparesNothingWhenItIsCancelledInTheLastFolder)
{
    const OrderedFiles home({"same", "same"});
    ScanRun run(home.scanPaths);
    run.isCancelled = [&run] { return run.entered.size() == 2; };
    EXPECT_TRUE(run.run().wasCancelledInWalk);
    EXPECT_EQ(run.comparisons, 0);
}

TEST(DuplicateScan, givesNoGroupsWhenItIsCancelledAfterTheWalk)
{
    const OrderedFiles home({"same", "same"});
    ScanRun run(home.scanPaths);
    run.isCancelled = [&run] { return run.comparisons == 1; };
    const CallCounts calls;
    const auto result = run.run();
    EXPECT_FALSE(result.wasCancelledInWalk);
    EXPECT_TRUE(result.wasCancelled);
    EXPECT_TRUE(result.groups.empty());
    EXPECT_EQ(run.done, Done());
    EXPECT_EQ(calls.opened, QStringList());
}

TEST(DuplicateScan, givesTheGroupsAmongWhatWasComparedWhenItIsCancelledWithinASize)
{
    const OrderedFiles home({"same", "same", "same", "same"});
    ScanRun run(home.scanPaths);
    bool isCancelled = false;
    run.isCancelled = [&isCancelled] { return isCancelled; };
    const CallCounts calls([&](files::Operation operation, const QString &path) {
        isCancelled = isCancelled || (operation == files::Operation::read && path == home.files[2]);
        return 0;
    });
    const auto result = run.run();
    EXPECT_TRUE(result.wasCancelled);
    EXPECT_FALSE(result.wasCancelledInWalk);
    EXPECT_EQ(ScanRun::paths(result), Groups{home.files.first(3)}) << "the file under way is read";
    EXPECT_EQ(calls.readFiles, home.files.first(3));
    EXPECT_EQ(run.done, (Done{{1, 1}}));
}

TEST(DuplicateScan, givesSortedGroupsOfTheSizesThatItCameTo)
{
    const OrderedFiles home({"same", "same", "longer", "longer", "a", "a"});
    ScanRun run(home.scanPaths);
    run.isCancelled = [&run] { return run.done.size() == 2; };
    const auto result = run.run();
    EXPECT_TRUE(result.wasCancelled);
    ASSERT_EQ(result.groups.size(), 2U);
    EXPECT_GE(result.groups[0].wastedBytes(), result.groups[1].wastedBytes());
    EXPECT_EQ(run.done, (Done{{1, 3}, {2, 3}}));
}
