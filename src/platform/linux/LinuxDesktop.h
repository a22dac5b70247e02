#pragma once

#include "platform/Workspace.h"

#include <QDBusConnection>
#include <QStringList>

#include <functional>
#include <optional>

/// Shows a folder panel of our own, where the desktop has none. It keeps to
/// what Workspace::chooseFolder tells.
using FallbackFolderPanel =
    std::function<void(const Workspace::FolderRequest &request, Workspace::PathChosen chosen)>;

/// The same for saving, and Workspace::chooseSavePath.
using FallbackSavePanel =
    std::function<void(const Workspace::SaveRequest &request, Workspace::PathChosen chosen)>;

/// The desktop that a LinuxWorkspace talks to.
struct LinuxDesktop
{
    QDBusConnection bus;    ///< the session's; may be one that is not connected
    QStringList searchPath; ///< folders of programs, in the order of $PATH

    // Left out, there is no panel, and the answer is a cancel.
    FallbackFolderPanel fallbackFolderPanel = [](const auto &, const auto &chosen) { chosen(std::nullopt); };
    FallbackSavePanel fallbackSavePanel = [](const auto &, const auto &chosen) { chosen(std::nullopt); };
};
