#pragma once

// What QML is told of this room's types, which know nothing of QML themselves. Read by the module alone.

#include "program/panel/FilePanelTexts.h"
#include "program/panel/FilePanelView.h"
#include "program/QuitPaths.h"

#include <QtQml/qqml.h>

struct FilePanelTextsType
{
    Q_GADGET
    QML_FOREIGN(FilePanelTexts)
    QML_VALUE_TYPE(filePanelTexts)
};

struct FilePanelViewType
{
    Q_GADGET
    QML_FOREIGN(FilePanelView)
    QML_NAMED_ELEMENT(FilePanelView)
    QML_UNCREATABLE("Handed in by the program")
};

struct QuitPathsType
{
    Q_GADGET
    QML_FOREIGN(QuitPaths)
    QML_NAMED_ELEMENT(QuitPaths)
    QML_UNCREATABLE("Handed in by the program")
};
