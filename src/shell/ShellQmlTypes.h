#pragma once

// What QML is told of this room's types, which know nothing of QML themselves. Read by the module alone.

#include "shell/ContentView.h"
#include "shell/MainContentView.h"
#include "shell/MenuBarView.h"
#include "shell/SheetsView.h"
#include "shell/SidebarView.h"
#include "shell/UpcomingView.h"

#include <QtQml/qqml.h>

struct ContentViewType
{
    Q_GADGET
    QML_FOREIGN(ContentView)
    QML_NAMED_ELEMENT(ContentView)
    QML_UNCREATABLE("Handed in by the program")
};

struct MainContentViewType
{
    Q_GADGET
    QML_FOREIGN(MainContentView)
    QML_NAMED_ELEMENT(MainContentView)
    QML_UNCREATABLE("Handed in by the program")
};

struct MenuBarViewType
{
    Q_GADGET
    QML_FOREIGN(MenuBarView)
    QML_NAMED_ELEMENT(MenuBarView)
    QML_UNCREATABLE("Handed in by the program")
};

struct SheetsViewType
{
    Q_GADGET
    QML_FOREIGN(SheetsView)
    QML_NAMED_ELEMENT(SheetsView)
    QML_UNCREATABLE("Handed in by the program")
};

struct SidebarViewType
{
    Q_GADGET
    QML_FOREIGN(SidebarView)
    QML_NAMED_ELEMENT(SidebarView)
    QML_UNCREATABLE("Handed in by the program")
};

struct UpcomingViewType
{
    Q_GADGET
    QML_FOREIGN(UpcomingView)
    QML_NAMED_ELEMENT(UpcomingView)
    QML_UNCREATABLE("Handed in by the program")
};
