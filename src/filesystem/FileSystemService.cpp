#include "filesystem/FileSystemService.h"

#include "base/Files.h"
#include "base/Paths.h"

#include <algorithm>
#include <memory>

namespace {

constexpr size_t mostChildren = 30;

/// What a tree scan remembers of an entry until it is known which ones are kept. A folder's children are measured
/// on the way; a plain file costs no more than its name.
struct Candidate {
    QByteArray name;
    qint64 size = 0;
    std::unique_ptr<FileEntry> folder; // null for a file
};

FileEntry folderEntry(const QString &path, qint64 size)
{
    return {QUuid::createUuid(), paths::lastComponent(path), path, size, true, std::nullopt};
}

void addChecked(qint64 &total, qint64 size)
{
    if (__builtin_add_overflow(total, size, &total))
        qFatal("scanTree: a total beyond 64 bits");
}

/// The largest candidates as entries, largest first; equal ones keep their order.
std::vector<FileEntry> keptChildren(const QString &folder, std::vector<Candidate> &candidates)
{
    const auto larger = [](const Candidate &left, const Candidate &right) { return left.size > right.size; };
    std::stable_sort(candidates.begin(), candidates.end(), larger);
    if (candidates.size() > mostChildren)
        candidates.resize(mostChildren);
    std::vector<FileEntry> children;
    children.reserve(candidates.size());
    for (Candidate &candidate : candidates) {
        if (candidate.folder) {
            children.push_back(std::move(*candidate.folder));
            continue;
        }
        const QString name = paths::fromBytes(candidate.name);
        children.push_back(
            {QUuid::createUuid(), name, paths::join(folder, name), candidate.size, false, std::nullopt});
    }
    return children;
}

FileItem itemFrom(const QString &path, const QString &name, const files::Attributes &attributes)
{
    FileItem item;
    item.id = QUuid::createUuid();
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

FileSystemService::FileSystemService(const Platform &platform, SizeProbe probeSize)
    : platform_(platform)
    , probeSize_(std::move(probeSize))
{
}

FileSystemService &FileSystemService::shared(const Platform &platform, const SizeProbe &probeSize)
{
    static FileSystemService &instance = *new FileSystemService(platform, probeSize);
    return instance;
}

std::vector<FileItem> FileSystemService::listDirectory(const QString &path, bool includeHidden) const
{
    std::vector<FileItem> items;
    files::DirectoryReader reader(path);
    while (reader.isOpen() && reader.next()) {
        const auto attributes = reader.attributes();
        if (!attributes || (attributes->isHidden && !includeHidden))
            continue;
        const QString name = paths::fromBytes(reader.name());
        items.push_back(itemFrom(paths::join(path, name), name, *attributes));
    }
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
        return folderEntry(path, probeSize_(path));

    files::DirectoryReader reader(path);
    if (!reader.isOpen())
        return folderEntry(path, 0);
    qint64 total = 0;
    std::vector<Candidate> candidates;
    while (reader.next()) {
        const auto attributes = reader.attributes();
        if (!attributes || attributes->isHidden)
            continue;
        Candidate candidate{reader.name().toByteArray(), attributes->size, nullptr};
        if (attributes->isDirectory()) {
            const QString child = paths::join(path, paths::fromBytes(candidate.name));
            candidate.folder = std::make_unique<FileEntry>(scanTree(child, depth + 1, maxDepth));
            candidate.size = candidate.folder->size;
        }
        addChecked(total, candidate.size);
        candidates.push_back(std::move(candidate));
    }
    FileEntry entry = folderEntry(path, total);
    entry.children = keptChildren(path, candidates);
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

void FileSystemService::openInTerminal(const QString &path) const
{
    platform_.workspace.openTerminal(paths::expandTilde(path, platform_.home));
}

void FileSystemService::revealInFinder(const QString &path) const
{
    platform_.workspace.reveal(path);
}
