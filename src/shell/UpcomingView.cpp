#include "shell/UpcomingView.h"

const std::map<SidebarItem, QString> &UpcomingView::descriptions()
{
    static const std::map<SidebarItem, QString> descriptions = {
        {SidebarItem::dashboard,
         QStringLiteral(
             "An overview of your disk will stand here: what takes the space, the largest folders, the top "
             "duplicates, and the ways into each tool.")},
        {SidebarItem::fileBrowser,
         QStringLiteral("You will browse your folders here, with bookmarks, folder sizes and previews.")},
        {SidebarItem::search, QStringLiteral("You will find files here by name and by kind.")},
        {SidebarItem::bulkRename,
         QStringLiteral(
             "You will rename many files at once here, through a chain of rules with a live preview.")},
        {SidebarItem::organizer,
         QStringLiteral("Files will be sorted into folders here, by rules, with a preview and an undo.")},
    };
    return descriptions;
}
