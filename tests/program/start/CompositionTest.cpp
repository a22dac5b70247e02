#include "program/Composition.h"

#include "support/TestPlatform.h"

#include <gtest/gtest.h>

// In a program of its own: services live once a process, and which of them are there already is what is asked.

TEST(Composition, makesNoServiceButTheDisksAheadOfTheWindow)
{
    TestPlatform early;
    TestPlatform late;
    Appearance appearance;
    const Composition started(early.platform, appearance, {}, [] {});
    EXPECT_EQ(early.systemInfo.volumeQueries, 1); // what the sidebar's first picture needs

    // A service takes the platform of its first use: one that was not made yet takes that of a second composition.
    Composition second(late.platform, appearance, {}, [] {});
    second.disk().getDiskUsage();
    EXPECT_EQ(early.systemInfo.volumeQueries, 3);
    EXPECT_EQ(late.systemInfo.volumeQueries, 0);
    second.fileSystem().revealInFinder(late.home);
    EXPECT_EQ(late.workspace.calls.size(), 1);
    second.access().openSystemSettings();
    EXPECT_FALSE(late.workspace.settingsPage.isEmpty());
    EXPECT_TRUE(second.history().fileURL().startsWith(late.home));
    EXPECT_EQ(second.duplicates().scanPaths(), QStringList(late.home));
    const size_t jobs = late.workQueue.waiting();
    second.cleanup().scan();
    EXPECT_EQ(late.workQueue.waiting(), jobs + 1);
    EXPECT_TRUE(early.workspace.calls.isEmpty());
}
