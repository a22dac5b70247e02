#include "shell/ContentView.h"

#include "common/NotificationNames.h"
#include "common/SettingsKeys.h"
#include "support/TestPlatform.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace {

class ContentViewTest : public ::testing::Test
{
protected:
    void post(const QString &name, const QVariant &object = {}) { test.notifications.post(name, object); }
    QString mailBody() const
    {
        return QString::fromUtf8(QByteArray::fromPercentEncoding(test.workspace.address));
    }

    TestPlatform test;
    ContentView content{
        test.platform,
        {QStringLiteral("help@quillmere.example"), QStringLiteral("1.4"), QStringLiteral("27")}};
};

} // namespace

TEST_F(ContentViewTest, startsWithTheDashboardAndNoSheet)
{
    EXPECT_EQ(content.selectedItem(), SidebarItem::dashboard);
    EXPECT_FALSE(content.showSettings());
    EXPECT_FALSE(content.showShortcuts());
    EXPECT_FALSE(content.showHistory());
    EXPECT_FALSE(content.showOnboarding());
    EXPECT_FALSE(content.onboardingCompleted());
}

TEST_F(ContentViewTest, navigatesToTheScreenOfAKey)
{
    const QSignalSpy changes(&content, &ContentView::selectedItemChanged);
    post(notifications::navigate, QStringLiteral("bulkRename"));
    EXPECT_EQ(content.selectedItem(), SidebarItem::bulkRename);
    EXPECT_EQ(changes.count(), 1);
}

TEST_F(ContentViewTest, tellsThatAScreenWasOpenedAlsoWhenItIsOnView)
{
    const QSignalSpy openings(&content, &ContentView::screenOpened);
    post(notifications::navigate, QStringLiteral("bulkRename"));
    EXPECT_EQ(openings.count(), 1);
    post(notifications::navigate, QStringLiteral("bulkRename"));
    EXPECT_EQ(openings.count(), 2);
}

TEST_F(ContentViewTest, showsTheDashboardForAnUnknownKey)
{
    content.setSelectedItem(SidebarItem::search);
    post(notifications::navigate, QStringLiteral("nowhere"));
    EXPECT_EQ(content.selectedItem(), SidebarItem::dashboard);
}

TEST_F(ContentViewTest, leavesTheSelectionAloneForAnObjectThatIsNoText)
{
    content.setSelectedItem(SidebarItem::search);
    for (const QVariant &object : {QVariant(), QVariant(4), QVariant(true), QVariant(QByteArray("cleanup")),
                                   QVariant(QStringList{QStringLiteral("cleanup")})})
        post(notifications::navigate, object);
    EXPECT_EQ(content.selectedItem(), SidebarItem::search);
}

TEST_F(ContentViewTest, tellsNothingWhenTheSelectedScreenIsSelectedAgain)
{
    const QSignalSpy changes(&content, &ContentView::selectedItemChanged);
    post(notifications::navigate, QStringLiteral("dashboard"));
    content.setSelectedItem(SidebarItem::dashboard);
    EXPECT_EQ(changes.count(), 0);
}

TEST_F(ContentViewTest, putsUpTheSheetThatANotificationNames)
{
    post(notifications::openSettings);
    EXPECT_TRUE(content.showSettings());
    EXPECT_FALSE(content.showShortcuts());
    post(notifications::openShortcuts);
    EXPECT_TRUE(content.showShortcuts());
    EXPECT_FALSE(content.showHistory());
    post(notifications::openHistory);
    EXPECT_TRUE(content.showHistory());
    EXPECT_FALSE(content.showOnboarding());
    post(notifications::openOnboarding);
    EXPECT_EQ(content.showOnboarding(), isBuilt(Sheet::onboarding));
}

TEST_F(ContentViewTest, tellsOnceWhenASheetComesAndGoes)
{
    const QSignalSpy changes(&content, &ContentView::sheetsChanged);
    content.setSheet(Sheet::history, true);
    content.setSheet(Sheet::history, true);
    EXPECT_EQ(changes.count(), 1);
    content.setSheet(Sheet::history, false);
    content.setSheet(Sheet::history, false);
    EXPECT_EQ(changes.count(), 2);
    EXPECT_FALSE(content.showHistory());
}

