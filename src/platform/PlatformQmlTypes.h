#pragma once

// What QML is told of this room's types, which know nothing of QML themselves. Read by the module alone.

#include "platform/Appearance.h"

#include <QtQml/qqml.h>

struct AppearanceType
{
    Q_GADGET
    QML_FOREIGN(Appearance)
    QML_NAMED_ELEMENT(Appearance)
    QML_UNCREATABLE("Handed in by the program")
};
