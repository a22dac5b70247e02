#pragma once

#include "platform/Appearance.h"

#include <QDBusConnection>
#include <QDBusVariant>
#include <QObject>

/// Keeps an Appearance at what the desktop's settings portal says, now and at each change. Without a bus or a portal
/// nothing happens. Never waits. Main thread.
class PortalAppearance final : public QObject
{
    Q_OBJECT

public:
    /// `appearance` outlives this object.
    PortalAppearance(const QDBusConnection &bus, Appearance &appearance);

private slots:
    void settingChanged(const QString &group, const QString &key, const QDBusVariant &value);

private:
    void apply(const QVariant &value);

    Appearance &appearance_;
};
