#pragma once

#include "apps/catalogue/RealInstalledApp.h"
#include "apps/ghosts/GhostApp.h"
#include "platform/Locations.h"

#include <QStringList>

#include <functional>
#include <vector>

class SizeProbes;

/// One run of the search for what gone applications have left behind. It publishes nothing itself.
namespace ghostscan {

/// What a run works on; changes made meanwhile do not touch it.
struct Request
{
    std::vector<RealInstalledApp>
        apps; ///< known to be installed, whether or not their bundles are found again
    Locations locations;
};

/// Called on the thread of the run.
struct Hooks
{
    std::function<bool()> isCancelled;
    /// Where the system knows an application under exactly this identifier. It may know some that are gone.
    std::function<QStringList(const QString &identifier)> knownPaths;
};

/// The groups of at least a kilobyte and a byte, the largest first; equal ones in the order in which they were found. A
/// cancel ends the reading of the folders: what was found until then, and in the preferences, is all there is. What
/// can't be read holds nothing. Blocks for as long as the size probes do; any thread but the main one.
std::vector<GhostApp> run(const Request &request, SizeProbes &probes, const Hooks &hooks);

} // namespace ghostscan
