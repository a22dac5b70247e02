#include "shell/UpcomingView.h"

QString UpcomingView::description() const
{
    switch (item_) {
    case SidebarItem::dashboard:
        return QStringLiteral(
            "An overview of your disk will stand here: what takes the space, the largest folders, "
            "the top duplicates, and the ways into each tool.");
    case SidebarItem::fileBrowser:
        return QStringLiteral(
            "You will browse your folders here, with bookmarks, folder sizes and previews.");
    case SidebarItem::search:
        return QStringLiteral("You will find files here by name and by kind.");
    case SidebarItem::duplicates:
        return QStringLiteral(
            "Files of equal content will be listed here, and you will choose the copies that go "
            "to the Trash.");
    case SidebarItem::bulkRename:
        return QStringLiteral("You will rename many files at once here, through a chain of rules with a live "
                              "preview.");
    case SidebarItem::cleanup:
        return QStringLiteral("Caches, logs and other files that can go will be measured and cleaned here.");
    case SidebarItem::organizer:
        return QStringLiteral(
            "Files will be sorted into folders here, by rules, with a preview and an undo.");
    case SidebarItem::appManager:
        return QStringLiteral(
            "Your applications will be listed here, to be removed together with the files that "
            "they leave behind.");
    case SidebarItem::diskAnalyzer:
        return {};
    }
    return {};
}
