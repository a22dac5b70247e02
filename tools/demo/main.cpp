#include "base/EventLoopMainQueue.h"
#include "base/Paths.h"
#include "base/ThreadWorkQueue.h"
#include "common/NotificationNames.h"
#include "DemoHome.h"
#include "DemoOptions.h"
#include "DemoRecycler.h"
#include "gallery/Gallery.h"
#include "platform/Appearance.h"
#include "platform/linux/AccessibilityBus.h"
#include "platform/linux/LinuxApplications.h"
#include "platform/linux/LinuxRecycler.h"
#include "platform/linux/LinuxSystemInfo.h"
#include "platform/linux/LinuxSystemLog.h"
#include "platform/linux/LinuxWorkspace.h"
#include "platform/linux/PortalAppearance.h"
#include "platform/linux/QuitSignals.h"
#include "platform/linux/RenderNode.h"
#include "program/Composition.h"
#include "program/FallbackPanel.h"
#include "program/ProgramInfo.h"
#include "program/Rendering.h"

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
// "--help" tells what it takes.

namespace {

/// The services of this machine that the program runs on, over the demo's home.
struct DemoDesktop
{
    explicit DemoDesktop(const DemoHome &demo)
        : locations([&demo] { return macLocations(demo.home(), demo.applicationsFolder()); })
        , platform{.home = demo.home(),
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
                   .applications = applications,
                   .systemLog = systemLog,
                   .systemInfo = systemInfo}
    {
    }

    SystemClock clock;
    EventLoopMainQueue mainQueue;
    ThreadWorkQueue workQueue;
    NotificationCenter notifications;
    Defaults defaults;
    const Lazy<Locations> locations;
    const QDBusConnection bus = QDBusConnection::sessionBus();
    FallbackPanel panel;
    LinuxWorkspace workspace{{bus, QString::fromLocal8Bit(qgetenv("PATH")).split(u':', Qt::SkipEmptyParts),
                              std::bind_front(&FallbackPanel::chooseFolder, &panel),
                              std::bind_front(&FallbackPanel::chooseSavePath, &panel)},
                             workQueue};
    LinuxSystemLog systemLog{clock};
    LinuxRecycler trash{ChildPrograms().pkexec, ChildPrograms().mv, systemLog};
    DemoRecycler recycler{trash};
    const LinuxApplications applications{locations, {}};
    const LinuxSystemInfo systemInfo;
    const Platform platform;
};

void savePicture(QQuickWindow &window, const QString &file)
{
    if (!window.grabWindow().save(file))
        fprintf(stderr, "The picture could not be saved.\n");
}

/// Saves a picture of the window as soon as no scan is running, and ends the program.
void savePictureWhenReady(Composition &composition, const QString &file, const std::function<void()> &exitNow)
{
    auto *timer = new QTimer(composition.window());
    QObject::connect(timer, &QTimer::timeout, timer, [&composition, file, exitNow, timer] {
        if (composition.disk().isScanningAnalyzer() || composition.duplicates().isScanning()
            || composition.cleanup().isScanning() || composition.apps().isLoading()
            || composition.apps().isScanningGhosts())
            return;
        timer->stop();
        // One more turn, so that the last result is painted.
        QTimer::singleShot(300, timer, [&composition, file, exitNow] {
            savePicture(*composition.window(), file);
            exitNow();
        });
    });
    timer->start(300);
}

int runDemo(DemoHome &demo, const DemoOptions &options)
{
    DemoDesktop desktop(demo);
    accessibilitybus::passOverSilentOne(desktop.bus);
    Appearance appearance;
    appearance.setDark(!options.isLight);
    const auto exitNow = [&demo] {
        demo.remove();
        fflush(nullptr);
        _exit(EXIT_SUCCESS);
    };
    Composition composition(desktop.platform, appearance, program::feedbackProgram(), exitNow);
    const QuitSignals quitSignals(exitNow);
    if (!options.screen.isEmpty())
        composition.content().setSelectedItem(sidebar::itemForKey(options.screen));
    if (!composition.show())
        return EXIT_FAILURE;
    composition.attach(desktop.panel);
    if (options.refreshes)
        desktop.notifications.post(notifications::rescan);
    if (!options.picture.isEmpty())
        savePictureWhenReady(composition, options.picture, exitNow);
    return QGuiApplication::exec();
}

/// The controls in their states. With a picture to save, all of them at once and until their tooltips have come.
int runGallery(const DemoOptions &options)
{
    constexpr int tooltipsAreThere = 1500; // ms
    Gallery gallery(!options.isLight);
    if (!options.picture.isEmpty()) {
        gallery.showWhole();
        QTimer::singleShot(tooltipsAreThere, &gallery.window(), [&gallery, &options] {
            savePicture(gallery.window(), options.picture);
            QGuiApplication::quit();
        });
    }
    QObject::connect(&gallery.window(), &QWindow::visibleChanged, qGuiApp, &QGuiApplication::quit);
    return QGuiApplication::exec();
}

/// The options are read ahead of everything that takes time or needs a display. No application object is made for it: with
/// the end of the first one of a process the toolkit forgets how to tell assistive technology of the window.
DemoOptions optionsFrom(int argc, char *argv[])
{
    QStringList arguments;
    for (int index = 0; index < argc; ++index)
        arguments << QString::fromLocal8Bit(argv[index]);
    return DemoOptions::from(arguments);
}

} // namespace

int main(int argc, char *argv[])
{
    try {
        const DemoOptions options = optionsFrom(argc, argv);
        if (options.isGallery) {
            accessibilitybus::outlive();
            rendering::choose(rendernode::isThere());
            const QGuiApplication application(argc, argv);
            program::describe();
            return runGallery(options);
        }
        DemoHome demo;
        // What goes to the Trash stays inside the demo as well; set before the desktop's library first looks.
        qputenv("XDG_DATA_HOME", paths::toBytes(demo.home() + QStringLiteral("/.local/share")));
        accessibilitybus::outlive();
        rendering::choose(rendernode::isThere());
        QGuiApplication application(argc, argv);
        demo.fill(); // not before: without a display the line above ends the program
        program::describe();
        return runDemo(demo, options);
    } catch (const std::exception &error) {
        fprintf(stderr, "The demo could not begin: %s\n", error.what());
        return EXIT_FAILURE;
    }
}
