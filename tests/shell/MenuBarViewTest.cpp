#include "shell/MenuBarView.h"

#include "common/KeySigns.h"
#include "common/NotificationNames.h"
#include "shell/Sheet.h"
#include "support/TestPlatform.h"

#include <QRegularExpression>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace {

MainContentView::Screens emptyScreens()
{
    MainContentView::Screens screens;
    for (const SidebarSection section : sidebar::sections) {
        for (const SidebarItem item : sidebar::items(section))
            screens.emplace(item,
                            MainContentView::Screen{{}, [] { return std::make_unique<QObject>(); }, {}});
    }
    screens[SidebarItem::diskAnalyzer].keys = {QStringLiteral("⌘R")};
    return screens;
}

/// What is expected of a line; one without a title is a divider.
struct Line
{
    const char16_t *title = u"";
    const char16_t *keys = u"";
    QString notification = {};
    QString object = {};
    bool isEnabled = true;
};

class MenuBarViewTest : public ::testing::Test
{
protected:
    void expectMenu(const QString &menu, const std::vector<Line> &lines) const
    {
        std::vector<MenuBarView::Command> found;
        for (const MenuBarView::Command &command : menuBar.commands()) {
            if (command.menu == menu)
                found.push_back(command);
        }
        ASSERT_EQ(found.size(), lines.size());
        for (size_t i = 0; i < lines.size(); ++i) {
            SCOPED_TRACE(i);
            EXPECT_EQ(found[i].title, QString::fromUtf16(lines[i].title));
            EXPECT_EQ(found[i].keys, QString::fromUtf16(lines[i].keys));
            EXPECT_EQ(found[i].notification, lines[i].notification);
            EXPECT_EQ(found[i].object.toString(), lines[i].object);
            EXPECT_EQ(found[i].isEnabled, lines[i].isEnabled);
        }
    }
    int indexOf(const QString &title) const
    {
        const auto &commands = menuBar.commands();
        const auto found =
            std::find_if(commands.begin(), commands.end(),
                         [&title](const MenuBarView::Command &command) { return command.title == title; });
        return found == commands.end() ? -1 : static_cast<int>(found - commands.begin());
    }
    /// The keys in force, with their commands.
    QMap<QString, int> keys() const
    {
        QMap<QString, int> keys;
        for (const QVariant &key : menuBar.keys()) {
            const int command = key.toMap().value(QStringLiteral("command")).toInt();
            if (menuBar.commandsInForce().contains(command))
                keys.insert(key.toMap().value(QStringLiteral("sequence")).toString(), command);
        }
        return keys;
    }
    QStringList sequences() const { return keys().keys(); }
    /// The command of a key in force; -1 of any other.
    int commandOf(const QString &sequence) const { return keys().value(sequence, -1); }

    TestPlatform test;
    ContentView content{test.platform, {}};
    MainContentView main{test.platform, content, emptyScreens()};
    int quits = 0;
    MenuBarView menuBar{test.platform, main, [this] { ++quits; }};
};

Line divider()
{
    return {u"", u"", {}, {}, false};
}

Line navigation(const char16_t *title, const char16_t *keys, const char *key)
{
    return {title, keys, notifications::navigate, QString::fromLatin1(key), true};
}

} // namespace

TEST_F(MenuBarViewTest, hasTheProgramsMenu)
{
    expectMenu(QStringLiteral("Quillmere"),
               {
                   {u"About Quillmere", u"", {}, {}, false},
                   divider(),
                   {u"Settings…", u"⌘,", notifications::openSettings, {}, isBuilt(Sheet::settings)},
                   divider(),
                   {u"Quit Quillmere", u"⌘Q", {}, {}, true},
               });
}

TEST_F(MenuBarViewTest, hasTheFileMenu)
{
    expectMenu(QStringLiteral("File"), {{u"New Folder…", u"⌘N", notifications::newFolder, {}, false}});
}

TEST_F(MenuBarViewTest, hasTheEditMenu)
{
    expectMenu(QStringLiteral("Edit"), {
                                           {u"Undo", u"⌘Z"},
                                           {u"Redo", u"⇧⌘Z"},
                                           divider(),
                                           {u"Cut", u"⌘X"},
                                           {u"Copy", u"⌘C"},
                                           {u"Paste", u"⌘V"},
                                           divider(),
                                           {u"Select All", u"⌘A"},
                                       });
}

TEST_F(MenuBarViewTest, hasTheViewMenu)
{
    expectMenu(QStringLiteral("View"), {
                                           navigation(u"Dashboard", u"⌘1", "dashboard"),
                                           navigation(u"File Browser", u"⌘2", "fileBrowser"),
                                           navigation(u"Search", u"⌘3", "search"),
                                           navigation(u"Disk Analyzer", u"⌘4", "diskAnalyzer"),
                                           navigation(u"Duplicates", u"⌘5", "duplicates"),
                                           divider(),
                                           navigation(u"Bulk Rename", u"", "bulkRename"),
                                           navigation(u"Cleanup", u"", "cleanup"),
                                           navigation(u"Organizer", u"", "organizer"),
                                           navigation(u"App Manager", u"", "appManager"),
                                       });
}

