#include "duplicates/scan/DuplicateWalk.h"

#include "base/Paths.h"

namespace {

/// What the walk makes of one entry.
struct Visit
{
    enum class As { nothing, folder, file };

    As as = As::nothing;
    qint64 size = 0;
    bool isLink = false;
    bool isRegular = true; // of a file, links followed
};

Visit visitOf(const files::Extent &own)
{
    return {own.isDirectory() ? Visit::As::folder : Visit::As::file, own.size, false,
            own.kind == files::Kind::file};
}

/// A link is what it leads to, yet has its own size; one that leads nowhere is nothing. `own` may be known already.
Visit visitOfLink(const files::DirectoryReader &reader, std::optional<files::Extent> own)
{
    const auto target = reader.followedExtent();
    if (!target)
        return {};
    if (target->isDirectory())
        return {Visit::As::folder, 0, true};
    if (!own)
        own = reader.extent();
    return {Visit::As::file, own ? own->size : 0, true, target->kind == files::Kind::file};
}

/// At most one question to the disk, two for a link.
Visit visitOf(const files::DirectoryReader &reader)
{
    const auto listed = reader.listedKind();
    if (listed == files::Kind::directory)
        return {Visit::As::folder, 0, false};
    if (listed == files::Kind::link)
        return visitOfLink(reader, std::nullopt);
    const auto own = reader.extent();
    if (!own) // it has just gone
        return {};
    return own->kind == files::Kind::link ? visitOfLink(reader, own) : visitOf(*own);
}

} // namespace

DuplicateWalk::DuplicateWalk(FileTable &files, qint64 minFileSize, const Hooks &hooks)
    : files_(files)
    , minFileSize_(minFileSize)
    , hooks_(hooks)
{
}

void DuplicateWalk::run(const QString &scanPath, const QStringList &ignorePaths)
{
    rules_ = scope::IgnoreRules(scope::effectiveRules(ignorePaths, scanPath));
    visitFolder(scanPath, 0);
}

void DuplicateWalk::visitFolder(const QString &path, int depth)
{
    if (hooks_.isCancelled() || depth >= depthLimit || rules_.match(path))
        return;
    hooks_.entered(path);
    files::DirectoryReader reader(path);
    if (!reader.isOpen())
        return;
    const FileTable::Mark mark = files_.mark();
    visitEntries(reader, path, depth);
    if (reader.hasFailed())
        files_.cut(mark); // a folder that can't be listed to its end is one that can't be listed
}

void DuplicateWalk::visitEntries(files::DirectoryReader &reader, const QString &path, int depth)
{
    const quint32 folder = files_.addFolder(path);
    while (!hooks_.isCancelled() && reader.next()) {
        const QByteArrayView name = reader.name();
        if (name.front() == '.')
            continue;
        const Visit visit = visitOf(reader);
        if (visit.as == Visit::As::folder)
            visitFolder(path + u'/' + paths::fromBytes(name), depth + 1);
        else if (visit.as == Visit::As::file && visit.size >= minFileSize_)
            files_.add(folder, name, visit.size, visit.isLink, visit.isRegular);
    }
}