TEST_F(ContentViewTest, showsOneSheetAtATimeInTheOrderOfTheRequests)
{
    EXPECT_EQ(content.sheetOnView(), std::nullopt);
    content.setSheet(Sheet::onboarding, true);
    content.setSheet(Sheet::history, true);
    content.setSheet(Sheet::settings, true);
    content.setSheet(Sheet::onboarding, true);
    EXPECT_EQ(content.sheetOnView(), Sheet::onboarding);
    content.setSheet(Sheet::onboarding, false);
    EXPECT_EQ(content.sheetOnView(), Sheet::history);
    content.setSheet(Sheet::settings, false);
    EXPECT_EQ(content.sheetOnView(), Sheet::history);
    content.closeHistory();
    EXPECT_EQ(content.sheetOnView(), std::nullopt);
}

TEST_F(ContentViewTest, takesEverySheetDown)
{
    for (const Sheet sheet : {Sheet::settings, Sheet::shortcuts, Sheet::history, Sheet::onboarding})
        content.setSheet(sheet, true);
    content.dismissSheets();
    EXPECT_FALSE(content.showSettings() || content.showShortcuts() || content.showHistory()
                 || content.showOnboarding());
}

TEST_F(ContentViewTest, showsTheTourThreeTenthsOfASecondAfterTheFirstAppearanceOnceThereIsOne)
{
    content.appear();
    EXPECT_EQ(test.mainQueue.waiting(), 1U);
    test.mainQueue.advance(0.29);
    EXPECT_FALSE(content.showOnboarding());
    test.mainQueue.advance(0.02);
    EXPECT_EQ(content.showOnboarding(), isBuilt(Sheet::onboarding));
}

TEST_F(ContentViewTest, showsNoTourToWhoHasSeenIt)
{
    test.defaults.set(settings::onboardingCompleted, true);
    content.appear();
    EXPECT_EQ(test.mainQueue.waiting(), 0U);
    test.mainQueue.advance(10);
    EXPECT_FALSE(content.showOnboarding());
}

TEST_F(ContentViewTest, showsTheTourWhereTheStoredValueIsNoBoolean)
{
    test.defaults.set(settings::onboardingCompleted, QStringLiteral("yes"));
    content.appear();
    EXPECT_EQ(test.mainQueue.waiting(), 1U);
    test.mainQueue.advance(1);
    EXPECT_EQ(content.showOnboarding(), isBuilt(Sheet::onboarding));
}

TEST_F(ContentViewTest, survivesItsEndBeforeTheTourIsDue)
{
    {
        ContentView other(test.platform, {});
        other.appear();
    }
    test.mainQueue.advance(1);
    EXPECT_FALSE(content.showOnboarding());
}

TEST_F(ContentViewTest, opensAMailOnABugReport)
{
    post(notifications::reportBug);
    EXPECT_TRUE(mailBody().startsWith(QStringLiteral("mailto:help@quillmere.example?subject=[Bug] &body=")));
    EXPECT_TRUE(mailBody().contains(QStringLiteral("Quillmere 1.4 (build 27)\n")));
}

TEST_F(ContentViewTest, opensAMailOnAFeatureRequest)
{
    post(notifications::requestFeature);
    EXPECT_TRUE(mailBody().startsWith(
        QStringLiteral("mailto:help@quillmere.example?subject=[Feature Request] &body=")));
}

TEST_F(ContentViewTest, passesOverOtherNotifications)
{
    const QSignalSpy sheets(&content, &ContentView::sheetsChanged);
    const QSignalSpy selections(&content, &ContentView::selectedItemChanged);
    post(notifications::rescan);
    post(notifications::newFolder);
    EXPECT_EQ(sheets.count() + selections.count(), 0);
    EXPECT_EQ(test.workspace.address, QByteArray());
}
