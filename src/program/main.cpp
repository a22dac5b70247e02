#include "platform/Appearance.h"
#include "platform/linux/AccessibilityBus.h"
#include "platform/linux/LinuxPlatform.h"
#include "platform/linux/LinuxSingleInstance.h"
#include "platform/linux/PortalAppearance.h"
#include "platform/linux/QuitSignals.h"
#include "platform/linux/RenderNode.h"
#include "platform/linux/SessionBus.h"
#include "program/Composition.h"
#include "program/FallbackPanel.h"
#include "program/ProgramInfo.h"
#include "program/Rendering.h"

#include <QDBusConnection>
#include <QGuiApplication>
#include <QQuickWindow>

#include <cstdio>
#include <functional>

#include <unistd.h>

namespace {

constexpr int exitWithoutDisplay = 69; // EX_UNAVAILABLE
constexpr int exitWithoutLook = 70;    // EX_SOFTWARE

/// Where the toolkit finds no display it ends the process with an abort; a user gets words and a code instead.
void tellMissingDisplay(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (type == QtFatalMsg) {
        fputs("Quillmere needs a display. Start it from a desktop session, or set DISPLAY or "
              "WAYLAND_DISPLAY.\n",
              stderr);
        fflush(stderr);
        _exit(exitWithoutDisplay);
    }
    fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(type, context, message)));
}

[[noreturn]] void exitNow()
{
    fflush(nullptr);
    _exit(EXIT_SUCCESS);
}

/// What another start hands over so that our window may take the focus.
QByteArray activationToken()
{
    const QByteArray token = qgetenv("XDG_ACTIVATION_TOKEN");
    return token.isEmpty() ? qgetenv("DESKTOP_STARTUP_ID") : token;
}

} // namespace

int main(int argc, char *argv[])
{
    accessibilitybus::outlive();
    sessionbus::passOverSilentOne();
    rendering::choose(rendernode::isThere());
    const QtMessageHandler usual = qInstallMessageHandler(tellMissingDisplay);
    QGuiApplication application(argc, argv);
    qInstallMessageHandler(usual);
    program::describe();

    const QDBusConnection bus = QDBusConnection::sessionBus();
    LinuxSingleInstance instance(bus,
                                 LinuxPlatform::runtimeFolder() + QStringLiteral("/com.quillmere.app.lock"));
    if (!instance.acquire()) {
        instance.activateRunning(activationToken());
        return EXIT_SUCCESS;
    }

    accessibilitybus::passOverSilentOne(bus);
    FallbackPanel panel; // gets its window further down; nobody asks for a panel before
    LinuxPlatform linuxPlatform({bus, QString::fromLocal8Bit(qgetenv("PATH")).split(u':', Qt::SkipEmptyParts),
                                 std::bind_front(&FallbackPanel::chooseFolder, &panel),
                                 std::bind_front(&FallbackPanel::chooseSavePath, &panel)});
    Appearance appearance;
    const PortalAppearance portal(bus, appearance);
    Composition composition(
        linuxPlatform.platform(), appearance, program::feedbackProgram(),
        [&composition] {
            composition.sizeProbes().cancelProbes(); // or they would measure on for nobody
            exitNow();
        },
        {QGuiApplication::applicationFilePath(), [&instance] { instance.release(); }});
    const QuitSignals quitSignals([&composition] { composition.quit().handleQuitEvent(); });
    QObject::connect(&application, &QCoreApplication::aboutToQuit,
                     [&composition] { composition.quit().handleQuitEvent(); }); // the session's end
    instance.onActivate = [&composition](const QByteArray &token) { composition.activate(token); };
    if (!composition.show())
        return exitWithoutLook;
    composition.attach(panel);
    return QGuiApplication::exec();
}
