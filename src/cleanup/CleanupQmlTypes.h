#pragma once

// What QML is told of this room's types, which know nothing of QML themselves. Read by the module alone.

#include "cleanup/screen/CleanupTexts.h"
#include "cleanup/screen/SmartCleanupView.h"

#include <QtQml/qqml.h>

struct CleanupTextsType
{
    Q_GADGET
    QML_FOREIGN(CleanupTexts)
    QML_VALUE_TYPE(cleanupTexts)
};

struct SmartCleanupViewType
{
    Q_GADGET
    QML_FOREIGN(SmartCleanupView)
    QML_NAMED_ELEMENT(SmartCleanupView)
    QML_UNCREATABLE("Handed in by the program")
};
