#pragma once

#include <QString>

#include <array>
#include <vector>

/// The screens, in the order of the rows below.
enum class SidebarItem {
    dashboard,
    fileBrowser,
    search,
    diskAnalyzer,
    duplicates,
    bulkRename,
    cleanup,
    organizer,
    appManager,
};

/// The groups in which the sidebar shows them.
enum class SidebarSection {
    navigation,
    tools,
    apps,
};

namespace sidebar {

/// What is told of a screen: its place in the sidebar, its title, its symbol and its navigate key.
struct Row
{
    SidebarItem item;
    SidebarSection section;
    const char *title;
    const char *symbol;
    const char *key;
};

inline constexpr std::array rows = {
    Row{SidebarItem::dashboard, SidebarSection::navigation, "Dashboard", "square.grid.2x2", "dashboard"},
    Row{SidebarItem::fileBrowser, SidebarSection::navigation, "File Browser", "folder", "fileBrowser"},
    Row{SidebarItem::search, SidebarSection::navigation, "Search", "magnifyingglass", "search"},
    Row{SidebarItem::diskAnalyzer, SidebarSection::tools, "Disk Analyzer", "internaldrive", "diskAnalyzer"},
    Row{SidebarItem::duplicates, SidebarSection::tools, "Duplicates", "doc.on.doc", "duplicates"},
    Row{SidebarItem::bulkRename, SidebarSection::tools, "Bulk Rename", "textformat.abc", "bulkRename"},
    Row{SidebarItem::cleanup, SidebarSection::tools, "Cleanup", "trash", "cleanup"},
    Row{SidebarItem::organizer, SidebarSection::tools, "Organizer", "folder.badge.gearshape", "organizer"},
    Row{SidebarItem::appManager, SidebarSection::apps, "App Manager", "app.badge.checkmark", "appManager"},
};

inline constexpr std::array sections = {SidebarSection::navigation, SidebarSection::tools,
                                        SidebarSection::apps};

/// "Navigation", "Tools", "Apps".
QString title(SidebarSection section);

/// The items of a section, in order.
std::vector<SidebarItem> items(SidebarSection section);

/// The screen's title, "File Browser".
QString title(SidebarItem item);

QString symbol(SidebarItem item);

/// The navigate key, "fileBrowser".
QString key(SidebarItem item);

/// The title of the screen with a navigate key; "Dashboard" for a key that no screen has.
QString screenTitle(const QString &key);

/// The screen with a navigate key; the Dashboard for a key that no screen has.
SidebarItem itemForKey(const QString &key);

} // namespace sidebar
