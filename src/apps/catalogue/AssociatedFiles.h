#pragma once

#include "apps/catalogue/RealInstalledApp.h"
#include "platform/Locations.h"

class SizeProbes;

/// The files of the user's library that belong to an installed application: those that bear its identifier or its name
/// and no others, since what is found is offered for removal together with it.
namespace associatedfiles {

/// Tries the candidates in their order and appends what is there, and at least a byte large, to the application's files
/// and to the size that it counts for. An application's name and identifier are told by itself: one that is not the name
/// of an entry finds nothing, so that no file lies elsewhere than directly inside a candidate's folder. Blocks for as long
/// as the size probes do; any thread but the main one.
void find(RealInstalledApp &app, const QList<Locations::AssociatedFileCandidate> &candidates,
          SizeProbes &probes);

} // namespace associatedfiles
