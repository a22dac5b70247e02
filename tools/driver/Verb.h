#pragma once

#include "Option.h"

#include <QString>

#include <functional>
#include <vector>

class Arguments;

/// One thing that the driver can do. To add one, write its function beside those of its group and give it a row in
/// the group's table; a new group is a file of its own with a name in Verbs.h.
struct Verb
{
    QString name;
    QString usage;   ///< what follows the name on the command line
    QString summary; ///< what it prints, in one line
    qsizetype leastOperands = 0;
    qsizetype mostOperands = 0;
    std::vector<Option> options;
    std::function<void(const Arguments &)> run; ///< prints to standard output; throws UsageError
};
