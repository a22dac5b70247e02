#pragma once

// What QML is told of this room's types, which know nothing of QML themselves. Read by the module alone.

#include "base/GroupRows.h"

#include <QtQml/qqml.h>

struct GroupRowsType
{
    Q_GADGET
    QML_FOREIGN(GroupRows)
    QML_NAMED_ELEMENT(GroupRows)
    QML_UNCREATABLE("Handed in by the program")
};
