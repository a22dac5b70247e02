#pragma once

#include "platform/UserDirectories.h"

#include <QString>

#include <optional>

/// What the Linux table of places depends on, gathered by whoever may ask the system. All empty is a fresh
/// account on a system without any settings.
struct LinuxEnvironment
{
    /// None: the English names below the home folder.
    std::optional<UserDirectories> userDirectories;

    QString configHome; ///< $XDG_CONFIG_HOME. Here and below: the default when empty or relative.
    QString dataHome;   ///< $XDG_DATA_HOME
    QString dataDirs;   ///< $XDG_DATA_DIRS, folders with colons between them
    QString cacheHome;  ///< $XDG_CACHE_HOME
    QString stateHome;  ///< $XDG_STATE_HOME

    /// Owner of the Trash folders on other volumes. None: those are left alone.
    std::optional<quint32> userId;
};
