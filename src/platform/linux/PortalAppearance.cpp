#include "platform/linux/PortalAppearance.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDebug>

#include <optional>

namespace {

const QString portal = QStringLiteral("org.freedesktop.portal.Desktop");
const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString interface = QStringLiteral("org.freedesktop.portal.Settings");
const QString appearanceGroup = QStringLiteral("org.freedesktop.appearance");
const QString schemeKey = QStringLiteral("color-scheme");
constexpr uint prefersLight =
    2; // 0: no preference, 1: dark; what else there may ever be stands for no preference

/// The colour scheme that a portal tells; none where it tells something else. Its Read wraps the answer in a variant of a
/// variant.
std::optional<uint> schemeOf(QVariant value)
{
    while (value.metaType() == QMetaType::fromType<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value.metaType() == QMetaType::fromType<uint>() ? std::optional(value.toUInt()) : std::nullopt;
}

} // namespace

PortalAppearance::PortalAppearance(const QDBusConnection &bus, Appearance &appearance)
    : bus_(bus)
    , appearance_(appearance)
{
    if (!bus_.isConnected())
        return;
    listen();
    read();
}

void PortalAppearance::listen()
{
    // QtDBus looks the slot's types up by their names, and this one has none before something asks for its number.
    qRegisterMetaType<QDBusVariant>();
    // From any sender: naming the portal here would make Qt ask who that is and wait. The worst that another program can
    // do is to change our colours.
    const bool isHeard = bus_.connect(QString(), path, interface, QStringLiteral("SettingChanged"), this,
                                      SLOT(settingChanged(QString, QString, QDBusVariant)));
    if (!isHeard)
        qWarning() << "Changes between light and dark are not heard:" << bus_.lastError().message();
    // One that starts later, or anew, may have another mind.
    portal_.setConnection(bus_);
    portal_.setWatchMode(QDBusServiceWatcher::WatchForRegistration);
    connect(&portal_, &QDBusServiceWatcher::serviceRegistered, this, &PortalAppearance::read);
    portal_.addWatchedService(portal);
}

void PortalAppearance::read()
{
    QDBusMessage call = QDBusMessage::createMethodCall(portal, path, interface, QStringLiteral("Read"));
    call << appearanceGroup << schemeKey;
    auto *watcher = new QDBusPendingCallWatcher(bus_.asyncCall(call), this);
    awaited_ = watcher;
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        if (watcher != awaited_) // what came meanwhile is newer
            return;
        awaited_ = nullptr;
        if (!watcher->isError())
            take(watcher->reply().arguments().value(0));
    });
}

void PortalAppearance::settingChanged(const QString &group, const QString &key, const QDBusVariant &value)
{
    if (group != appearanceGroup || key != schemeKey || !schemeOf(value.variant()))
        return;
    awaited_ = nullptr;
    take(value.variant());
}

void PortalAppearance::take(const QVariant &value)
{
    if (const std::optional<uint> scheme = schemeOf(value))
        appearance_.setDark(*scheme != prefersLight);
}
