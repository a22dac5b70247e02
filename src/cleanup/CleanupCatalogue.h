#pragma once

#include "cleanup/CleanupCategory.h"
#include "platform/Locations.h"

#include <vector>

class SizeProbes;
struct ChildPrograms;

/// What there is to clean on this system.
namespace cleanupcatalogue {

/// Every category that is offered here, in catalogue order, with its places and unmeasured. Blocks for as long as the disk
/// does, like the next; any thread but the main one.
std::vector<CleanupCategory> categories(const Locations &locations);

/// The same measured, without those of size 0, largest first.
std::vector<CleanupCategory> build(const Locations &locations, const ChildPrograms &programs,
                                   SizeProbes &probes);

} // namespace cleanupcatalogue
