#include "platform/linux/AccessibilityBus.h"

#include "platform/linux/BusCheck.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusVariant>

namespace {

constexpr int patience = 500; // ms, for each of the two that are asked

const QString busService = QStringLiteral("org.a11y.Bus");
const QString busPath = QStringLiteral("/org/a11y/bus");

/// The toolkit asks the registry as soon as it has its connection, and waits for that as well.
const buscheck::Peer registry = {"org.a11y.atspi.Registry", "/org/a11y/atspi/registry"};

/// What the toolkit calls its connection to this bus. It takes a connection of that name that is there already.
const QString toolkitsName = QStringLiteral("a11y");

QVariant answerOf(const QDBusConnection &session, const QDBusMessage &question)
{
    const QDBusMessage answer = session.call(question, QDBus::Block, patience);
    return answer.type() == QDBusMessage::ReplyMessage && !answer.arguments().isEmpty()
               ? answer.arguments().first()
               : QVariant();
}

bool hasStatus(const QDBusConnection &session, const char *property)
{
    QDBusMessage question = QDBusMessage::createMethodCall(
        busService, busPath, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    question << QStringLiteral("org.a11y.Status") << QString::fromLatin1(property);
    return answerOf(session, question).value<QDBusVariant>().variant().toBool();
}

/// Whether the toolkit is going to connect. Its own switch in the environment is one of three reasons.
bool isInUse(const QDBusConnection &session)
{
    return qEnvironmentVariableIsSet("QT_LINUX_ACCESSIBILITY_ALWAYS_ON") || hasStatus(session, "IsEnabled")
           || hasStatus(session, "ScreenReaderEnabled");
}

/// Where the toolkit is going to connect; empty where it isn't.
QString addressFrom(const QDBusConnection &session)
{
    const QByteArray ofTheEnvironment = qgetenv("AT_SPI_BUS_ADDRESS");
    if (!ofTheEnvironment.isEmpty())
        return QString::fromLocal8Bit(ofTheEnvironment);
    // The name is only looked at, since a call would start its owner.
    if (!session.isConnected() || !session.interface()->isServiceRegistered(busService) || !isInUse(session))
        return {};
    return answerOf(session, QDBusMessage::createMethodCall(busService, busPath, busService,
                                                            QStringLiteral("GetAddress")))
        .toString();
}

} // namespace

namespace accessibilitybus {

void passOverSilentOne(const QDBusConnection &session)
{
    const QString address = addressFrom(session);
    if (address.isEmpty() || buscheck::ask(address, registry, patience) == buscheck::Outcome::answered)
        return;
    qWarning("The accessibility bus does not answer; assistive technology is left out until the next start.");
    // The toolkit then says its part to the session's bus, where nobody listens.
    QDBusConnection::connectToBus(QDBusConnection::SessionBus, toolkitsName);
}

void outlive()
{
    constexpr const char *switchOfTheLibrary = "DBUS_FATAL_WARNINGS";
    if (!qEnvironmentVariableIsSet(switchOfTheLibrary))
        qputenv(switchOfTheLibrary, "0");
}

} // namespace accessibilitybus
