#pragma once

// What QML is told of this room's types, which know nothing of QML themselves. Read by the module alone.

#include "apps/screen/AppManagerView.h"

#include <QtQml/qqml.h>

struct AppManagerTextsType
{
    Q_GADGET
    QML_FOREIGN(AppManagerTexts)
    QML_VALUE_TYPE(appManagerTexts)
};

struct AppTabTextsType
{
    Q_GADGET
    QML_FOREIGN(AppTabTexts)
    QML_VALUE_TYPE(appTabTexts)
};

struct AppManagerViewType
{
    Q_GADGET
    QML_FOREIGN(AppManagerView)
    QML_NAMED_ELEMENT(AppManagerView)
    QML_UNCREATABLE("Handed in by the program")
};

struct AppListsType
{
    Q_GADGET
    QML_FOREIGN(AppLists)
    QML_NAMED_ELEMENT(AppLists)
    QML_UNCREATABLE("Handed in by the program")
};

struct AppDetailType
{
    Q_GADGET
    QML_FOREIGN(AppDetail)
    QML_NAMED_ELEMENT(AppDetail)
    QML_UNCREATABLE("Handed in by the program")
};

struct GhostDetailType
{
    Q_GADGET
    QML_FOREIGN(GhostDetail)
    QML_NAMED_ELEMENT(GhostDetail)
    QML_UNCREATABLE("Handed in by the program")
};

struct UninstallSheetType
{
    Q_GADGET
    QML_FOREIGN(UninstallSheet)
    QML_NAMED_ELEMENT(UninstallSheet)
    QML_UNCREATABLE("Handed in by the program")
};

struct ResultBannerType
{
    Q_GADGET
    QML_FOREIGN(ResultBanner)
    QML_NAMED_ELEMENT(ResultBanner)
    QML_UNCREATABLE("Handed in by the program")
};