TEST_F(MenuBarViewTest, hasTheToolsMenu)
{
    expectMenu(QStringLiteral("Tools"), {
                                            {u"Refresh Current View", u"⌘R", notifications::rescan, {}, true},
                                            divider(),
                                            navigation(u"Scan for Duplicates", u"", "duplicates"),
                                            navigation(u"Quick Cleanup", u"", "cleanup"),
                                            navigation(u"Find Ghost Files", u"", "appManager"),
                                        });
}

TEST_F(MenuBarViewTest, hasTheHelpMenu)
{
    expectMenu(
        QStringLiteral("Help"),
        {
            {u"Quillmere Help", u"⌘?", notifications::openShortcuts, {}, isBuilt(Sheet::shortcuts)},
            {u"Keyboard Shortcuts", u"⌘/", notifications::openShortcuts, {}, isBuilt(Sheet::shortcuts)},
            divider(),
            {u"Replay Welcome Tour", u"", notifications::openOnboarding, {}, isBuilt(Sheet::onboarding)},
            {u"Activity History…", u"⇧⌘Y", notifications::openHistory, {}, isBuilt(Sheet::history)},
            divider(),
            {u"Report a Bug…", u"", notifications::reportBug, {}, true},
            {u"Request a Feature…", u"", notifications::requestFeature, {}, true},
        });
}

TEST_F(MenuBarViewTest, givesTheLookItsMenusInOrder)
{
    QStringList titles;
    int lines = 0;
    for (const QVariant &menu : menuBar.menus()) {
        titles << menu.toMap().value(QStringLiteral("title")).toString();
        for (const QVariant &line : menu.toMap().value(QStringLiteral("items")).toList())
            EXPECT_EQ(line.toMap().value(QStringLiteral("command")).toInt(), lines++);
    }
    EXPECT_EQ(titles.join(u','), QStringLiteral("Quillmere,File,Edit,View,Tools,Help"));
    EXPECT_EQ(lines, static_cast<int>(menuBar.commands().size()));
}

TEST_F(MenuBarViewTest, givesEachMenuALetterOfItsOwn)
{
    QStringList sequences;
    for (const QVariant &entry : menuBar.menus()) {
        const QVariantMap menu = entry.toMap();
        const QString letter = menu.value(QStringLiteral("letter")).toString();
        EXPECT_TRUE(menu.value(QStringLiteral("title")).toString().startsWith(letter));
        EXPECT_EQ(menu.value(QStringLiteral("sequence")).toString(), QStringLiteral("Alt+") + letter);
        EXPECT_FALSE(sequences.contains(letter)) << letter.toStdString();
        sequences << letter;
    }
    EXPECT_EQ(sequences.size(), 6);
}

TEST_F(MenuBarViewTest, givesTheLookALineWithItsKeyInTheSystemsWords)
{
    const QVariantMap help = menuBar.menus().last().toMap();
    const QVariantList items = help.value(QStringLiteral("items")).toList();
    EXPECT_EQ(items[4].toMap(),
              (QVariantMap{{QStringLiteral("title"), QStringLiteral("Activity History…")},
                           {QStringLiteral("keysText"), QStringLiteral("Ctrl+Shift+Y")},
                           {QStringLiteral("isEnabled"), isBuilt(Sheet::history)},
                           {QStringLiteral("isDivider"), false},
                           {QStringLiteral("isText"), false},
                           {QStringLiteral("command"), indexOf(QStringLiteral("Activity History…"))}}));
    EXPECT_TRUE(items[2].toMap().value(QStringLiteral("isDivider")).toBool());
    EXPECT_TRUE(items[6].toMap().value(QStringLiteral("isEnabled")).toBool());
}

TEST_F(MenuBarViewTest, givesTheLookALineWithSignsWhereTheyAreTheStyle)
{
    test.platform.keyStyle = KeyStyle::signs;
    const QVariantList items = menuBar.menus().last().toMap().value(QStringLiteral("items")).toList();
    EXPECT_EQ(items[4].toMap().value(QStringLiteral("keysText")).toString(), QStringLiteral("⇧⌘Y"));
}

TEST_F(MenuBarViewTest, hasTheKeysOfEnabledCommandsInForce)
{
    EXPECT_EQ(sequences().filter(QRegularExpression(QStringLiteral("^Ctrl.[0-9R]$"))).join(u' '),
              QStringLiteral("Ctrl+1 Ctrl+2 Ctrl+3 Ctrl+4 Ctrl+5 Ctrl+R"));
    for (size_t i = 0; i < menuBar.commands().size(); ++i) {
        const MenuBarView::Command &command = menuBar.commands()[i];
        const bool isInForce =
            command.isEnabled && !command.keys.isEmpty() && !command.notification.isEmpty();
        EXPECT_EQ(commandOf(keysigns::sequence(command.keys)), isInForce ? static_cast<int>(i) : -1)
            << command.title.toStdString();
    }
}

