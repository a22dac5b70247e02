#pragma once

#include "base/Clock.h"
#include "base/Defaults.h"
#include "base/Lazy.h"
#include "base/MainQueue.h"
#include "base/NotificationCenter.h"
#include "base/WorkQueue.h"
#include "platform/Applications.h"
#include "platform/ChildPrograms.h"
#include "platform/KeyStyle.h"
#include "platform/Locations.h"
#include "platform/Recycler.h"
#include "platform/SystemInfo.h"
#include "platform/SystemLog.h"
#include "platform/Workspace.h"

/// All that the program knows of the system it runs on, handed to everything by reference. Nothing else asks the
/// environment, the home folder or the time; tests build their own over a temporary home and fakes.
struct Platform
{
    QString home;                     ///< the user's home folder, without a slash at its end
    const Lazy<Locations> &locations; ///< made at first use: reading the user's folders needs the disk
    Defaults &defaults;
    const Clock &clock;
    ChildPrograms programs;
    KeyStyle keyStyle = KeyStyle::words;
    MainQueue &mainQueue;
    WorkQueue &workQueue;
    NotificationCenter &notifications;
    Workspace &workspace;
    Recycler &recycler;
    const Applications &applications;
    SystemLog &systemLog;
    const SystemInfo &systemInfo;
};
