#include "shell/MainContentView.h"

#include "base/GuardedPost.h"
#include "common/Appearing.h"
#include "support/TestPlatform.h"

#include <QCoreApplication>
#include <QEvent>
#include <QEventLoop>
#include <QPointer>
#include <QSignalSpy>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

/// Nine screens whose models carry their key as a name, and whose QML is "<key>.qml".
MainContentView::Screens namedScreens()
{
    MainContentView::Screens screens;
    for (const SidebarSection section : sidebar::sections) {
        for (const SidebarItem item : sidebar::items(section)) {
            const auto make = [item] {
                auto model = std::make_shared<QObject>();
                model->setObjectName(sidebar::key(item));
                return model;
            };
            screens.emplace(item,
                            MainContentView::Screen{sidebar::key(item) + QStringLiteral(".qml"), make, {}});
        }
    }
    screens[SidebarItem::diskAnalyzer].keys = {QStringLiteral("⌘R")};
    return screens;
}

/// A model with a command that lets the main loop turn while it waits.
class WaitingModel final : public QObject, public std::enable_shared_from_this<WaitingModel>
{
};

/// A model with something to load.
class LoadingModel final : public QObject, public Appearing
{
public:
    void appear() override { ++loads; }

    int loads = 0;
};

void turnTheLoop()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

class MainContentViewTest : public ::testing::Test
{
protected:
    TestPlatform test;
    ContentView content{test.platform, {}};
    MainContentView main{test.platform, content, namedScreens()};
};

} // namespace

TEST_F(MainContentViewTest, beginsWithTheDashboard)
{
    ASSERT_NE(main.screen(), nullptr);
    EXPECT_EQ(main.screen()->objectName(), QStringLiteral("dashboard"));
    EXPECT_EQ(main.screenSource(), QStringLiteral("dashboard.qml"));
}

TEST_F(MainContentViewTest, tellsOfAnOpenedScreenOnceItIsTheOneOnView)
{
    QStringList titles;
    QObject::connect(&main, &MainContentView::screenOpened, &main,
                     [&] { titles << main.screenTitle() + u'/' + main.screen()->objectName(); });
    content.setSelectedItem(SidebarItem::fileBrowser);
    content.setSelectedItem(SidebarItem::fileBrowser);
    EXPECT_EQ(titles.join(u' '), QStringLiteral("File Browser/fileBrowser File Browser/fileBrowser"));
}

TEST_F(MainContentViewTest, showsTheScreenOfEachItem)
{
    for (const SidebarSection section : sidebar::sections) {
        for (const SidebarItem item : sidebar::items(section)) {
            content.setSelectedItem(item);
            EXPECT_EQ(main.screen()->objectName(), sidebar::key(item));
            EXPECT_EQ(main.screenSource(), sidebar::key(item) + QStringLiteral(".qml"));
        }
    }
}

TEST_F(MainContentViewTest, makesTheModelAnewAtEachSelection)
{
    const QPointer<QObject> first = main.screen();
    content.setSelectedItem(SidebarItem::search);
    content.setSelectedItem(SidebarItem::dashboard);
    EXPECT_NE(main.screen(), first);
    turnTheLoop();
    EXPECT_TRUE(first.isNull());
    EXPECT_EQ(main.screen()->objectName(), QStringLiteral("dashboard"));
}

TEST_F(MainContentViewTest, keepsTheModelWhenItsItemIsSelectedAgain)
{
    const QPointer<QObject> first = main.screen();
    const QSignalSpy changes(&main, &MainContentView::screenChanged);
    content.setSelectedItem(SidebarItem::dashboard);
    turnTheLoop();
    EXPECT_EQ(main.screen(), first);
    EXPECT_EQ(changes.count(), 0);
}

TEST_F(MainContentViewTest, destroysTheOldModelInALaterTurnOfTheLoop)
{
    const QPointer<QObject> old = main.screen();
    bool wasAlive = false;
    bool wasReplaced = false;
    QObject::connect(&main, &MainContentView::screenChanged, &main, [this, &old, &wasAlive, &wasReplaced] {
        wasAlive = !old.isNull();
        wasReplaced = main.screen() != old;
    });
    content.setSelectedItem(SidebarItem::cleanup);
    EXPECT_TRUE(wasAlive);
    EXPECT_TRUE(wasReplaced);
    EXPECT_FALSE(old.isNull());
    turnTheLoop();
    EXPECT_TRUE(old.isNull());
}

