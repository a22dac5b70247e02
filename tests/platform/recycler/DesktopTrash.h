#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

/// The Trash as the desktop's own command-line tool sees it, each time on a session bus made for the one run.
namespace desktoptrash {

struct Entry
{
    QByteArray address;  ///< by which the tool knows it
    QByteArray original; ///< where it was
    /// The tool printed `original` with escapes. GLib 2.74's own restoring takes such a text for the name, so
    /// the entry is moved there by the same tool instead.
    bool isEscaped = false;
};

/// Everything in the home Trash and in those of other volumes. Fails the test when the tool does.
QList<Entry> list();

/// Brings an entry back to where it was. False, with a failure of the test, when the tool could not.
bool restore(const Entry &entry);

/// Brings the only entry there is back. Fails the test when there is another number of them.
bool restoreOnlyOne();

/// Brings back what was at `path`. Fails the test when the tool knows of nothing from there.
bool restorePath(const QString &path);

} // namespace desktoptrash
