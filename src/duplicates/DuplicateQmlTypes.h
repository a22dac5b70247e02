#pragma once

// What QML is told of this room's types, which know nothing of QML themselves. Read by the module alone.

#include "duplicates/screen/DuplicateFinderView.h"
#include "duplicates/screen/DuplicateScopeView.h"
#include "duplicates/screen/DuplicateTexts.h"

#include <QtQml/qqml.h>

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
