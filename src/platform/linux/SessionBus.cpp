#include "platform/linux/SessionBus.h"

#include "platform/linux/BusCheck.h"

#include <QtGlobal>

namespace {

constexpr int longestLook = 1000; // ms
constexpr const char *addressVariable = "DBUS_SESSION_BUS_ADDRESS";

/// Where the libraries are going to connect. Empty where they would first start a bus, which answers then, or find none.
QString sessionAddress()
{
    if (const QByteArray told = qgetenv(addressVariable); !told.isEmpty())
        return QString::fromLocal8Bit(told);
    const QByteArray runtimeFolder = qgetenv("XDG_RUNTIME_DIR");
    return runtimeFolder.isEmpty() ? QString()
                                   : QStringLiteral("unix:path=") + QString::fromLocal8Bit(runtimeFolder)
                                         + QStringLiteral("/bus");
}

} // namespace

namespace sessionbus {

void passOverSilentOne()
{
    const buscheck::Peer busItself = {"org.freedesktop.DBus", "/org/freedesktop/DBus"};
    const QString address = sessionAddress();
    if (address.isEmpty() || buscheck::ask(address, busItself, longestLook) != buscheck::Outcome::silent)
        return;
    qWarning("The session's bus does not answer; the program goes without it until the next start.");
    qputenv(addressVariable, "disabled:"); // no library knows that kind of address
}

} // namespace sessionbus
