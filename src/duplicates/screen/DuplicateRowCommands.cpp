// DuplicateFinderView's commands on a row of its list.

#include "duplicates/screen/DuplicateFinderView.h"
#include "filesystem/FileSystemService.h"

namespace {

/// The group of a head; none for any other row.
const DuplicateFileGroup *groupOf(const DuplicateService &service, const DuplicateRows::Row *row)
{
    return row && row->isHead() ? &service.groups()[row->group] : nullptr;
}

} // namespace

const DuplicateFileEntry *DuplicateFinderView::fileAt(int row) const
{
    const DuplicateRows::Row *found = rows_.row(row);
    if (!found || found->isHead())
        return nullptr;
    return &service_.groups()[found->group].files[static_cast<size_t>(found->file)];
}

bool DuplicateFinderView::isFile(int row) const
{
    return fileAt(row) != nullptr;
}

void DuplicateFinderView::keepNewestOf(int row)
{
    const DuplicateFileGroup *group = groupOf(service_, rows_.row(row));
    if (group && canChoose())
        service_.keepNewest(group->id);
}

void DuplicateFinderView::keepOldestOf(int row)
{
    const DuplicateFileGroup *group = groupOf(service_, rows_.row(row));
    if (group && canChoose())
        service_.keepOldest(group->id);
}

void DuplicateFinderView::toggleKeep(int row)
{
    if (!isFile(row) || !canChoose())
        return;
    const DuplicateRows::Row found = *rows_.row(row);
    service_.toggleKeep(found.group, static_cast<size_t>(found.file));
}

void DuplicateFinderView::keepOnly(int row)
{
    if (!isFile(row) || !canChoose())
        return;
    const DuplicateRows::Row found = *rows_.row(row);
    service_.keepOnly(found.group, static_cast<size_t>(found.file));
}

QString DuplicateFinderView::toggleText(int row) const
{
    const DuplicateFileEntry *file = fileAt(row);
    return file && file->keep ? QStringLiteral("Mark for Deletion") : QStringLiteral("Keep This One");
}

void DuplicateFinderView::open(int row)
{
    if (const DuplicateFileEntry *file = fileAt(row))
        platform_.workspace.open(file->path);
}

void DuplicateFinderView::quickLook(int row)
{
    const DuplicateFileEntry *file = fileAt(row);
    if (!file)
        return;
    const QString path = file->path; // the desktop may let the event loop turn
    platform_.workspace.reveal(path);
    platform_.workspace.quickLook(path);
}

void DuplicateFinderView::reveal(int row)
{
    if (const DuplicateFileEntry *file = fileAt(row))
        fileSystem_.revealInFinder(file->path);
}

void DuplicateFinderView::copyPath(int row)
{
    if (const DuplicateFileEntry *file = fileAt(row))
        platform_.workspace.copyText(file->path);
}
