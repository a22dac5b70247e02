#pragma once

// What QML is told of this room's types, which know nothing of QML themselves. Read by the module alone.

#include "activity/FDABanner.h"
#include "activity/HistoryTexts.h"
#include "activity/HistoryView.h"

#include <QtQml/qqml.h>

struct FDABannerType
{
    Q_GADGET
    QML_FOREIGN(FDABanner)
    QML_NAMED_ELEMENT(FDABanner)
    QML_UNCREATABLE("Handed in by the program")
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
