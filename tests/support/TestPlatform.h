#pragma once

#include "activity/FDAService.h"
#include "filesystem/SizeProbes.h"
#include "platform/LinuxEnvironment.h"
#include "platform/Platform.h"
#include "support/Fakes.h"
#include "support/SteppedQueues.h"
#include "support/TempHome.h"

/// A platform over a temporary home of the Mac's shape, with fakes, defaults in memory, a clock that the test sets and
/// queues that it turns. The real `du` unless a test names another.
struct TestPlatform
{
    TempHome temp; ///< "home" and "Applications" lie in it

    QString home = temp.folder(QStringLiteral("home"));
    bool usesLinuxLocations = false; ///< to be set before anything asks for a place
    Lazy<Locations> locations{[this] {
        return usesLinuxLocations ? linuxLocations(home, {})
                                  : macLocations(home, temp.at(QStringLiteral("Applications")));
    }};
    Defaults defaults;
    FakeClock clock;
    SteppedMainQueue mainQueue;
    SteppedWorkQueue workQueue;
    NotificationCenter notifications;
    FakeWorkspace workspace;
    FakeRecycler recycler;
    FakeApplications applications;
    FakeSystemLog systemLog;
    FakeSystemInfo systemInfo;
    Platform platform{.home = home,
                      .locations = locations,
                      .defaults = defaults,
                      .clock = clock,
                      .programs = ChildPrograms(),
                      .keyStyle = KeyStyle::words,
                      .mainQueue = mainQueue,
                      .workQueue = workQueue,
                      .notifications = notifications,
                      .workspace = workspace,
                      .recycler = recycler,
                      .applications = applications,
                      .systemLog = systemLog,
                      .systemInfo = systemInfo};
    FDAService access{platform, {}};
    SizeProbes probes{platform};

    /// Puts a shell script in the place of `du`; its second argument is the path. One that is to be ended must not wait
    /// for a child of its own, which would hold the output open.
    void useDu(const QByteArray &lines) { platform.programs.du = temp.script("du", lines); }

    /// Turns both queues until nothing is left to do.
    void settle()
    {
        while (mainQueue.run() + workQueue.run() > 0) {}
    }
};
