#include "apps/catalogue/AppCatalogue.h"

#include "apps/catalogue/AssociatedFiles.h"
#include "apps/catalogue/Bundles.h"
#include "base/Files.h"
#include "base/Ids.h"
#include "filesystem/SizeProbes.h"

#include <algorithm>

namespace {

std::optional<RealInstalledApp> recordOf(const QString &path, const Locations &locations, SizeProbes &probes)
{
    const auto bundle = bundles::read(path);
    if (!bundle)
        return std::nullopt;
    RealInstalledApp app;
    app.id = ids::fresh();
    app.name = bundle->name;
    app.version = bundle->version.value_or(QStringLiteral("—"));
    app.bundleID = bundle->identifier.value_or(QStringLiteral("unknown"));
    app.path = path;
    app.icon = bundle->picture;
    app.size = probes.probeSize(path, ProbeContext::generic);
    associatedfiles::find(app, locations.associatedFileCandidates, probes);
    if (const auto attributes = files::attributes(path))
        app.lastUsed = attributes->modified;
    return app;
}

} // namespace

namespace appcatalogue {

std::vector<RealInstalledApp> build(const Locations &locations, SizeProbes &probes,
                                    const std::function<bool()> &isStopped)
{
    QStringList found;
    for (const QString &folder : locations.applicationsFolders)
        found += bundles::find(folder, bundles::Links::insideRoot);
    std::vector<RealInstalledApp> apps;
    for (const QString &path : std::as_const(found)) {
        if (isStopped())
            break;
        if (auto app = recordOf(path, locations, probes))
            apps.push_back(std::move(*app));
    }
    std::ranges::stable_sort(apps, std::ranges::greater(), &RealInstalledApp::size);
    return apps;
}

} // namespace appcatalogue
