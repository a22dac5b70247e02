#pragma once

#include "base/Log.h"

/// The program's loggers, one a category. Cheap to copy; the sink outlives them.
struct Loggers
{
    explicit Loggers(LogSink &sink)
        : general(QStringLiteral("General"), sink)
        , appManager(QStringLiteral("AppManager"), sink)
        , duplicates(QStringLiteral("Duplicates"), sink)
        , cleanup(QStringLiteral("Cleanup"), sink)
        , organizer(QStringLiteral("Organizer"), sink)
    {
    }

    Logger general; ///< whatever has no category of its own
    Logger appManager;
    Logger duplicates;
    Logger cleanup;
    Logger organizer;
};
