#include "apps/screen/GhostList.h"

#include "apps/screen/AppFiles.h"
#include "base/Paths.h"
#include "base/Sums.h"
#include "base/Text.h"
#include "common/Formatters.h"

namespace ghostlist {
namespace {

QString filesText(const Row &row)
{
    return row.fileCount == 1 ? QStringLiteral("1 file") : QStringLiteral("%1 files").arg(row.fileCount);
}

} // namespace

std::vector<Row> rows(const std::vector<GhostApp> &ghosts, const QString &search)
{
    std::vector<Row> rows;
    for (const GhostApp &ghost : ghosts) {
        if (search.isEmpty() || text::containsLocalized(ghost.inferredName, search)
            || text::containsLocalized(ghost.bundleID, search))
            rows.push_back(row(ghost));
    }
    return rows;
}

Row row(const GhostApp &ghost)
{
    return {ghost.id,          ghost.inferredName,   ghost.bundleID, ghost.files.size(),
            ghost.totalSize(), ghost.looksInstalled, ghost.selected};
}

std::vector<RecordListModel<Row>::Role> roles()
{
    return {
        {"appName", [](const Row &row) { return paths::inOneLine(row.name); }},
        {"bundleID", [](const Row &row) { return paths::inOneLine(row.key); }},
        {"filesText", filesText},
        {"totalText", [](const Row &row) { return sizeText(row.totalSize); }},
        {"badgeText", [](const Row &row) { return badgeText(row.looksInstalled); }},
        {"badgeNote", [](const Row &row) { return badgeNote(row.looksInstalled); }},
        {"looksInstalled", [](const Row &row) { return row.looksInstalled; }},
        {"spokenText",
         [](const Row &row) {
             return text::joined({badgeText(row.looksInstalled), filesText(row), sizeText(row.totalSize)},
                                 u", ");
         }},
        {"isTicked", [](const Row &row) { return row.isTicked; }},
    };
}

QString badgeText(bool looksInstalled)
{
    return looksInstalled ? QStringLiteral("LOOKS INSTALLED") : QStringLiteral("ORPHAN");
}

QString badgeNote(bool looksInstalled)
{
    return looksInstalled
               ? QStringLiteral(
                   "This name or bundle ID matches an app you actually have installed. Removing these "
                   "files will likely break that app — review carefully.")
               : QStringLiteral(
                   "No installed app matches this name or bundle ID — these files appear to be genuine "
                   "leftovers from a previous install.");
}

Pending pending(const std::vector<GhostApp> &ghosts)
{
    Pending pending;
    for (const GhostApp &ghost : ghosts) {
        if (!ghost.selected)
            continue;
        ++pending.count;
        pending.size = sums::saturated(pending.size, appfiles::selected(ghost.files).size);
        pending.looksInstalled += ghost.looksInstalled ? 1 : 0;
    }
    return pending;
}

} // namespace ghostlist
