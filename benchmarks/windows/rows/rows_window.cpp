// The program's window over this system's platform, taken through the Duplicate Finder's list. See RowsRun.h for what it
// prints. quillmere-rows-window ROWS: as many as the equal files of the home folder make, with the heads of their groups.

#include "platform/Appearance.h"
#include "platform/linux/LinuxPlatform.h"
#include "program/Composition.h"
#include "program/ProgramInfo.h"
#include "RowsRun.h"

#include <QDBusConnection>
#include <QGuiApplication>

#include <unistd.h>

int main(int argc, char *argv[])
{
    QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() != 2)
        return 2;
    program::describe();
    const LinuxPlatform platform(
        {QDBusConnection(QString()), {}, {}}); // no bus, and nobody asks for a folder
    Appearance appearance;
    Composition composition(platform.platform(), appearance, program::feedbackProgram(),
                            [] { _exit(EXIT_SUCCESS); });
    if (!composition.show())
        return EXIT_FAILURE;
    composition.duplicates().setMinFileSize(1024);
    composition.duplicates().scan();
    const RowsRun run(composition, arguments.at(1).toInt());
    return QGuiApplication::exec();
}
