#include "duplicates/SameFile.h"

#include "base/Paths.h"

#include <QSet>
#include <QStringList>

#include <algorithm>

namespace {

/// What makes an entry the one that it is: its folder, whichever way leads there, and its name.
struct Entry
{
    files::Identity folder;
    QString name;

    friend bool operator==(const Entry &, const Entry &) = default;
    friend size_t qHash(const Entry &entry, size_t seed = 0)
    {
        return qHashMulti(seed, entry.folder, entry.name);
    }
};

std::optional<Entry> entryOf(const QString &path, samefile::Folders &folders)
{
    const auto folder = folders.identity(paths::parent(path));
    return folder ? std::optional(Entry{*folder, paths::lastComponent(path)}) : std::nullopt;
}

/// Entries, each reached by any number of ways.
class Entries
{
public:
    explicit Entries(samefile::Folders &folders)
        : folders_(folders)
    {
    }

    void add(const QString &path)
    {
        if (const auto entry = entryOf(path, folders_))
            entries_.insert(*entry);
    }
    bool contain(const QString &path) const
    {
        const auto entry = entryOf(path, folders_);
        return entry && entries_.contains(*entry);
    }

private:
    samefile::Folders &folders_;
    QSet<Entry> entries_;
};

} // namespace

std::optional<files::Identity> samefile::Folders::identity(const QString &folder)
{
    const auto found = known_.constFind(folder);
    return found == known_.cend() ? *known_.insert(folder, files::followedIdentity(folder)) : *found;
}

// Few files are one with another, so both ask about the folders of these alone.

samefile::Kind samefile::among(std::span<const QString> paths, Folders &folders)
{
    QHash<files::Identity, QString> firstPaths;
    Entries entries(folders);
    Kind kind = Kind::none;
    for (const QString &path : paths) {
        const auto identity = files::identity(path);
        if (!identity)
            continue;
        const auto first = firstPaths.constFind(*identity);
        if (first == firstPaths.cend()) {
            firstPaths.insert(*identity, path);
            continue;
        }
        entries.add(*first);
        if (entries.contain(path))
            return Kind::oneEntry;
        entries.add(path);
        kind = Kind::hardLinks;
    }
    return kind;
}

qint64 samefile::countOfKept(std::span<const QString> going, std::span<const QString> kept, Folders &folders)
{
    QHash<files::Identity, QStringList> goingByFile;
    for (const QString &path : going) {
        if (const auto identity = files::identity(path))
            goingByFile[*identity].append(path);
    }
    Entries stay(folders);
    QSet<files::Identity> both;
    for (const QString &path : kept) {
        const auto identity = files::identity(path);
        if (identity && goingByFile.contains(*identity)) {
            stay.add(path);
            both.insert(*identity);
        }
    }
    qint64 count = 0;
    for (const files::Identity &file : both) {
        const QStringList &ways = goingByFile[file];
        count += std::count_if(ways.begin(), ways.end(),
                               [&stay](const QString &path) { return stay.contain(path); });
    }
    return count;
}
