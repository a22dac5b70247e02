#pragma once

// What QML is told of this room's types, which know nothing of QML themselves. Read by the module alone.

#include "common/AgePillView.h"
#include "common/Confirmation.h"

#include <QtQml/qqml.h>

struct AgePillViewType
{
    Q_GADGET
    QML_FOREIGN(AgePillView)
    QML_NAMED_ELEMENT(AgePillView)
    QML_UNCREATABLE("Handed in by the program")
};

struct ConfirmationType
{
    Q_GADGET
    QML_FOREIGN(Confirmation)
    QML_NAMED_ELEMENT(Confirmation)
    QML_UNCREATABLE("Handed in by the program")
};
