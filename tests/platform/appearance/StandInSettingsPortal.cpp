#include "StandInSettingsPortal.h"

#include "platform/linux/WaitUntil.h"

#include <QDBusVariant>

using namespace Qt::StringLiterals;

namespace {

const QString objectPath = u"/org/freedesktop/portal/desktop"_s;

/// As Read has it: a variant in a variant.
QDBusMessage replyTo(const QDBusMessage &call, const QVariant &scheme)
{
    const QDBusVariant inner(scheme);
    return call.createReply(QVariant::fromValue(QDBusVariant(QVariant::fromValue(inner))));
}

} // namespace

StandInSettingsPortal::StandInSettingsPortal(const QDBusConnection &bus,
                                             const std::optional<QVariant> &scheme)
    : bus_(bus)
    , service_(bus, u"org.freedesktop.portal.Desktop"_s, objectPath, [scheme](const QDBusMessage &call) {
        return scheme ? replyTo(call, *scheme) : QDBusMessage();
    })
{
}

void StandInSettingsPortal::tell(const QVariant &scheme)
{
    tell(u"org.freedesktop.appearance"_s, u"color-scheme"_s, scheme);
}

void StandInSettingsPortal::tell(const QString &group, const QString &key, const QVariant &value)
{
    tellBadly({group, key, QVariant::fromValue(QDBusVariant(value))});
}

void StandInSettingsPortal::tellBadly(const QVariantList &arguments)
{
    QDBusMessage signal =
        QDBusMessage::createSignal(objectPath, u"org.freedesktop.portal.Settings"_s, u"SettingChanged"_s);
    signal.setArguments(arguments);
    bus_.send(signal);
}

bool StandInSettingsPortal::waitForCalls(int count) const
{
    return waitUntil([&] { return service_.calls.size() >= count; });
}

void StandInSettingsPortal::answer(int call, const QVariant &scheme)
{
    bus_.send(replyTo(service_.calls[call], scheme));
}
