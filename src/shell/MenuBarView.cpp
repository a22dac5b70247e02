#include "shell/MenuBarView.h"

#include "common/KeySigns.h"
#include "common/NotificationNames.h"
#include "shell/Sheet.h"

namespace {

using Command = MenuBarView::Command;

Command divider(const char *menu)
{
    return {QString::fromLatin1(menu), {}, {}, {}, {}, false};
}

Command navigateTo(const char *menu, const char *title, const char16_t *keys, SidebarItem item)
{
    return {QString::fromLatin1(menu), QString::fromLatin1(title), QString::fromUtf16(keys),
            notifications::navigate, sidebar::key(item)};
}

Command textCommand(const char *title, const char16_t *keys, const char *name)
{
    return {QStringLiteral("Edit"),   QString::fromLatin1(title), QString::fromUtf16(keys), {}, {}, true,
            QString::fromLatin1(name)};
}

Command posting(const char *menu, const char16_t *title, const char16_t *keys, const QString &notification,
                bool isEnabled = true)
{
    return {QString::fromLatin1(menu),
            QString::fromUtf16(title),
            QString::fromUtf16(keys),
            notification,
            {},
            isEnabled};
}

/// Posts nothing: it ends the program.
Command quitCommand()
{
    return posting("Quillmere", u"Quit Quillmere", u"⌘Q", {});
}

/// The menus of the program, of files, and of the text field with the focus.
std::vector<Command> firstMenus()
{
    return {
        posting("Quillmere", u"About Quillmere", u"", {}, false),
        divider("Quillmere"),
        posting("Quillmere", u"Settings…", u"⌘,", notifications::openSettings, isBuilt(Sheet::settings)),
        divider("Quillmere"),
        quitCommand(),
        posting("File", u"New Folder…", u"⌘N", notifications::newFolder, false),
        textCommand("Undo", u"⌘Z", "undo"),
        textCommand("Redo", u"⇧⌘Z", "redo"),
        divider("Edit"),
        textCommand("Cut", u"⌘X", "cut"),
        textCommand("Copy", u"⌘C", "copy"),
        textCommand("Paste", u"⌘V", "paste"),
        divider("Edit"),
        textCommand("Select All", u"⌘A", "selectAll"),
    };
}

/// The menus that lead to screens, tools and help.
std::vector<Command> lastMenus()
{
    return {
        navigateTo("View", "Dashboard", u"⌘1", SidebarItem::dashboard),
        navigateTo("View", "File Browser", u"⌘2", SidebarItem::fileBrowser),
        navigateTo("View", "Search", u"⌘3", SidebarItem::search),
        navigateTo("View", "Disk Analyzer", u"⌘4", SidebarItem::diskAnalyzer),
        navigateTo("View", "Duplicates", u"⌘5", SidebarItem::duplicates),
        divider("View"),
        navigateTo("View", "Bulk Rename", u"", SidebarItem::bulkRename),
        navigateTo("View", "Cleanup", u"", SidebarItem::cleanup),
        navigateTo("View", "Organizer", u"", SidebarItem::organizer),
        navigateTo("View", "App Manager", u"", SidebarItem::appManager),
        posting("Tools", u"Refresh Current View", u"⌘R", notifications::rescan),
        divider("Tools"),
        navigateTo("Tools", "Scan for Duplicates", u"", SidebarItem::duplicates),
        navigateTo("Tools", "Quick Cleanup", u"", SidebarItem::cleanup),
        navigateTo("Tools", "Find Ghost Files", u"", SidebarItem::appManager),
        posting("Help", u"Quillmere Help", u"⌘?", notifications::openShortcuts, isBuilt(Sheet::shortcuts)),
        posting("Help", u"Keyboard Shortcuts", u"⌘/", notifications::openShortcuts,
                isBuilt(Sheet::shortcuts)),
        divider("Help"),
        posting("Help", u"Replay Welcome Tour", u"", notifications::openOnboarding,
                isBuilt(Sheet::onboarding)),
        posting("Help", u"Activity History…", u"⇧⌘Y", notifications::openHistory, isBuilt(Sheet::history)),
        divider("Help"),
        posting("Help", u"Report a Bug…", u"", notifications::reportBug),
        posting("Help", u"Request a Feature…", u"", notifications::requestFeature),
    };
}

/// The window's commands in the order of the menus.
std::vector<Command> allCommands()
{
    std::vector<Command> commands = firstMenus();
    for (const Command &command : lastMenus())
        commands.push_back(command);
    return commands;
}

} // namespace

MenuBarView::MenuBarView(const Platform &platform, const MainContentView &main, std::function<void()> quit)
    : platform_(platform)
    , main_(main)
    , quit_(std::move(quit))
    , commands_(allCommands())
{
    connect(&main_, &MainContentView::screenChanged, this, &MenuBarView::commandsInForceChanged);
}

QVariantMap MenuBarView::item(size_t index) const
{
    const Command &command = commands_[index];
    return {
        {QStringLiteral("title"), command.title},
        {QStringLiteral("keysText"), keysigns::text(command.keys, platform_.keyStyle)},
        {QStringLiteral("isEnabled"), command.isEnabled},
        {QStringLiteral("isDivider"), command.title.isEmpty()},
        {QStringLiteral("isText"), !command.textCommand.isEmpty()},
        {QStringLiteral("command"), static_cast<int>(index)},
    };
}

QVariantList MenuBarView::menus() const
{
    QVariantList menus;
    for (size_t i = 0; i < commands_.size();) {
        const QString &title = commands_[i].menu;
        QVariantList items;
        for (; i < commands_.size() && commands_[i].menu == title; ++i)
            items.append(item(i));
        const QString letter = title.left(1); // no two titles begin with the same
        menus.append(QVariantMap{{QStringLiteral("title"), title},
                                 {QStringLiteral("letter"), letter},
                                 {QStringLiteral("sequence"), QStringLiteral("Alt+") + letter},
                                 {QStringLiteral("items"), items}});
    }
    return menus;
}

bool MenuBarView::hasShortcut(const Command &command)
{
    // Quitting by key is watched for ahead of everything else, and a text field knows its own keys.
    const bool isWatchedElsewhere = command.notification.isEmpty();
    return !command.keys.isEmpty() && command.isEnabled && !isWatchedElsewhere;
}

QVariantList MenuBarView::keys() const
{
    QVariantList keys;
    for (size_t i = 0; i < commands_.size(); ++i) {
        if (hasShortcut(commands_[i]))
            keys.append(QVariantMap{{QStringLiteral("sequence"), keysigns::sequence(commands_[i].keys)},
                                    {QStringLiteral("command"), static_cast<int>(i)}});
    }
    return keys;
}

QList<int> MenuBarView::commandsInForce() const
{
    QList<int> commands;
    for (size_t i = 0; i < commands_.size(); ++i) {
        if (hasShortcut(commands_[i]) && !main_.claimsKey(commands_[i].keys))
            commands.append(static_cast<int>(i));
    }
    return commands;
}

void MenuBarView::perform(int command)
{
    if (command < 0 || command >= static_cast<int>(commands_.size()))
        return;
    const Command &chosen = commands_[static_cast<size_t>(command)];
    if (!chosen.isEnabled)
        return;
    if (!chosen.textCommand.isEmpty())
        emit textCommandChosen(chosen.textCommand);
    else if (chosen.notification.isEmpty())
        quit_();
    else
        platform_.notifications.post(chosen.notification, chosen.object);
}

void MenuBarView::setHasText(bool hasText)
{
    if (hasText_ == hasText)
        return;
    hasText_ = hasText;
    emit hasTextChanged();
}
