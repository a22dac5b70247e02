#pragma once

#include "platform/linux/ApplicationObject.h"
#include "platform/linux/InstanceLock.h"
#include "platform/SingleInstance.h"

#include <QDBusConnection>

/// One process a user: the well-known name on the session's bus, and a lock in the runtime folder, which also
/// holds for a process that was started without a bus.
class LinuxSingleInstance final : public SingleInstance
{
public:
    /// `bus` may be one that is not connected. `lockPath` is "com.quillmere.app.lock" in $XDG_RUNTIME_DIR; empty
    /// where there is no such folder.
    LinuxSingleInstance(QDBusConnection bus, const QString &lockPath);
    ~LinuxSingleInstance() override;

    bool acquire() override;
    void activateRunning(const QByteArray &token) override;
    void release() override;

private:
    bool acquireName();
    void releaseName();

    QDBusConnection bus_;
    ApplicationObject object_;
    InstanceLock lock_;
    bool ownsName_ = false;
};
