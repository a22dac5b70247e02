#include "common/NotificationNames.h"

#include <gtest/gtest.h>

TEST(NotificationNames, carryTheProgramsName)
{
    EXPECT_EQ(notifications::openSettings, QStringLiteral("Quillmere.openSettings"));
    EXPECT_EQ(notifications::openShortcuts, QStringLiteral("Quillmere.openShortcuts"));
    EXPECT_EQ(notifications::navigate, QStringLiteral("Quillmere.navigate"));
    EXPECT_EQ(notifications::rescan, QStringLiteral("Quillmere.rescan"));
    EXPECT_EQ(notifications::newFolder, QStringLiteral("Quillmere.newFolder"));
    EXPECT_EQ(notifications::openHistory, QStringLiteral("Quillmere.openHistory"));
    EXPECT_EQ(notifications::openOnboarding, QStringLiteral("Quillmere.openOnboarding"));
    EXPECT_EQ(notifications::reportBug, QStringLiteral("Quillmere.reportBug"));
    EXPECT_EQ(notifications::requestFeature, QStringLiteral("Quillmere.requestFeature"));
}
