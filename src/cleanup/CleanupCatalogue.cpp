#include "cleanup/CleanupCatalogue.h"

#include "base/Files.h"
#include "base/Sums.h"
#include "cleanup/CleanupPlaces.h"
#include "cleanup/EmptyFolders.h"
#include "cleanup/FileCount.h"
#include "filesystem/SizeProbes.h"

#include <algorithm>
#include <optional>

namespace {

/// The categories in catalogue order, without places.
std::vector<CleanupCategory> allCategories()
{
    const auto category = [](const QString &id, const QString &name, const QString &description,
                             const QString &icon, bool isSafe) {
        return CleanupCategory{id, name, description, icon, {}, 0, 0, isSafe};
    };
    return {
        category(QStringLiteral("browser-cache"), QStringLiteral("Browser Caches"),
                 QStringLiteral("Chrome, Safari, Firefox cache files"), QStringLiteral("globe"), true),
        category(QStringLiteral("logs"), QStringLiteral("Log Files"),
                 QStringLiteral("System & application logs"), QStringLiteral("doc.text.fill"), true),
        category(QStringLiteral("xcode-derived"), QStringLiteral("Xcode Derived Data"),
                 QStringLiteral("Build artifacts & caches (will rebuild on next project open)"),
                 QStringLiteral("hammer.fill"), true),
        category(QStringLiteral("npm-cache"), QStringLiteral("npm / yarn Cache"),
                 QStringLiteral("Package manager caches (will re-download on next install)"),
                 QStringLiteral("shippingbox.fill"), true),
        category(cleanupids::emptyFolders, QStringLiteral("Empty Folders"),
                 QStringLiteral("Completely empty folders in Downloads, Desktop, and Documents"),
                 QStringLiteral("folder.badge.minus"), false),
        category(cleanupids::oldDownloads, QStringLiteral("Old Downloads"),
                 QStringLiteral("Files older than 30 days in Downloads"),
                 QStringLiteral("arrow.down.circle.fill"), false),
        category(cleanupids::trash, QStringLiteral("Trash"),
                 QStringLiteral("Permanently delete items in Trash"), QStringLiteral("trash.fill"), false),
    };
}

/// The places of a category; none where it isn't offered.
std::optional<QStringList> placesOf(const QString &id, const Locations &locations)
{
    if (id == cleanupids::emptyFolders) {
        const QStringList found = emptyfolders::find(locations.emptyFolderRoots);
        return found.isEmpty() ? std::nullopt : std::optional(found);
    }
    const auto row =
        std::find_if(locations.cleanup.begin(), locations.cleanup.end(),
                     [&id](const Locations::CleanupRow &candidate) { return candidate.category == id; });
    if (row == locations.cleanup.end()
        || (!row->presentWhenExists.isEmpty() && !files::exists(row->presentWhenExists)))
        return std::nullopt;
    const QStringList places = cleanupplaces::ofRow(*row);
    return row->onlyExistingPlaces && places.isEmpty() ? std::nullopt : std::optional(places);
}

void measure(CleanupCategory &category, const ChildPrograms &programs, SizeProbes &probes)
{
    if (category.id == cleanupids::emptyFolders) {
        category.size =
            category.paths.size(); // a folder counts as a byte on purpose: they take next to nothing
        category.fileCount = category.paths.size();
        return;
    }
    for (const QString &place : std::as_const(category.paths)) {
        if (!cleanupplaces::holdsEntries(place))
            continue;
        category.size = sums::saturated(category.size, probes.probeSize(place, ProbeContext::generic));
        category.fileCount = sums::saturated(category.fileCount, filecount::count(programs, place));
    }
}

} // namespace

namespace cleanupcatalogue {

std::vector<CleanupCategory> categories(const Locations &locations)
{
    std::vector<CleanupCategory> offered;
    for (CleanupCategory &category : allCategories()) {
        if (const auto places = placesOf(category.id, locations)) {
            category.paths = *places;
            offered.push_back(std::move(category));
        }
    }
    return offered;
}

std::vector<CleanupCategory> build(const Locations &locations, const ChildPrograms &programs,
                                   SizeProbes &probes)
{
    std::vector<CleanupCategory> offered = categories(locations);
    for (CleanupCategory &category : offered)
        measure(category, programs, probes);
    std::erase_if(offered, [](const CleanupCategory &category) { return category.size <= 0; });
    std::stable_sort(offered.begin(), offered.end(),
                     [](const CleanupCategory &a, const CleanupCategory &b) { return a.size > b.size; });
    return offered;
}

} // namespace cleanupcatalogue
