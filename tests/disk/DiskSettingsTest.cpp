#include "common/SettingsKeys.h"
#include "disk/DiskServices.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(Settings, giveANewUserTheDefaultsWithoutAnyWrite)
{
    Defaults defaults;
    defaults.registerDefaults(settings::registeredDefaults());
    EXPECT_EQ(defaults.integer(u"settings.diskCacheLifetimeMinutes"_s), 5);
    EXPECT_TRUE(defaults.boolean(u"settings.confirmBeforeDelete"_s));
    EXPECT_FALSE(defaults.boolean(u"settings.showHiddenFilesDefault"_s));
    EXPECT_TRUE(defaults.boolean(u"settings.cleanupRequireReview"_s));
    EXPECT_EQ(defaults.integer(u"settings.duplicateMinSize"_s), 102400);
}

TEST(Settings, registerFiveKeysAndNoOther)
{
    const QStringList expected = {
        u"settings.cleanupRequireReview"_s,     u"settings.confirmBeforeDelete"_s,
        u"settings.diskCacheLifetimeMinutes"_s, u"settings.duplicateMinSize"_s,
        u"settings.showHiddenFilesDefault"_s,
    };
    EXPECT_EQ(QStringList(settings::registeredDefaults().keys()), expected);
    EXPECT_EQ(settings::showAdvanced, u"settings.showAdvanced"_s);
    EXPECT_EQ(settings::onboardingCompleted, u"onboarding.completed"_s);
    EXPECT_EQ(settings::bookmarks, u"fileBrowser.bookmarks"_s);
}

TEST(Settings, readAValueOfAnotherTypeAsZero)
{
    Defaults defaults;
    defaults.registerDefaults(settings::registeredDefaults());
    defaults.set(settings::confirmBeforeDelete, u"yes"_s);
    defaults.set(settings::duplicateMinSize, QVariantList{102400});
    defaults.set(settings::diskCacheLifetimeMinutes, u"5"_s);
    EXPECT_FALSE(defaults.boolean(settings::confirmBeforeDelete));
    EXPECT_EQ(defaults.integer(settings::duplicateMinSize), 0);
    EXPECT_EQ(defaults.integer(settings::diskCacheLifetimeMinutes), 0);
}

TEST(Settings, useFiveMinutesForALifetimeOfAnotherType)
{
    DiskServices services;
    Defaults &defaults = services.test.defaults;
    defaults.registerDefaults(settings::registeredDefaults());
    defaults.set(settings::diskCacheLifetimeMinutes, 60);
    EXPECT_EQ(services.disk.cacheLifetime(), 3600);
    defaults.set(settings::diskCacheLifetimeMinutes, u"60"_s);
    EXPECT_EQ(services.disk.cacheLifetime(), 300);
}
