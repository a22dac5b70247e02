#include "shell/SidebarItem.h"

#include <algorithm>

namespace {

const sidebar::Row &rowOf(SidebarItem item)
{
    return sidebar::rows[static_cast<size_t>(item)];
}

const sidebar::Row &rowForKey(const QString &key)
{
    const auto found =
        std::find_if(sidebar::rows.begin(), sidebar::rows.end(),
                     [&key](const sidebar::Row &row) { return key == QLatin1StringView(row.key); });
    return found == sidebar::rows.end() ? sidebar::rows.front() : *found;
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
    for (const sidebar::Row &row : rows) {
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
