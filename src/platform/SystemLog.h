#pragma once

#include "base/Log.h"

/// The system's own log: lines go in under the program's subsystem with their category, and can be read back.
class SystemLog : public LogSink
{
public:
    /// The name under which the program's lines stand in the log.
    static constexpr QLatin1StringView subsystem{"com.quillmere.app"};

    /// The program's lines of the last `hours`, oldest first, a line each; empty when there are none. Blocks.
    /// Throws Error when the log can't be read.
    virtual QString recentEntries(int hours) = 0;
};
