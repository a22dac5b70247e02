#pragma once

#include <QString>

/// An option of a verb. One name means the same with every verb that has it.
struct Option
{
    QString name; ///< without the dashes
    bool takesValue = false;
};
