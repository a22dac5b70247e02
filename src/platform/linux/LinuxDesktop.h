#pragma once

#include "platform/Workspace.h"

#include <QDBusConnection>
#include <QStringList>

#include <functional>

/// Shows a folder panel of our own, where the desktop has none. It keeps to what Workspace::chooseFolder tells.
using PanelFallback =
    std::function<void(const Workspace::FolderRequest &request, Workspace::FolderChosen chosen)>;

/// The desktop that a LinuxWorkspace talks to.
struct LinuxDesktop
{
    QDBusConnection bus;         ///< the session's; may be one that is not connected
    QStringList searchPath;      ///< folders of programs, in the order of $PATH
    PanelFallback fallbackPanel; ///< may be empty: then there is no panel, and the answer is a cancel
};
