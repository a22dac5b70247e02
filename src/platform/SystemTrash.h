#pragma once

#include "platform/Recycler.h"

#include <memory>

class LogSink;

/// This system's Trash for a program that chooses its home folder, such as the driver. Each system has its own source file
/// for it, which the build picks.
namespace systemtrash {

/// Once a process, ahead of all else that asks for the home folder: the desktop's own libraries take it from the environment,
/// and never look again. From its only thread. `log` outlives what is given.
std::unique_ptr<Recycler> ofHome(const QString &home, LogSink &log);

} // namespace systemtrash
