#include "filesystem/FileSystemService.h"

#include "base/Files.h"
#include "base/Ids.h"
#include "base/Paths.h"
#include "filesystem/SizeProbes.h"
#include "filesystem/Trash.h"

#include <algorithm>
#include <limits>
#include <memory>

namespace {

constexpr size_t mostChildren = 30;

/// What a tree scan remembers of an entry until it is known which ones are kept.
struct Candidate
{
    QByteArray name;
    qint64 size = 0;
    std::unique_ptr<FileEntry> folder; // null for a file
};

/// The largest entries of a folder, gathered while it is listed, so that one with very many files costs no more than
/// its listing. Of equal ones the first to come are kept.
class LargestCandidates
{
public:
    /// False when an entry of that size, coming now, would not be kept.
    bool wants(qint64 size) const { return candidates_.size() < mostChildren || size > smallestKept_; }

    void add(Candidate candidate)
    {
        candidates_.push_back(std::move(candidate));
        if (candidates_.size() == 2 * mostChildren) // not at each: sorting is to stay cheap
            prune();
    }

    /// Largest first; equal ones as they came.
    std::vector<Candidate> take()
    {
        prune();
        return std::move(candidates_);
    }

private:
    void prune()
    {
        std::stable_sort(
            candidates_.begin(), candidates_.end(),
            [](const Candidate &left, const Candidate &right) { return left.size > right.size; });
        if (candidates_.size() < mostChildren)
            return;
        candidates_.resize(mostChildren);
        smallestKept_ = candidates_.back().size;
    }

    std::vector<Candidate> candidates_;
    // None of the later ones up to this size is kept.
    qint64 smallestKept_ = std::numeric_limits<qint64>::min();
};

FileEntry folderEntry(const QString &path, qint64 size)
{
    return {ids::fresh(), paths::lastComponent(path), path, size, true, std::nullopt};
}

void addChecked(qint64 &total, qint64 size)
{
    if (__builtin_add_overflow(total, size, &total))
        qFatal("scanTree: a total beyond 64 bits");
}

std::vector<FileEntry> entriesOf(const QString &folder, std::vector<Candidate> candidates)
{
    std::vector<FileEntry> children;
    children.reserve(candidates.size());
    for (Candidate &candidate : candidates) {
        if (candidate.folder) {
            children.push_back(std::move(*candidate.folder));
            continue;
        }
        const QString name = paths::fromBytes(candidate.name);
        children.push_back(
            {ids::fresh(), name, paths::join(folder, name), candidate.size, false, std::nullopt});
    }
    return children;
}

FileItem itemFrom(const QString &path, const QString &name, const files::Attributes &attributes)
{
    FileItem item;
    item.id = ids::fresh();
    item.name = name;
    item.path = path;
    item.size = attributes.size;
    item.isDirectory = attributes.isDirectory();
    item.modified = attributes.modified;
    item.created = attributes.created;
    item.ext = paths::extension(name).toLower();
    item.isHidden = attributes.isHidden;
    return item;
}

} // namespace

FileSystemService::FileSystemService(const Platform &platform, SizeProbes &probes)
    : platform_(platform)
    , probes_(probes)
{
}

FileSystemService &FileSystemService::shared(const Platform &platform, SizeProbes &probes)
{
    static FileSystemService &instance = *new FileSystemService(platform, probes);
    return instance;
}

std::vector<FileItem> FileSystemService::listDirectory(const QString &path, bool includeHidden) const
{
    std::vector<FileItem> items;
    files::DirectoryReader reader(path);
    while (reader.next()) {
        const auto attributes = reader.attributes();
        if (!attributes || (attributes->isHidden && !includeHidden))
            continue;
        const QString name = paths::fromBytes(reader.name());
        items.push_back(itemFrom(paths::join(path, name), name, *attributes));
    }
    if (reader.hasFailed())
        return {};
    return items;
}

std::optional<FileItem> FileSystemService::makeFileItem(const QString &path) const
{
    const auto attributes = files::attributes(path);
    if (!attributes)
        return std::nullopt;
    return itemFrom(path, paths::lastComponent(path), *attributes);
}

FileEntry FileSystemService::scanTree(const QString &path, int depth, int maxDepth) const
{
    if (scanCancelled.load(std::memory_order_relaxed))
        return folderEntry(path, 0);
    if (depth >= maxDepth)
        return folderEntry(path, probes_.probeSize(path, ProbeContext::generic));

    files::DirectoryReader reader(path);
    if (!reader.isOpen())
        return folderEntry(path, 0);
    qint64 total = 0;
    LargestCandidates largest;
    while (reader.next()) {
        const auto extent = reader.extent();
        if (!extent || extent->isHidden)
            continue;
        qint64 size = extent->size;
        std::unique_ptr<FileEntry> folder;
        if (extent->isDirectory()) {
            const QString child = paths::join(path, paths::fromBytes(reader.name()));
            folder = std::make_unique<FileEntry>(scanTree(child, depth + 1, maxDepth));
            size = folder->size;
        }
        addChecked(total, size);
        if (largest.wants(size))
            largest.add({reader.name().toByteArray(), size, std::move(folder)});
    }
    if (reader.hasFailed()) // half a folder would be shown as a whole one
        return folderEntry(path, 0);
    FileEntry entry = folderEntry(path, total);
    entry.children = entriesOf(path, largest.take());
    return entry;
}

void FileSystemService::renameItem(const QString &path, const QString &newName) const
{
    files::move(path, paths::join(paths::parent(path), newName));
}

void FileSystemService::createFolder(const QString &parentPath, const QString &name) const
{
    files::makeDirectory(paths::join(parentPath, name));
}

std::optional<QString> FileSystemService::readTextPrefix(const QString &path, qint64 length) const
{
    const auto bytes = files::readPrefix(path, length);
    if (!bytes || !bytes->isValidUtf8())
        return std::nullopt;
    return QString::fromUtf8(*bytes);
}

void FileSystemService::moveToTrash(const QString &path) const
{
    trash::move(platform_.recycler, path);
}

void FileSystemService::adminTrash(const QString &path) const
{
    trash::moveAsAdministrator(platform_.recycler, path);
}

void FileSystemService::openInTerminal(const QString &path) const
{
    platform_.workspace.openTerminal(paths::expandTilde(path, platform_.home));
}

void FileSystemService::revealInFinder(const QString &path) const
{
    platform_.workspace.reveal(path);
}
