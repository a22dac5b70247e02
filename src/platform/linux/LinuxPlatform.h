#pragma once

#include "base/EventLoopMainQueue.h"
#include "base/ThreadWorkQueue.h"
#include "platform/linux/JsonDefaults.h"
#include "platform/linux/LinuxApplications.h"
#include "platform/linux/LinuxRecycler.h"
#include "platform/linux/LinuxSystemInfo.h"
#include "platform/linux/LinuxSystemLog.h"
#include "platform/linux/LinuxWorkspace.h"
#include "platform/LinuxEnvironment.h"
#include "platform/Platform.h"

/// The platform of a program on this system: its adapters, its queues and its places. Construct it on the main thread,
/// with the application's event loop at hand; touches no disk by itself.
class LinuxPlatform
{
public:
    /// The panels of `desktop` ask where the system has none of its own.
    explicit LinuxPlatform(LinuxDesktop desktop);

    const Platform &platform() const { return platform_; }

    /// The folder of this session's sockets and locks; the home's cache folder where the system gives none.
    static QString runtimeFolder();

private:
    QString home_;
    SystemClock clock_;
    EventLoopMainQueue mainQueue_;
    ThreadWorkQueue workQueue_;
    NotificationCenter notifications_;
    JsonDefaults defaults_;
    Lazy<Locations> locations_;
    LinuxApplications applications_;
    LinuxWorkspace workspace_;
    LinuxSystemLog systemLog_;
    LinuxRecycler recycler_;
    LinuxSystemInfo systemInfo_;
    Platform platform_;
};
