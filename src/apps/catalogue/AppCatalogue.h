#pragma once

#include "apps/catalogue/RealInstalledApp.h"
#include "platform/Locations.h"

#include <functional>
#include <vector>

class SizeProbes;

/// What is installed.
namespace appcatalogue {

/// The applications in the folders for them, measured, each with its associated files, largest bundle first; equal ones
/// in the order in which they were found. What can't be read is left out. `isStopped` is asked ahead of each: once it says
/// yes, those that are done are all there is. Blocks for as long as the size probes do; any thread but the main one.
std::vector<RealInstalledApp> build(const Locations &locations, SizeProbes &probes,
                                    const std::function<bool()> &isStopped);

} // namespace appcatalogue
