#include "apps/screen/InstalledList.h"

#include "base/Paths.h"
#include "base/Text.h"
#include "common/Formatters.h"

#include <algorithm>
#include <iterator>

namespace installedlist {
namespace {

bool standsBefore(const RealInstalledApp &left, const RealInstalledApp &right, SortOption sortBy)
{
    const auto usedOf = [](const RealInstalledApp &app) { return app.lastUsed.value_or(dates::distantPast); };
    switch (sortBy) {
    case SortOption::name:
        return text::precedes(left.name, right.name);
    case SortOption::size:
        return left.size > right.size;
    case SortOption::lastUsed:
        return usedOf(left) > usedOf(right);
    }
    return false;
}

} // namespace

const QStringList &sortLabels()
{
    static const QStringList labels = {QStringLiteral("Name"), QStringLiteral("Size"),
                                       QStringLiteral("Last Used")};
    return labels;
}

std::vector<Row> rows(const std::vector<RealInstalledApp> &apps, const QString &search, SortOption sortBy)
{
    std::vector<const RealInstalledApp *> shown;
    for (const RealInstalledApp &app : apps) {
        if (search.isEmpty() || text::containsLocalized(app.name, search))
            shown.push_back(&app);
    }
    std::stable_sort(shown.begin(), shown.end(), [sortBy](const auto *left, const auto *right) {
        return standsBefore(*left, *right, sortBy);
    });
    std::vector<Row> rows;
    rows.reserve(shown.size());
    std::ranges::transform(shown, std::back_inserter(rows), [](const auto *app) { return row(*app); });
    return rows;
}

Row row(const RealInstalledApp &app)
{
    return {app.id,   app.name, app.version,     app.bundleID, app.path,
            app.icon, app.size, app.totalSize(), app.lastUsed, app.selected};
}

std::vector<RecordListModel<Row>::Role> roles(const Clock &clock)
{
    return {
        {"appName", [](const Row &row) { return paths::inOneLine(row.name); }},
        {"versionText", [](const Row &row) { return paths::inOneLine(row.version); }},
        {"bundleID", [](const Row &row) { return paths::inOneLine(row.bundleID); }},
        {"path", [](const Row &row) { return paths::inOneLine(row.path); }},
        {"picture", [](const Row &row) { return row.icon.value_or(QString()); }},
        {"sizeText", [](const Row &row) { return sizeText(row.size); }},
        {"totalText", [](const Row &row) { return sizeText(row.totalSize); }},
        {"lastUsedText", [&clock](const Row &row) { return relativeDayText(row.lastUsed, clock.now()); }},
        {"spokenText",
         [&clock](const Row &row) {
             return text::joined({paths::inOneLine(row.version), sizeText(row.size),
                                  relativeDayText(row.lastUsed, clock.now())},
                                 u", ");
         }},
        {"isTicked", [](const Row &row) { return row.isTicked; }},
    };
}

} // namespace installedlist
