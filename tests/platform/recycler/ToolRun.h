#pragma once

#include <QByteArray>
#include <QStringList>

/// What a run of a tool, found on the search path, came to.
struct ToolRun
{
    int exitCode = -1; ///< -1 when it couldn't be started or a signal ended it
    QByteArray output;
    QByteArray errors;
};

/// Runs a command and waits for its end.
ToolRun runTool(const QStringList &command);
