#include "apps/uninstall/RunningCheck.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

bool runs(const QString &running)
{
    return runningcheck::isRunning(u"/Applications/Notes.app"_s, {u"/usr/bin/env"_s, running});
}

} // namespace

TEST(RunningCheck, knowsTheBundleItself)
{
    EXPECT_TRUE(runs(u"/Applications/Notes.app"_s));
    EXPECT_TRUE(runs(u"/Applications/Notes.app/"_s));
}

TEST(RunningCheck, countsAProgramInsideTheBundle)
{
    EXPECT_TRUE(runs(u"/Applications/Notes.app/Contents/MacOS/Notes"_s));
    EXPECT_TRUE(runs(u"/Applications/Notes.app/Contents/Library/Helper.app"_s));
}

TEST(RunningCheck, countsABundleInsideARunningOne)
{
    EXPECT_TRUE(
        runningcheck::isRunning(u"/Applications/Suite.app/Notes.app"_s, {u"/Applications/Suite.app"_s}));
}

TEST(RunningCheck, comparesStandardisedPaths)
{
    EXPECT_TRUE(runs(u"/Applications/./Utilities/../Notes.app/Contents/MacOS/Notes"_s));
    EXPECT_FALSE(runs(u"/Applications/Notes.app/../Other.app"_s));
}

TEST(RunningCheck, countsANeighbourWhoseNameGoesOn)
{
    EXPECT_TRUE(runs(u"/Applications/Notes.apple"_s));
}

TEST(RunningCheck, passesOverAllElse)
{
    EXPECT_FALSE(runs(u"/Applications/Other.app/Contents/MacOS/Other"_s));
    EXPECT_FALSE(runs(u"/opt/Applications/Notes.app"_s));
    EXPECT_FALSE(runs(u""_s));
    EXPECT_FALSE(runningcheck::isRunning(u"/Applications/Notes.app"_s, {}));
}
