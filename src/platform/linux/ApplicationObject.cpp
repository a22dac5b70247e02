#include "platform/linux/ApplicationObject.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>

namespace {

constexpr qsizetype mostToken = 4096; // bytes; a desktop's token has less than a hundred

/// The token in an interface's "platform data"; empty when there is none, or nothing that could be one.
QByteArray tokenOf(const QVariantMap &platformData)
{
    for (const QLatin1StringView key : {ApplicationObject::tokenKey, ApplicationObject::startupIdKey}) {
        QByteArray token = platformData.value(QString(key)).toString().toUtf8();
        if (!token.isEmpty() && token.size() <= mostToken)
            return token;
    }
    return {};
}

/// The signature of a call; empty for a name that is none of ours.
QString signatureOf(const QString &method)
{
    if (method == u"Activate")
        return QStringLiteral("a{sv}");
    if (method == u"Open")
        return QStringLiteral("asa{sv}");
    return method == u"ActivateAction" ? QStringLiteral("sava{sv}") : QString();
}

} // namespace

ApplicationObject::ApplicationObject(std::function<void(const QByteArray &)> activate)
    : activate_(std::move(activate))
{
}

QString ApplicationObject::introspect(const QString &) const
{
    return QStringLiteral(
        "<interface name=\"org.freedesktop.Application\">"
        "<method name=\"Activate\"><arg name=\"platform_data\" type=\"a{sv}\" direction=\"in\"/>"
        "</method>"
        "<method name=\"Open\"><arg name=\"uris\" type=\"as\" direction=\"in\"/>"
        "<arg name=\"platform_data\" type=\"a{sv}\" direction=\"in\"/></method>"
        "<method name=\"ActivateAction\"><arg name=\"action_name\" type=\"s\" direction=\"in\"/>"
        "<arg name=\"parameter\" type=\"av\" direction=\"in\"/>"
        "<arg name=\"platform_data\" type=\"a{sv}\" direction=\"in\"/></method>"
        "</interface>");
}

bool ApplicationObject::handleMessage(const QDBusMessage &message, const QDBusConnection &connection)
{
    const bool isOurs = message.interface().isEmpty() || message.interface() == interface;
    const QString signature = signatureOf(message.member());
    if (message.type() != QDBusMessage::MethodCallMessage || !isOurs || signature.isEmpty())
        return false; // the bus answers with "unknown method"
    if (message.signature() != signature) {
        connection.send(
            message.createErrorReply(QDBusError::InvalidArgs, QStringLiteral("Expected ") + signature));
        return true;
    }
    connection.send(message.createReply());
    activate_(tokenOf(qdbus_cast<QVariantMap>(message.arguments().last())));
    return true;
}
