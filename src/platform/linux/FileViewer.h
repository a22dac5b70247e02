#pragma once

#include <QDBusConnection>
#include <QString>
#include <QStringList>

/// Showing files in the desktop's file manager. These wait for other programs, which may have to be started
/// first, so they belong on the work queue.
namespace fileviewer {

/// Shows an entry selected in its folder: by the file manager, else by the desktop's portal, else by opening
/// the folder it lies in.
void reveal(const QString &path, const QDBusConnection &bus, const QStringList &searchPath);

/// Shows the content of a folder: by the file manager, else by opening it.
void showFolder(const QString &path, const QDBusConnection &bus, const QStringList &searchPath);

/// Shows a preview of an entry: by the file manager's previewer, else by opening it.
void quickLook(const QString &path, const QDBusConnection &bus, const QStringList &searchPath);

/// Opens a file, a folder or an address by the user's choice of application for its kind.
void open(const QByteArray &address, const QStringList &searchPath);

} // namespace fileviewer
