#include "common/SettingsKeys.h"

#include "base/Defaults.h"

#include <gtest/gtest.h>

TEST(SettingsKeys, giveANewUserTheirDefaultsWithoutAnyWrite)
{
    Defaults defaults;
    defaults.registerDefaults(settings::registeredDefaults());
    EXPECT_TRUE(defaults.boolean(QStringLiteral("settings.confirmBeforeDelete")));
    EXPECT_FALSE(defaults.boolean(QStringLiteral("settings.showHiddenFilesDefault")));
    EXPECT_TRUE(defaults.boolean(QStringLiteral("settings.cleanupRequireReview")));
    EXPECT_EQ(defaults.integer(QStringLiteral("settings.duplicateMinSize")), 102400);
    EXPECT_EQ(defaults.integer(QStringLiteral("settings.diskCacheLifetimeMinutes")), 5);
}

TEST(SettingsKeys, registerFiveAndNoOthers)
{
    EXPECT_EQ(settings::registeredDefaults().keys(),
              (QStringList{QStringLiteral("settings.cleanupRequireReview"),
                           QStringLiteral("settings.confirmBeforeDelete"),
                           QStringLiteral("settings.diskCacheLifetimeMinutes"),
                           QStringLiteral("settings.duplicateMinSize"),
                           QStringLiteral("settings.showHiddenFilesDefault")}));
}

TEST(SettingsKeys, includeThreeThatAreAbsentUntilTheyAreWritten)
{
    Defaults defaults;
    defaults.registerDefaults(settings::registeredDefaults());
    EXPECT_EQ(settings::showAdvanced, QStringLiteral("settings.showAdvanced"));
    EXPECT_EQ(settings::onboardingCompleted, QStringLiteral("onboarding.completed"));
    EXPECT_EQ(settings::bookmarks, QStringLiteral("fileBrowser.bookmarks"));
    for (const QString &key : {settings::showAdvanced, settings::onboardingCompleted, settings::bookmarks})
        EXPECT_FALSE(defaults.value(key).isValid()) << key.toStdString();
}

TEST(SettingsKeys, giveNothingForAValueOfAnotherType)
{
    Defaults defaults;
    defaults.registerDefaults(settings::registeredDefaults());
    defaults.set(settings::confirmBeforeDelete, QStringLiteral("yes"));
    defaults.set(settings::duplicateMinSize, QVariantList{102400});
    defaults.set(settings::diskCacheLifetimeMinutes, QStringLiteral("5"));
    EXPECT_FALSE(defaults.boolean(settings::confirmBeforeDelete));
    EXPECT_EQ(defaults.integer(settings::duplicateMinSize), 0);
    EXPECT_EQ(defaults.integer(settings::diskCacheLifetimeMinutes), 0);
}
