#include "StandInPanelPortal.h"

#include "WaitUntil.h"

#include <QDBusArgument>
#include <QDBusObjectPath>

using namespace Qt::StringLiterals;

namespace {

const QString desktopPortalPath = u"/org/freedesktop/portal/desktop"_s;

} // namespace

StandInPanelPortal::StandInPanelPortal(const QDBusConnection &bus)
    : bus_(bus)
    , service_(bus, u"org.freedesktop.portal.Desktop"_s, desktopPortalPath,
               [this](const QDBusMessage &call) { return take(call); })
{
}

void StandInPanelPortal::respond(uint code, const QStringList &addresses)
{
    QDBusMessage signal =
        QDBusMessage::createSignal(requestPath, u"org.freedesktop.portal.Request"_s, u"Response"_s);
    signal.setArguments({code, QVariantMap{{u"uris"_s, addresses}}});
    bus_.send(signal);
}

bool StandInPanelPortal::waitForRequest() const
{
    return waitUntil([this] { return !requestPath.isEmpty(); });
}

QDBusMessage StandInPanelPortal::take(const QDBusMessage &call)
{
    if (call.member() == u"Close") {
        closed.append(call.path());
        return call.createReply();
    }
    title = call.arguments().value(1).toString();
    options = qdbus_cast<QVariantMap>(call.arguments().value(2));
    const QString sender = call.service().mid(1).replace(u'.', u'_'); // ":1.42" is "1_42" there
    const QString token = namesItsOwnPath ? u"own"_s : options.value(u"handle_token"_s).toString();
    requestPath = desktopPortalPath + u"/request/"_s + sender + u'/' + token;
    if (immediateCode)
        respond(*immediateCode, {u"file:///at%20once"_s});
    if (isLate)
        return call.createErrorReply(QDBusError::NoReply, u"Nobody answered in time."_s);
    return call.createReply(QVariant::fromValue(QDBusObjectPath(requestPath)));
}
