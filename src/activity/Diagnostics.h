#pragma once

#include "platform/SystemLog.h"
#include "platform/Workspace.h"

/// Reading the diagnostic log back, for support.
namespace diagnostics {

/// The program's log lines of the last `hours`; empty when there are none. When the log can't be read, a text that
/// says so, which the caller can't tell from a result. Blocks, on the calling thread.
QString recentLogs(SystemLog &log, int hours);

/// Puts the last day's lines on the clipboard, or a text that says that there are none. Main thread, which waits.
void copyDiagnosticLogs(SystemLog &log, Workspace &workspace);

} // namespace diagnostics
