#include "shell/SidebarItem.h"

#include <algorithm>

namespace {

struct ItemRow
{
    SidebarItem item;
    SidebarSection section;
    const char *title;
    const char *symbol;
    const char *key;
};

constexpr std::array rows = {
    ItemRow{SidebarItem::dashboard, SidebarSection::navigation, "Dashboard", "square.grid.2x2", "dashboard"},
    ItemRow{SidebarItem::fileBrowser, SidebarSection::navigation, "File Browser", "folder", "fileBrowser"},
    ItemRow{SidebarItem::search, SidebarSection::navigation, "Search", "magnifyingglass", "search"},
    ItemRow{SidebarItem::diskAnalyzer, SidebarSection::tools, "Disk Analyzer", "internaldrive",
            "diskAnalyzer"},
    ItemRow{SidebarItem::duplicates, SidebarSection::tools, "Duplicates", "doc.on.doc", "duplicates"},
    ItemRow{SidebarItem::bulkRename, SidebarSection::tools, "Bulk Rename", "textformat.abc", "bulkRename"},
    ItemRow{SidebarItem::cleanup, SidebarSection::tools, "Cleanup", "trash", "cleanup"},
    ItemRow{SidebarItem::organizer, SidebarSection::tools, "Organizer", "folder.badge.gearshape",
            "organizer"},
    ItemRow{SidebarItem::appManager, SidebarSection::apps, "App Manager", "app.badge.checkmark",
            "appManager"},
};

const ItemRow &rowOf(SidebarItem item)
{
    return rows[static_cast<size_t>(item)];
}

const ItemRow &rowForKey(const QString &key)
{
    const auto found = std::find_if(rows.begin(), rows.end(),
                                    [&key](const ItemRow &row) { return key == QLatin1StringView(row.key); });
    return found == rows.end() ? rows.front() : *found;
}

} // namespace

namespace sidebar {

QString title(SidebarSection section)
{
    switch (section) {
    case SidebarSection::navigation:
        return QStringLiteral("Navigation");
    case SidebarSection::tools:
        return QStringLiteral("Tools");
    case SidebarSection::apps:
        return QStringLiteral("Apps");
    }
    return {};
}

std::vector<SidebarItem> items(SidebarSection section)
{
    std::vector<SidebarItem> found;
    for (const ItemRow &row : rows) {
        if (row.section == section)
            found.push_back(row.item);
    }
    return found;
}

QString title(SidebarItem item)
{
    return QString::fromLatin1(rowOf(item).title);
}

QString symbol(SidebarItem item)
{
    return QString::fromLatin1(rowOf(item).symbol);
}

QString key(SidebarItem item)
{
    return QString::fromLatin1(rowOf(item).key);
}

QString screenTitle(const QString &key)
{
    return QString::fromLatin1(rowForKey(key).title);
}

SidebarItem itemForKey(const QString &key)
{
    return rowForKey(key).item;
}

} // namespace sidebar
