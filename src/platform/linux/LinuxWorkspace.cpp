#include "platform/linux/LinuxWorkspace.h"

#include "base/Paths.h"
#include "platform/linux/FileViewer.h"
#include "platform/linux/ProgramSearch.h"

#include <QClipboard>
#include <QGuiApplication>

LinuxWorkspace::LinuxWorkspace(LinuxDesktop desktop, WorkQueue &workQueue)
    : desktop_(std::move(desktop))
    , workQueue_(workQueue)
{
}

LinuxWorkspace::~LinuxWorkspace() = default;

void LinuxWorkspace::open(const QString &path)
{
    // As an address: it says every name unmistakably, where a path is taken apart by the scripts behind xdg-open.
    openAddress(paths::fileUrl(path));
}

void LinuxWorkspace::openAddress(const QByteArray &address)
{
    if (!programs::isAddress(address))
        return;
    workQueue_.post(WorkPriority::userInitiated,
                    [address, searchPath = desktop_.searchPath] { fileviewer::open(address, searchPath); });
}

void LinuxWorkspace::openSettingsPage(const QByteArray &)
{
    // The one page that the program ever asks for is about privacy; a desktop without such a page shows its settings.
    workQueue_.post(WorkPriority::userInitiated, [searchPath = desktop_.searchPath] {
        if (!programs::launchFirst({QStringLiteral("gnome-control-center")}, searchPath,
                                   {QStringLiteral("privacy")}, {}))
            programs::launchFirst(
                {QStringLiteral("systemsettings"), QStringLiteral("xfce4-settings-manager")}, searchPath, {},
                {});
    });
}

void LinuxWorkspace::reveal(const QString &path)
{
    workQueue_.post(WorkPriority::userInitiated,
                    [path, bus = desktop_.bus, searchPath = desktop_.searchPath] {
                        fileviewer::reveal(path, bus, searchPath);
                    });
}

void LinuxWorkspace::showFolder(const QString &path)
{
    workQueue_.post(WorkPriority::userInitiated,
                    [path, bus = desktop_.bus, searchPath = desktop_.searchPath] {
                        fileviewer::showFolder(path, bus, searchPath);
                    });
}

void LinuxWorkspace::quickLook(const QString &path)
{
    workQueue_.post(WorkPriority::userInitiated,
                    [path, bus = desktop_.bus, searchPath = desktop_.searchPath] {
                        fileviewer::quickLook(path, bus, searchPath);
                    });
}

void LinuxWorkspace::openTerminal(const QString &folder)
{
    workQueue_.post(WorkPriority::userInitiated, [folder, searchPath = desktop_.searchPath] {
        programs::launchFirst({QStringLiteral("xdg-terminal-exec"), QStringLiteral("x-terminal-emulator")},
                              searchPath, {}, folder);
    });
}

void LinuxWorkspace::chooseFolder(const FolderRequest &request, PathChosen chosen)
{
    const auto fallBack = [this, request, chosen] { desktop_.fallbackFolderPanel(request, chosen); };
    showPanel(PanelPortal::requestFor(request), {std::move(chosen), fallBack});
}

void LinuxWorkspace::chooseSavePath(const SaveRequest &request, PathChosen chosen)
{
    const auto fallBack = [this, request, chosen] { desktop_.fallbackSavePanel(request, chosen); };
    showPanel(PanelPortal::requestFor(request), {std::move(chosen), fallBack});
}

void LinuxWorkspace::copyText(const QString &text)
{
    QGuiApplication::clipboard()->setText(paths::display(text));
}

void LinuxWorkspace::showPanel(const PanelPortal::Request &request, PanelPortal::Answers answers)
{
    if (portal_) {
        portal_->dismiss(); // two panels at a time would leave the user guessing what each is for
        portal_->deleteLater();
        portal_ = nullptr;
    }
    if (!desktop_.bus.isConnected()) {
        QMetaObject::invokeMethod(&context_, answers.failed, Qt::QueuedConnection);
        return;
    }
    portal_ = new PanelPortal(desktop_.bus, std::move(answers));
    portal_->setParent(&context_);
    portal_->open(request);
}
