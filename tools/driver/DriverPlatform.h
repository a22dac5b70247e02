#pragma once

#include "activity/FDAService.h"
#include "base/EventLoopMainQueue.h"
#include "base/ThreadWorkQueue.h"
#include "disk/DiskService.h"
#include "DriverFakes.h"
#include "filesystem/FileSystemService.h"
#include "filesystem/SizeProbes.h"
#include "platform/Platform.h"

#include <QString>

#include <functional>
#include <memory>
#include <vector>

class Arguments;
struct Option;

/// The platform of the driver: real files, child programs, queues and clock; no desktop, and settings in memory with
/// the registered values. With it the engines over it, so that a verb has them at hand. Main thread.
class DriverPlatform
{
public:
    /// A platform whose places nobody asks for.
    DriverPlatform();

    /// A platform over the home folder that is the first operand, with the places that the options name.
    explicit DriverPlatform(const Arguments &arguments);

    /// The same over any other home folder.
    DriverPlatform(const Arguments &arguments, const QString &home);

    /// The same over the first operand with a Trash that works.
    DriverPlatform(const Arguments &arguments, std::unique_ptr<Recycler> recycler);

    /// The options that the last three constructors read, for the verbs that take a home folder.
    static std::vector<Option> homeOptions();

    const Platform &platform() const { return platform_; }
    SizeProbes &sizeProbes() { return sizeProbes_; }
    DiskService &disk() { return disk_; }
    FileSystemService &fileSystem() { return fileSystem_; }
    FDAService &access() { return access_; }

private:
    DriverPlatform(std::function<Locations()> locations, const QString &home,
                   std::unique_ptr<Recycler> recycler = std::make_unique<NoRecycler>());

    QString home_;
    SystemClock clock_;
    EventLoopMainQueue mainQueue_;
    ThreadWorkQueue workQueue_;
    NotificationCenter notifications_;
    Defaults defaults_;
    Lazy<Locations> locations_;
    NoWorkspace workspace_;
    std::unique_ptr<Recycler> recycler_;
    NoApplications applications_;
    NoSystemLog systemLog_;
    NoSystemInfo systemInfo_;
    Platform platform_;
    SizeProbes sizeProbes_;
    FileSystemService fileSystem_;
    FDAService access_;
    DiskService disk_;
};
