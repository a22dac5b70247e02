#pragma once

#include "base/ChildProcess.h"
#include "support/TempHome.h"

#include <QDBusConnection>

#include <memory>

/// A message bus of a test's own, which starts no services: nothing of the session that the tests run in is on it.
class PrivateBus
{
public:
    PrivateBus();
    ~PrivateBus();
    PrivateBus(const PrivateBus &) = delete;
    PrivateBus &operator=(const PrivateBus &) = delete;

    /// A new connection each time, which lives as long as the bus. Not connected when the bus didn't start.
    QDBusConnection connect();

    /// Where it listens, as a program is told in its environment.
    QString address() const;

    /// Ends the bus under those that are connected to it.
    void end();

    /// A connection that leads nowhere, as on a system without a session's bus.
    static QDBusConnection none();

private:
    TempHome folder_;
    std::unique_ptr<ChildProcess> daemon_;
    QStringList connections_;
};
