#include "base/EventLoopMainQueue.h"
#include "base/Paths.h"
#include "base/ThreadWorkQueue.h"
#include "common/NotificationNames.h"
#include "DemoHome.h"
#include "platform/Appearance.h"
#include "platform/linux/LinuxRecycler.h"
#include "platform/linux/LinuxSystemInfo.h"
#include "platform/linux/LinuxSystemLog.h"
#include "platform/linux/LinuxWorkspace.h"
#include "platform/linux/PortalAppearance.h"
#include "platform/linux/QuitSignals.h"
#include "program/Composition.h"
#include "program/FallbackPanel.h"
#include "program/ProgramInfo.h"

#include <QDBusConnection>
#include <QGuiApplication>
#include <QQuickWindow>
#include <QTimer>

#include <cstdio>
#include <exception>
#include <functional>

#include <unistd.h>

// The whole program over a home of the Mac's shape that it makes in a temporary folder: the Mac's places, an
// applications folder of its own, settings in memory. It runs beside the real program and never touches its data.
//
// quillmere-demo [--light] [--screen KEY] [--refresh] [--picture FILE]
// --refresh does what the menu's command of that name does, which starts the scan of a screen that waits for one. With
// --picture it saves a picture of the window once the screen has nothing more to do, and ends.

namespace {

struct Options
{
    bool isLight = false;
    bool refreshes = false;
    QString screen;
    QString picture;
};

Options optionsFrom(const QStringList &arguments)
{
    Options options;
    for (qsizetype i = 1; i < arguments.size(); ++i) {
        const bool hasValue = i + 1 < arguments.size();
        if (arguments[i] == QStringLiteral("--light"))
            options.isLight = true;
        else if (arguments[i] == QStringLiteral("--refresh"))
            options.refreshes = true;
        else if (arguments[i] == QStringLiteral("--screen") && hasValue)
            options.screen = arguments[++i];
        else if (arguments[i] == QStringLiteral("--picture") && hasValue)
            options.picture = arguments[++i];
    }
    return options;
}

/// Saves a picture of the window as soon as no scan is running, and ends the program.
void savePictureWhenReady(Composition &composition, const QString &file, const std::function<void()> &exitNow)
{
    auto *timer = new QTimer(composition.window());
    QObject::connect(timer, &QTimer::timeout, timer, [&composition, file, exitNow, timer] {
        if (composition.disk().isScanningAnalyzer() || composition.duplicates().isScanning())
            return;
        timer->stop();
        // One more turn, so that the last result is painted.
        QTimer::singleShot(300, timer, [&composition, file, exitNow] {
            if (!composition.window()->grabWindow().save(file))
                fprintf(stderr, "The picture could not be saved.\n");
            exitNow();
        });
    });
    timer->start(300);
}

int runDemo(DemoHome &demo)
{
    const Options options = optionsFrom(QGuiApplication::arguments());
    SystemClock clock;
    EventLoopMainQueue mainQueue;
    ThreadWorkQueue workQueue;
    NotificationCenter notifications;
    Defaults defaults;
    const Lazy<Locations> locations([&demo] { return macLocations(demo.home(), demo.applicationsFolder()); });
    const QDBusConnection bus = QDBusConnection::sessionBus();
    FallbackPanel panel;
    LinuxWorkspace workspace({bus, QString::fromLocal8Bit(qgetenv("PATH")).split(u':', Qt::SkipEmptyParts),
                              std::bind_front(&FallbackPanel::chooseFolder, &panel),
                              std::bind_front(&FallbackPanel::chooseSavePath, &panel)},
                             workQueue);
    LinuxSystemLog systemLog(clock);
    LinuxRecycler recycler(ChildPrograms().pkexec, ChildPrograms().mv, systemLog);
    const LinuxSystemInfo systemInfo;
    const Platform platform{.home = demo.home(),
                            .locations = locations,
                            .defaults = defaults,
                            .clock = clock,
                            .programs = ChildPrograms(),
                            .keyStyle = KeyStyle::words,
                            .mainQueue = mainQueue,
                            .workQueue = workQueue,
                            .notifications = notifications,
                            .workspace = workspace,
                            .recycler = recycler,
                            .systemLog = systemLog,
                            .systemInfo = systemInfo};
    Appearance appearance;
    appearance.setDark(!options.isLight);
    const auto exitNow = [&demo] {
        demo.remove();
        fflush(nullptr);
        _exit(EXIT_SUCCESS);
    };
    Composition composition(platform, appearance, program::feedbackProgram(), exitNow);
    const QuitSignals quitSignals(exitNow);
    if (!options.screen.isEmpty())
        composition.content().setSelectedItem(sidebar::itemForKey(options.screen));
    if (!composition.show())
        return EXIT_FAILURE;
    panel.attach(composition.engine(), *composition.window(), demo.home());
    if (options.refreshes)
        notifications.post(notifications::rescan);
    if (!options.picture.isEmpty())
        savePictureWhenReady(composition, options.picture, exitNow);
    return QGuiApplication::exec();
}

} // namespace

int main(int argc, char *argv[])
{
    try {
        DemoHome demo;
        // What goes to the Trash stays inside the demo as well; set before the desktop's library first looks.
        qputenv("XDG_DATA_HOME", paths::toBytes(demo.home() + QStringLiteral("/.local/share")));
        QGuiApplication application(argc, argv);
        demo.fill(); // not before: without a display the line above ends the program
        program::describe();
        return runDemo(demo);
    } catch (const std::exception &error) {
        fprintf(stderr, "The demo's home could not be made: %s\n", error.what());
        return EXIT_FAILURE;
    }
}
