#include "platform/linux/PortalAppearance.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace {

const QString portal = QStringLiteral("org.freedesktop.portal.Desktop");
const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString interface = QStringLiteral("org.freedesktop.portal.Settings");
const QString appearanceGroup = QStringLiteral("org.freedesktop.appearance");
const QString schemeKey = QStringLiteral("color-scheme");
constexpr uint prefersLight = 2; // 0: no preference, 1: dark

/// The portal's Read wraps its answer in a variant of a variant.
QVariant unwrapped(QVariant value)
{
    while (value.canConvert<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value;
}

} // namespace

PortalAppearance::PortalAppearance(const QDBusConnection &bus, Appearance &appearance)
    : appearance_(appearance)
{
    if (!bus.isConnected())
        return;
    QDBusConnection connection = bus;
    connection.connect(portal, path, interface, QStringLiteral("SettingChanged"), this,
                       SLOT(settingChanged(QString, QString, QDBusVariant)));
    QDBusMessage read = QDBusMessage::createMethodCall(portal, path, interface, QStringLiteral("Read"));
    read << appearanceGroup << schemeKey;
    auto *watcher = new QDBusPendingCallWatcher(connection.asyncCall(read), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        const QDBusPendingReply<QDBusVariant> reply = *watcher;
        if (!reply.isError())
            apply(QVariant::fromValue(reply.value()));
        watcher->deleteLater();
    });
}

void PortalAppearance::settingChanged(const QString &group, const QString &key, const QDBusVariant &value)
{
    if (group == appearanceGroup && key == schemeKey)
        apply(QVariant::fromValue(value));
}

void PortalAppearance::apply(const QVariant &value)
{
    appearance_.setDark(unwrapped(value).toUInt() != prefersLight);
}
