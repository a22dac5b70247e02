#pragma once

#include "Measurement.h"

#include <string>
#include <vector>

/// Programs without a window, run to their end: the name or path first, the arguments behind it. Each runs in a folder
/// of its own, so that what it leaves behind goes with it.
namespace commands {

using Command = std::vector<std::string>;

/// True when a program of that name is among those that the shell would find.
bool isInstalled(const std::string &name);

/// Runs it with its output thrown away. Throws std::runtime_error when it fails, std::system_error when it can't be
/// started.
measurement::Cost run(const Command &command);

/// Its standard output. Throws likewise.
std::string output(const Command &command);

} // namespace commands
