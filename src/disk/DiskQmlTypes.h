#pragma once

// What QML is told of this room's types, which know nothing of QML themselves. Read by the module alone.

#include "disk/AnalyzerTexts.h"
#include "disk/DiskAnalyzerView.h"
#include "disk/TreemapView.h"

#include <QtQml/qqml.h>

struct AnalyzerTextsType
{
    Q_GADGET
    QML_FOREIGN(AnalyzerTexts)
    QML_VALUE_TYPE(analyzerTexts)
};

struct DiskAnalyzerViewType
{
    Q_GADGET
    QML_FOREIGN(DiskAnalyzerView)
    QML_NAMED_ELEMENT(DiskAnalyzerView)
    QML_UNCREATABLE("Handed in by the program")
};

struct TreemapViewType
{
    Q_GADGET
    QML_FOREIGN(TreemapView)
    QML_NAMED_ELEMENT(TreemapView)
    QML_UNCREATABLE("Handed in by the program")
};
