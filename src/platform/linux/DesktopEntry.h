#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/// What the program needs of a desktop entry, the file by which a desktop knows an application.
struct DesktopEntry
{
    QString
        program; ///< the first word of its command: a path, or a name to be looked up; empty: it has no command
    QString tryProgram;         ///< likewise; without it the application counts as not there. Mostly empty
    bool isActivatable = false; ///< its desktop starts it by a message, so it may go without a command

    /// None for content that is damaged, no application's, or an entry that was deleted by hiding it.
    static std::optional<DesktopEntry> parse(const QByteArray &content);

    bool operator==(const DesktopEntry &) const = default;
};
