#include "ToolRun.h"

#include "base/ChildProcess.h"

using namespace Qt::StringLiterals;

ToolRun runTool(const QStringList &command)
{
    ChildProcess process(u"/usr/bin/env"_s, command);
    process.captureErrorOutput();
    process.launch();
    ToolRun run;
    run.output = process.readToEnd();
    process.waitUntilExit();
    run.errors = process.errorOutput();
    run.exitCode = process.exitCode().value_or(-1);
    return run;
}
