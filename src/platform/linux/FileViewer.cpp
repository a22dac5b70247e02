#include "platform/linux/FileViewer.h"

#include "base/Paths.h"
#include "platform/linux/ProgramSearch.h"

#include <QDBusMessage>
#include <QDBusUnixFileDescriptor>
#include <QScopeGuard>
#include <QVariantMap>

#include <fcntl.h>
#include <unistd.h>

namespace {

/// True when the call came back without an error. Waits for it, and with it for the start of the service.
bool succeeds(const QDBusConnection &bus, const QDBusMessage &call)
{
    return bus.isConnected() && bus.call(call).type() == QDBusMessage::ReplyMessage;
}

/// The file manager of whichever desktop, by its freedesktop.org interface.
bool asksFileManager(const QDBusConnection &bus, const QString &method, const QString &path)
{
    const QString name = QStringLiteral("org.freedesktop.FileManager1");
    QDBusMessage call =
        QDBusMessage::createMethodCall(name, QStringLiteral("/org/freedesktop/FileManager1"), name, method);
    const QString noStartupId = QStringLiteral("");
    call.setArguments({QStringList{QString::fromLatin1(paths::fileUrl(path))}, noStartupId});
    return succeeds(bus, call);
}

/// The portal shows the folder of the entry that it is handed, opened. O_PATH opens nothing for real, so that a
/// pipe or device can't hold us up. A link is handed over as itself, which the portal may refuse: what it leads
/// to lies in another folder.
bool asksPortal(const QDBusConnection &bus, const QString &path)
{
    if (!bus.isConnected())
        return false;
    const int descriptor = ::open(paths::toBytes(path).constData(), O_PATH | O_CLOEXEC | O_NOFOLLOW);
    if (descriptor == -1)
        return false;
    const auto closing = qScopeGuard([descriptor] { close(descriptor); });
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.portal.Desktop"), QStringLiteral("/org/freedesktop/portal/desktop"),
        QStringLiteral("org.freedesktop.portal.OpenURI"), QStringLiteral("OpenDirectory"));
    const QString noParentWindow = QStringLiteral("");
    call.setArguments(
        {noParentWindow, QVariant::fromValue(QDBusUnixFileDescriptor(descriptor)), QVariantMap()});
    return succeeds(bus, call);
}

/// The previewer that file managers call at a press of the space bar. Its name lacks the number of its interface.
bool asksPreviewer(const QDBusConnection &bus, const QString &path)
{
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.gnome.NautilusPreviewer"), QStringLiteral("/org/gnome/NautilusPreviewer"),
        QStringLiteral("org.gnome.NautilusPreviewer2"), QStringLiteral("ShowFile"));
    const QString noParentWindow = QStringLiteral("");
    const bool closesWhenShown = false; // asking twice is asking to see it, not to be rid of it
    call.setArguments({QString::fromLatin1(paths::fileUrl(path)), noParentWindow, closesWhenShown});
    return succeeds(bus, call);
}

} // namespace

namespace fileviewer {

void reveal(const QString &path, const QDBusConnection &bus, const QStringList &searchPath)
{
    if (asksFileManager(bus, QStringLiteral("ShowItems"), path) || asksPortal(bus, path))
        return;
    open(paths::fileUrl(paths::parent(path)), searchPath);
}

void showFolder(const QString &path, const QDBusConnection &bus, const QStringList &searchPath)
{
    if (!asksFileManager(bus, QStringLiteral("ShowFolders"), path))
        open(paths::fileUrl(path), searchPath);
}

void quickLook(const QString &path, const QDBusConnection &bus, const QStringList &searchPath)
{
    if (!asksPreviewer(bus, path))
        open(paths::fileUrl(path), searchPath);
}

void open(const QByteArray &address, const QStringList &searchPath)
{
    programs::launchFirst({QStringLiteral("xdg-open")}, searchPath, {QString::fromLatin1(address)});
}

} // namespace fileviewer
