#include "shell/SidebarItem.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace {

struct Expected
{
    SidebarItem item;
    const char *title;
    const char *symbol;
    const char *key;
};

constexpr std::array expectedItems = {
    Expected{SidebarItem::dashboard, "Dashboard", "square.grid.2x2", "dashboard"},
    Expected{SidebarItem::fileBrowser, "File Browser", "folder", "fileBrowser"},
    Expected{SidebarItem::search, "Search", "magnifyingglass", "search"},
    Expected{SidebarItem::diskAnalyzer, "Disk Analyzer", "internaldrive", "diskAnalyzer"},
    Expected{SidebarItem::duplicates, "Duplicates", "doc.on.doc", "duplicates"},
    Expected{SidebarItem::bulkRename, "Bulk Rename", "textformat.abc", "bulkRename"},
    Expected{SidebarItem::cleanup, "Cleanup", "trash", "cleanup"},
    Expected{SidebarItem::organizer, "Organizer", "folder.badge.gearshape", "organizer"},
    Expected{SidebarItem::appManager, "App Manager", "app.badge.checkmark", "appManager"},
};

} // namespace

TEST(SidebarItem, hasTitleSymbolAndKeyOfItsScreen)
{
    for (const Expected &expected : expectedItems) {
        EXPECT_EQ(sidebar::title(expected.item).toStdString(), expected.title);
        EXPECT_EQ(sidebar::symbol(expected.item).toStdString(), expected.symbol);
        EXPECT_EQ(sidebar::key(expected.item).toStdString(), expected.key);
    }
}

TEST(SidebarItem, isFoundByItsKey)
{
    for (const Expected &expected : expectedItems) {
        EXPECT_EQ(sidebar::itemForKey(QString::fromLatin1(expected.key)), expected.item);
        EXPECT_EQ(sidebar::screenTitle(QString::fromLatin1(expected.key)).toStdString(), expected.title);
    }
}

TEST(SidebarItem, isTheDashboardForAnUnknownKey)
{
    for (const char *key : {"", "nowhere", "Dashboard", "File Browser", "diskanalyzer", "search "}) {
        EXPECT_EQ(sidebar::itemForKey(QString::fromLatin1(key)), SidebarItem::dashboard) << key;
        EXPECT_EQ(sidebar::screenTitle(QString::fromLatin1(key)), QStringLiteral("Dashboard")) << key;
    }
}

TEST(SidebarSection, standInTheirOrderWithTheirTitles)
{
    QStringList titles;
    for (const SidebarSection section : sidebar::sections)
        titles << sidebar::title(section);
    EXPECT_EQ(titles,
              (QStringList{QStringLiteral("Navigation"), QStringLiteral("Tools"), QStringLiteral("Apps")}));
}

TEST(SidebarSection, hasItsItemsInOrder)
{
    using Items = std::vector<SidebarItem>;
    EXPECT_EQ(sidebar::items(SidebarSection::navigation),
              (Items{SidebarItem::dashboard, SidebarItem::fileBrowser, SidebarItem::search}));
    EXPECT_EQ(sidebar::items(SidebarSection::tools),
              (Items{SidebarItem::diskAnalyzer, SidebarItem::duplicates, SidebarItem::bulkRename,
                     SidebarItem::cleanup, SidebarItem::organizer}));
    EXPECT_EQ(sidebar::items(SidebarSection::apps), (Items{SidebarItem::appManager}));
}
