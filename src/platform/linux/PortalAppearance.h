#pragma once

#include "platform/Appearance.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QDBusVariant>
#include <QObject>

class QDBusPendingCallWatcher;

/// Keeps an Appearance at what the desktop's settings portal says, now and at each change, from whenever there is a portal
/// on. Without a bus nothing happens; what a portal said last holds while there is none. Never waits. Main thread.
class PortalAppearance final : public QObject
{
    Q_OBJECT

public:
    /// `appearance` outlives this object.
    PortalAppearance(const QDBusConnection &bus, Appearance &appearance);

private slots:
    void settingChanged(const QString &group, const QString &key, const QDBusVariant &value);

private:
    void listen();
    void read();

    /// Takes a value of the portal's; one that is no colour scheme changes nothing.
    void take(const QVariant &value);

    QDBusConnection bus_;
    Appearance &appearance_;
    QDBusServiceWatcher portal_;
    const QDBusPendingCallWatcher *awaited_ = nullptr; // the one question whose answer still counts
};
