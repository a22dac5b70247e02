#include "apps/ghosts/GhostScan.h"

#include "apps/catalogue/Bundles.h"
#include "apps/ghosts/GhostNames.h"
#include "apps/ghosts/GhostRules.h"
#include "apps/ghosts/InstalledWords.h"
#include "apps/ghosts/KnownIdentifiers.h"
#include "base/Files.h"
#include "base/Ids.h"
#include "base/Paths.h"
#include "filesystem/SizeProbes.h"

#include <QHash>

#include <algorithm>
#include <utility>

namespace ghostscan {
namespace {

/// Smaller groups are not worth a row.
constexpr qint64 smallestGroup = 1025;

InstalledWords wordsOf(const Request &request)
{
    InstalledWords words;
    for (const RealInstalledApp &app : request.apps) {
        words.addName(app.name);
        words.addIdentifier(app.bundleID);
    }
    for (const QString &folder : request.locations.ghostApplicationsFolders) {
        for (const QString &path : bundles::find(folder, bundles::Links::all)) {
            words.addName(paths::stem(path));
            const std::optional<Bundle> bundle = bundles::read(path);
            if (!bundle)
                continue;
            words.addName(bundle->name);
            if (bundle->identifier)
                words.addIdentifier(*bundle->identifier);
        }
    }
    return words;
}

class Scan
{
public:
    Scan(const Request &request, SizeProbes &probes, const Hooks &hooks)
        : request_(request)
        , probes_(probes)
        , hooks_(hooks)
        , installed_(wordsOf(request))
        , known_([&hooks](const QString &identifier) {
            const QStringList places = hooks.knownPaths(identifier);
            return std::any_of(places.begin(), places.end(), files::exists);
        })
    {
    }

    std::vector<GhostApp> run()
    {
        for (const Locations::GhostFolder &folder : request_.locations.ghostFolders) {
            if (hooks_.isCancelled())
                break;
            readFolder(folder);
        }
        readPreferences(request_.locations.ghostPreferencesFolder);
        return takeGroups();
    }

private:
    void readFolder(const Locations::GhostFolder &folder)
    {
        for (const QString &entry : files::list(folder.folder).value_or(std::vector<QString>())) {
            if (hooks_.isCancelled())
                return;
            if (!ghostrules::isLeftBehind(entry, folder.style, installed_, known_))
                continue;
            const QString path = paths::join(folder.folder, entry);
            add(ghostnames::groupKey(entry), path, folder.category,
                probes_.probeSize(path, ProbeContext::generic));
        }
    }

    void readPreferences(const QString &folder)
    {
        for (const QString &file : files::list(folder).value_or(std::vector<QString>())) {
            if (!ghostrules::arePreferencesLeftBehind(file, installed_, known_))
                continue;
            const QString path = paths::join(folder, file);
            const auto attributes = files::attributes(path);
            add(ghostnames::comparable(*ghostnames::preferencesIdentifier(file)), path,
                QStringLiteral("Preferences"), attributes ? attributes->size : 0);
        }
    }

    void add(const QString &key, const QString &path, const QString &category, qint64 size)
    {
        if (size < 1)
            return;
        const auto place = places_.constFind(key);
        const size_t index = place == places_.constEnd() ? groups_.size() : *place;
        if (index == groups_.size()) {
            places_.insert(key, index);
            groups_.emplace_back();
            groups_.back().bundleID = key;
        }
        groups_[index].files.push_back({ids::fresh(), path, category, size});
    }

    std::vector<GhostApp> takeGroups()
    {
        std::erase_if(groups_, [](const GhostApp &group) { return group.totalSize() < smallestGroup; });
        for (GhostApp &group : groups_) {
            group.id = ids::fresh();
            group.inferredName = ghostnames::inferredName(group.bundleID);
            group.looksInstalled = ghostrules::looksInstalled(group.bundleID, group.inferredName, installed_);
        }
        std::stable_sort(groups_.begin(), groups_.end(), [](const GhostApp &left, const GhostApp &right) {
            return left.totalSize() > right.totalSize();
        });
        return std::move(groups_);
    }

    const Request &request_;
    SizeProbes &probes_;
    const Hooks &hooks_;
    const InstalledWords installed_;
    KnownIdentifiers known_;
    std::vector<GhostApp> groups_; // in the order in which they were found
    QHash<QString, size_t> places_;
};

} // namespace

std::vector<GhostApp> run(const Request &request, SizeProbes &probes, const Hooks &hooks)
{
    return Scan(request, probes, hooks).run();
}

} // namespace ghostscan
