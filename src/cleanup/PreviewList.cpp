#include "cleanup/PreviewList.h"

#include "base/Files.h"
#include "base/Paths.h"
#include "filesystem/FileWalk.h"

#include <algorithm>
#include <chrono>
#include <optional>
#include <utility>

namespace {

std::vector<PreviewFile> folderList(const QStringList &folders)
{
    std::vector<PreviewFile> list;
    for (const QString &folder : folders)
        list.push_back({paths::lastComponent(folder), 0, folder});
    return list;
}

/// The file's size. None for one that is not to be listed: it is too new, no regular file after all, or can't be asked.
std::optional<qint64> sizeIfListed(const files::DirectoryReader &entry, std::optional<Date> cutoff)
{
    if (!cutoff) {
        const auto extent = entry.extent();
        return extent && extent->kind == files::Kind::file ? std::optional(extent->size) : std::nullopt;
    }
    const auto attributes = entry.attributes();
    if (!attributes || attributes->kind != files::Kind::file || attributes->modified >= *cutoff)
        return std::nullopt;
    return attributes->size;
}

/// Adds the files of one place.
void addFiles(const QString &place, std::optional<Date> cutoff, std::vector<PreviewFile> &list)
{
    filewalk::overFiles(place, [&](const QString &folder, const files::DirectoryReader &entry) {
        const auto size = sizeIfListed(entry, cutoff);
        if (!size)
            return true;
        QString name = paths::fromBytes(entry.name());
        QString path = paths::join(folder, name);
        list.push_back({std::move(name), *size, std::move(path)});
        return list.size() < previewlist::mostFiles;
    });
}

} // namespace

namespace previewlist {

std::vector<PreviewFile> load(const CleanupCategory &category, Date now)
{
    if (category.id == cleanupids::emptyFolders)
        return folderList(category.paths);
    std::optional<Date> cutoff;
    if (category.id == cleanupids::oldDownloads)
        cutoff = now - std::chrono::days(30);
    std::vector<PreviewFile> list;
    list.reserve(previewlist::mostFiles); // growing costs a twentieth of the walk
    for (const QString &place : category.paths)
        addFiles(place, cutoff, list);
    std::stable_sort(list.begin(), list.end(),
                     [](const PreviewFile &a, const PreviewFile &b) { return a.size > b.size; });
    return list;
}

} // namespace previewlist
