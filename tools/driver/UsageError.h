#pragma once

#include <QString>

/// The command line, or what comes in on standard input, is not what the verb takes. Ends the driver with 2.
struct UsageError
{
    QString message;
};
