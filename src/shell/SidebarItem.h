#pragma once

#include <QString>

#include <array>
#include <vector>

/// The nine screens.
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
