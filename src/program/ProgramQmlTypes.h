#pragma once

// What QML is told of this room's types, which know nothing of QML themselves. Read by the module alone.

#include "program/QuitPaths.h"

#include <QtQml/qqml.h>

struct QuitPathsType
{
    Q_GADGET
    QML_FOREIGN(QuitPaths)
    QML_NAMED_ELEMENT(QuitPaths)
    QML_UNCREATABLE("Handed in by the program")
};
