#pragma once

#include "base/WorkQueue.h"
#include "platform/linux/LinuxDesktop.h"
#include "platform/linux/PanelPortal.h"
#include "platform/Workspace.h"

#include <QObject>

/// The desktop by its freedesktop.org interfaces: the file manager and the portals on the session's bus, and
/// the xdg programs. Whatever could wait for another program or a disk runs on the work queue.
class LinuxWorkspace final : public Workspace
{
public:
    /// `workQueue` outlives the workspace.
    LinuxWorkspace(LinuxDesktop desktop, WorkQueue &workQueue);
    ~LinuxWorkspace() override;

    void open(const QString &path) override;
    void openAddress(const QByteArray &address) override;
    void openSettingsPage(const QByteArray &address) override;
    void reveal(const QString &path) override;
    void showFolder(const QString &path) override;
    void quickLook(const QString &path) override;
    void openTerminal(const QString &folder) override;
    void chooseFolder(const FolderRequest &request, PathChosen chosen) override;
    void chooseSavePath(const SaveRequest &request, PathChosen chosen) override;
    void copyText(const QString &text) override;

private:
    void showPanel(const PanelPortal::Request &request, PanelPortal::Answers answers);

    const LinuxDesktop desktop_;
    WorkQueue &workQueue_;
    QObject context_;               // its death drops what is still posted, and closes the panel
    PanelPortal *portal_ = nullptr; // the panel on view or the last one, a child of context_
};
