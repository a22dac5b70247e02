#include "program/panel/FolderListing.h"

#include "base/Files.h"
#include "base/Paths.h"

#include <QCollator>

#include <algorithm>
#include <utility>

namespace {

using folderlisting::Entry;
using folderlisting::Listing;

/// What was found in one reading of a folder.
struct Found
{
    Listing listing;
    std::vector<QString> links;
};

/// What the entry is itself: as a rule the listing tells, and the disk need not be asked.
files::Kind kindOf(const files::DirectoryReader &reader)
{
    if (const auto listed = reader.listedKind())
        return *listed;
    const auto extent = reader.extent();
    return extent ? extent->kind : files::Kind::other;
}

std::optional<Found> read(const folderlisting::Wish &wish, const std::function<bool()> &isUnwanted)
{
    files::DirectoryReader reader(wish.folder);
    if (!reader.isOpen())
        return std::nullopt;
    Found found;
    while (!isUnwanted() && reader.next()) {
        if (!wish.showsHidden && reader.name().startsWith('.'))
            continue;
        const files::Kind kind = kindOf(reader);
        if (kind == files::Kind::link)
            found.links.push_back(paths::fromBytes(reader.name()));
        else if (kind == files::Kind::directory || wish.withFiles)
            found.listing.entries.push_back(
                {paths::fromBytes(reader.name()), kind == files::Kind::directory});
    }
    found.listing.isCutShort = reader.hasFailed();
    if (reader.hasFailed() && found.listing.entries.empty() && found.links.empty())
        return std::nullopt;
    return found;
}

void sort(std::vector<Entry> &entries)
{
    QCollator order;
    order.setNumericMode(true);
    std::vector<std::pair<QCollatorSortKey, Entry>> keyed;
    keyed.reserve(entries.size());
    for (Entry &entry : entries)
        keyed.emplace_back(order.sortKey(entry.name.toCaseFolded()), std::move(entry));
    std::sort(keyed.begin(), keyed.end(), [](const auto &one, const auto &other) {
        if (one.second.isFolder != other.second.isFolder)
            return one.second.isFolder;
        const int byLocale = one.first.compare(other.first);
        return byLocale != 0 ? byLocale < 0 : one.second.name < other.second.name;
    });
    std::transform(keyed.begin(), keyed.end(), entries.begin(),
                   [](auto &pair) { return std::move(pair.second); });
}

} // namespace

namespace folderlisting {

std::optional<Listing> list(const Wish &wish, const std::function<void(Listing)> &withoutLinks,
                            const std::function<bool()> &isUnwanted)
{
    std::optional<Found> found = read(wish, isUnwanted);
    if (!found)
        return std::nullopt;
    Listing &listing = found->listing;
    sort(listing.entries);
    if (found->links.empty())
        return listing;
    withoutLinks(listing);
    for (const QString &name : found->links) {
        if (isUnwanted())
            return Listing();
        const bool isFolder = files::isDirectory(paths::join(wish.folder, name));
        if (isFolder || wish.withFiles)
            listing.entries.push_back({name, isFolder});
    }
    sort(listing.entries);
    return listing;
}

} // namespace folderlisting
