#pragma once

// What QML may know of the program's own types. The core itself knows nothing of QML.

#include "activity/FDABanner.h"
#include "activity/HistoryTexts.h"
#include "activity/HistoryView.h"
#include "common/AgePillView.h"
#include "disk/AnalyzerTexts.h"
#include "disk/DiskAnalyzerView.h"
#include "disk/TreemapView.h"
#include "duplicates/screen/DuplicateFinderView.h"
#include "duplicates/screen/DuplicateScopeView.h"
#include "duplicates/screen/DuplicateTexts.h"
#include "platform/Appearance.h"
#include "program/QuitPaths.h"
#include "shell/ContentView.h"
#include "shell/MainContentView.h"
#include "shell/MenuBarView.h"
#include "shell/SheetsView.h"
#include "shell/SidebarView.h"
#include "shell/UpcomingView.h"

#include <QtQml/qqml.h>

struct AgePillViewType
{
    Q_GADGET
    QML_FOREIGN(AgePillView)
    QML_NAMED_ELEMENT(AgePillView)
    QML_UNCREATABLE("Handed in by the program")
};

struct AnalyzerTextsType
{
    Q_GADGET
    QML_FOREIGN(AnalyzerTexts)
    QML_VALUE_TYPE(analyzerTexts)
};

struct AppearanceType
{
    Q_GADGET
    QML_FOREIGN(Appearance)
    QML_NAMED_ELEMENT(Appearance)
    QML_UNCREATABLE("Handed in by the program")
};

struct ContentViewType
{
    Q_GADGET
    QML_FOREIGN(ContentView)
    QML_NAMED_ELEMENT(ContentView)
    QML_UNCREATABLE("Handed in by the program")
};

struct DiskAnalyzerViewType
{
    Q_GADGET
    QML_FOREIGN(DiskAnalyzerView)
    QML_NAMED_ELEMENT(DiskAnalyzerView)
    QML_UNCREATABLE("Handed in by the program")
};

struct DuplicateFinderViewType
{
    Q_GADGET
    QML_FOREIGN(DuplicateFinderView)
    QML_NAMED_ELEMENT(DuplicateFinderView)
    QML_UNCREATABLE("Handed in by the program")
};

struct DuplicateScopeViewType
{
    Q_GADGET
    QML_FOREIGN(DuplicateScopeView)
    QML_NAMED_ELEMENT(DuplicateScopeView)
    QML_UNCREATABLE("Handed in by the program")
};

struct DuplicateTextsType
{
    Q_GADGET
    QML_FOREIGN(DuplicateTexts)
    QML_VALUE_TYPE(duplicateTexts)
};

struct HistoryTextsType
{
    Q_GADGET
    QML_FOREIGN(HistoryTexts)
    QML_VALUE_TYPE(historyTexts)
};

struct HistoryViewType
{
    Q_GADGET
    QML_FOREIGN(HistoryView)
    QML_NAMED_ELEMENT(HistoryView)
    QML_UNCREATABLE("Handed in by the program")
};

struct FDABannerType
{
    Q_GADGET
    QML_FOREIGN(FDABanner)
    QML_NAMED_ELEMENT(FDABanner)
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

struct QuitPathsType
{
    Q_GADGET
    QML_FOREIGN(QuitPaths)
    QML_NAMED_ELEMENT(QuitPaths)
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

struct TreemapViewType
{
    Q_GADGET
    QML_FOREIGN(TreemapView)
    QML_NAMED_ELEMENT(TreemapView)
    QML_UNCREATABLE("Handed in by the program")
};

struct UpcomingViewType
{
    Q_GADGET
    QML_FOREIGN(UpcomingView)
    QML_NAMED_ELEMENT(UpcomingView)
    QML_UNCREATABLE("Handed in by the program")
};