TEST_F(MenuBarViewTest, leavesTheQuitKeyToWhoWatchesForItAheadOfAllElse)
{
    EXPECT_FALSE(sequences().contains(QStringLiteral("Ctrl+Q")));
}

TEST_F(MenuBarViewTest, leavesOutTheKeyThatTheScreenOnViewClaims)
{
    const QSignalSpy changes(&menuBar, &MenuBarView::commandsInForceChanged);
    content.setSelectedItem(SidebarItem::diskAnalyzer);
    EXPECT_EQ(changes.count(), 1);
    EXPECT_FALSE(sequences().contains(QStringLiteral("Ctrl+R")));
    EXPECT_TRUE(sequences().contains(QStringLiteral("Ctrl+4")));
    content.setSelectedItem(SidebarItem::search);
    EXPECT_EQ(changes.count(), 2);
    EXPECT_TRUE(sequences().contains(QStringLiteral("Ctrl+R")));
}

TEST_F(MenuBarViewTest, postsTheNotificationOfACommand)
{
    const QSignalSpy posts(&test.notifications, &NotificationCenter::posted);
    menuBar.perform(indexOf(QStringLiteral("Refresh Current View")));
    ASSERT_EQ(posts.count(), 1);
    EXPECT_EQ(posts[0][0].toString(), notifications::rescan);
    EXPECT_FALSE(posts[0][1].value<QVariant>().isValid());
}

TEST_F(MenuBarViewTest, onlyNavigatesByTheNamesOfTools)
{
    const QSignalSpy posts(&test.notifications, &NotificationCenter::posted);
    menuBar.perform(indexOf(QStringLiteral("Scan for Duplicates")));
    EXPECT_EQ(content.selectedItem(), SidebarItem::duplicates);
    menuBar.perform(indexOf(QStringLiteral("Quick Cleanup")));
    EXPECT_EQ(content.selectedItem(), SidebarItem::cleanup);
    menuBar.perform(indexOf(QStringLiteral("Find Ghost Files")));
    EXPECT_EQ(content.selectedItem(), SidebarItem::appManager);
    EXPECT_EQ(posts.count(), 3);
    EXPECT_EQ(test.workQueue.waiting(), 0U);
}

TEST_F(MenuBarViewTest, doesNothingOnADisabledLineADividerAndNoLine)
{
    const QSignalSpy posts(&test.notifications, &NotificationCenter::posted);
    for (size_t i = 0; i < menuBar.commands().size(); ++i) {
        if (!menuBar.commands()[i].isEnabled)
            menuBar.perform(static_cast<int>(i));
    }
    menuBar.perform(-1);
    menuBar.perform(static_cast<int>(menuBar.commands().size()));
    EXPECT_EQ(posts.count(), 0);
    EXPECT_EQ(quits, 0);
}

TEST_F(MenuBarViewTest, handsTextCommandsToTheFieldWithTheFocus)
{
    const QSignalSpy chosen(&menuBar, &MenuBarView::textCommandChosen);
    const QSignalSpy posts(&test.notifications, &NotificationCenter::posted);
    for (const char *title : {"Undo", "Redo", "Cut", "Copy", "Paste", "Select All"})
        menuBar.perform(indexOf(QString::fromLatin1(title)));
    QStringList names;
    for (const QList<QVariant> &arguments : chosen)
        names << arguments[0].toString();
    EXPECT_EQ(names.join(u' '), QStringLiteral("undo redo cut copy paste selectAll"));
    EXPECT_EQ(posts.count(), 0);
    EXPECT_EQ(quits, 0);
}

TEST_F(MenuBarViewTest, marksTheLinesThatNeedATextField)
{
    for (const QVariant &menu : menuBar.menus()) {
        const bool isEdit = menu.toMap().value(QStringLiteral("title")) == QStringLiteral("Edit");
        for (const QVariant &line : menu.toMap().value(QStringLiteral("items")).toList()) {
            const QVariantMap item = line.toMap();
            const bool isDivider = item.value(QStringLiteral("isDivider")).toBool();
            EXPECT_EQ(item.value(QStringLiteral("isText")).toBool(), isEdit && !isDivider)
                << item.value(QStringLiteral("title")).toString().toStdString();
        }
    }
}

TEST_F(MenuBarViewTest, tellsWhenATextFieldGetsOrLosesTheFocus)
{
    const QSignalSpy changes(&menuBar, &MenuBarView::hasTextChanged);
    EXPECT_FALSE(menuBar.hasText());
    menuBar.setHasText(true);
    menuBar.setHasText(true);
    EXPECT_TRUE(menuBar.hasText());
    EXPECT_EQ(changes.count(), 1);
}

TEST_F(MenuBarViewTest, asksToQuitByItsLine)
{
    const QSignalSpy posts(&test.notifications, &NotificationCenter::posted);
    menuBar.perform(indexOf(QStringLiteral("Quit Quillmere")));
    EXPECT_EQ(quits, 1);
    EXPECT_EQ(posts.count(), 0);
}
