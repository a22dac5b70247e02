#include "apps/catalogue/AssociatedFiles.h"

#include "base/Files.h"
#include "base/Ids.h"
#include "base/Paths.h"
#include "base/Sums.h"
#include "filesystem/SizeProbes.h"

namespace {

using Candidate = Locations::AssociatedFileCandidate;

qint64 measure(const QString &path, Candidate::Measure by, SizeProbes &probes)
{
    if (by == Candidate::Measure::probe)
        return probes.probeSize(path, ProbeContext::generic);
    const auto attributes = files::attributes(path);
    return attributes ? attributes->size : 0;
}

void count(qint64 size, Candidate::AddsTo part, RealInstalledApp &app)
{
    const auto add = [size](qint64 &sum) { sum = sums::saturated(sum, size); };
    switch (part) {
    case Candidate::AddsTo::cacheSize:
        return add(app.cacheSize);
    case Candidate::AddsTo::preferencesSize:
        return add(app.preferencesSize);
    case Candidate::AddsTo::supportSize:
        return add(app.supportSize);
    case Candidate::AddsTo::containerSize:
        return add(app.containerSize);
    case Candidate::AddsTo::nothing:
        return;
    }
}

} // namespace

namespace associatedfiles {

void find(RealInstalledApp &app, const QList<Candidate> &candidates, SizeProbes &probes)
{
    for (const Candidate &candidate : candidates) {
        const QString &subject = candidate.subject == Candidate::Subject::name ? app.name : app.bundleID;
        if (!paths::isEntryName(subject))
            continue;
        const QString path = paths::join(candidate.folder, subject + candidate.suffix);
        if (!files::exists(path))
            continue;
        const qint64 size = measure(path, candidate.measure, probes);
        if (size < 1)
            continue;
        count(size, candidate.addsTo, app);
        app.associatedFiles.push_back({ids::fresh(), path, candidate.category, size, true});
    }
}

} // namespace associatedfiles
