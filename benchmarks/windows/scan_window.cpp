// The program's window over this system's platform, taken through a scan of the home folder. See ScanRun.h for what it
// prints. quillmere-scan-window [--scan-only]

#include "platform/Appearance.h"
#include "platform/linux/LinuxPlatform.h"
#include "program/Composition.h"
#include "program/ProgramInfo.h"
#include "ScanRun.h"
#include "TimedMainQueue.h"

#include <QDBusConnection>
#include <QGuiApplication>

#include <unistd.h>

namespace {

/// The platform with another main queue.
Platform withQueue(const Platform &platform, MainQueue &queue)
{
    return {
        .home = platform.home,
        .locations = platform.locations,
        .defaults = platform.defaults,
        .clock = platform.clock,
        .programs = platform.programs,
        .keyStyle = platform.keyStyle,
        .mainQueue = queue,
        .workQueue = platform.workQueue,
        .notifications = platform.notifications,
        .workspace = platform.workspace,
        .recycler = platform.recycler,
        .applications = platform.applications,
        .systemLog = platform.systemLog,
        .systemInfo = platform.systemInfo,
    };
}

} // namespace

int main(int argc, char *argv[])
{
    QGuiApplication application(argc, argv);
    program::describe();
    LinuxPlatform linuxPlatform({QDBusConnection(QString()), {}, {}}); // no bus, and nobody asks for a folder
    TimedMainQueue queue(linuxPlatform.platform().mainQueue);
    const Platform platform = withQueue(linuxPlatform.platform(), queue);
    Appearance appearance;
    Composition composition(platform, appearance, program::feedbackProgram(), [] { _exit(EXIT_SUCCESS); });
    if (!composition.show())
        return EXIT_FAILURE;
    const ScanRun run(composition, queue,
                      QGuiApplication::arguments().contains(QStringLiteral("--scan-only")));
    return QGuiApplication::exec();
}