TEST_F(MainContentViewTest, keepsTheModelOfACommandThatIsUnderWayUntilItEnds)
{
    MainContentView::Screens screens = namedScreens();
    screens[SidebarItem::duplicates].make = [] { return std::make_shared<WaitingModel>(); };
    MainContentView other(test.platform, content, screens);
    content.setSelectedItem(SidebarItem::duplicates);
    const QPointer<QObject> model = other.screen();
    bool wasAliveAtTheEnd = false;
    guarded::runLater(test.mainQueue, static_cast<WaitingModel &>(*model), [&](WaitingModel &) {
        QEventLoop wait;
        // Each in a turn of its own, so that what is to be deleted later has its turn inside of the wait.
        QTimer::singleShot(0, &wait, [this] { content.setSelectedItem(SidebarItem::cleanup); });
        QTimer::singleShot(1, &wait, [&wait] { QTimer::singleShot(1, &wait, &QEventLoop::quit); });
        wait.exec();
        wasAliveAtTheEnd = !model.isNull();
    });
    test.mainQueue.run();
    EXPECT_TRUE(wasAliveAtTheEnd);
    turnTheLoop();
    EXPECT_TRUE(model.isNull());
}

TEST_F(MainContentViewTest, tellsEachModelOnceThatItsScreenHasAppeared)
{
    MainContentView::Screens screens = namedScreens();
    screens[SidebarItem::cleanup].make = [] { return std::make_shared<LoadingModel>(); };
    MainContentView other(test.platform, content, screens);
    other.appear(); // to a model that has nothing to load
    const auto loads = [&other] { return static_cast<LoadingModel *>(other.screen())->loads; };
    for (int visit = 0; visit < 2; ++visit) {
        content.setSelectedItem(SidebarItem::cleanup);
        EXPECT_EQ(loads(), 0);
        other.appear();
        other.appear();
        EXPECT_EQ(loads(), 1);
        content.setSelectedItem(SidebarItem::dashboard);
    }
}

TEST_F(MainContentViewTest, tellsSearchPillTextsInTheSystemsWords)
{
    EXPECT_EQ(main.searchPlaceholder(), QStringLiteral("Search files..."));
    EXPECT_EQ(main.searchHint(), QStringLiteral("Ctrl+K"));
    EXPECT_EQ(main.searchTip(), QStringLiteral("Open Search (Ctrl+K)"));
    EXPECT_EQ(main.searchSequence(), QStringLiteral("Ctrl+K"));
}

TEST_F(MainContentViewTest, tellsSearchPillTextsInSignsWhereTheyAreTheStyle)
{
    test.platform.keyStyle = KeyStyle::signs;
    EXPECT_EQ(main.searchHint(), QStringLiteral("⌘K"));
    EXPECT_EQ(main.searchTip(), QStringLiteral("Open Search (⌘K)"));
    EXPECT_EQ(main.searchSequence(), QStringLiteral("Ctrl+K"));
}

TEST_F(MainContentViewTest, opensSearchByThePill)
{
    main.openSearch();
    EXPECT_EQ(content.selectedItem(), SidebarItem::search);
    EXPECT_EQ(main.screen()->objectName(), QStringLiteral("search"));
}

TEST_F(MainContentViewTest, claimsTheKeysOfTheScreenOnViewOnly)
{
    EXPECT_FALSE(main.claimsKey(QStringLiteral("⌘R")));
    content.setSelectedItem(SidebarItem::diskAnalyzer);
    EXPECT_TRUE(main.claimsKey(QStringLiteral("⌘R")));
    EXPECT_FALSE(main.claimsKey(QStringLiteral("⌘N")));
    content.setSelectedItem(SidebarItem::search);
    EXPECT_FALSE(main.claimsKey(QStringLiteral("⌘R")));
}
