#include "cleanup/CleanupSelection.h"

#include "base/Sums.h"

#include <algorithm>
#include <iterator>

namespace {

using Categories = std::vector<CleanupCategory>;

/// The same as `find`, to be changed.
CleanupCategory *findOwn(const QString &id, Categories &categories)
{
    for (CleanupCategory &category : categories) {
        if (category.id == id)
            return &category;
    }
    return nullptr;
}

QSet<QString> allPaths(const QString &id, const CleanupSelection &selection)
{
    QSet<QString> paths;
    const auto files = selection.previewFiles.constFind(id);
    if (files == selection.previewFiles.cend())
        return paths;
    paths.reserve(static_cast<qsizetype>(files->size()));
    for (const PreviewFile &file : *files)
        paths.insert(file.path);
    return paths;
}

/// Brings a category's tick in line with its files and its mark, after a change of either.
void sync(const QString &id, Categories &categories, const CleanupSelection &selection)
{
    CleanupCategory *category = findOwn(id, categories);
    if (!category)
        return;
    if (cleanupselection::picked(id, selection).isEmpty())
        category->checked = false;
    else if (!cleanupselection::isLocked(*category, selection))
        category->checked = true;
}

} // namespace

namespace cleanupselection {

const CleanupCategory *find(const QString &id, const Categories &categories)
{
    const auto found = std::find_if(categories.begin(), categories.end(),
                                    [&id](const CleanupCategory &category) { return category.id == id; });
    return found == categories.end() ? nullptr : &*found;
}

bool isLocked(const CleanupCategory &category, const CleanupSelection &selection)
{
    return !category.safe && !selection.reviewedUnsafe.value(category.id);
}

QSet<QString> picked(const QString &id, const CleanupSelection &selection)
{
    return selection.selectedFilePaths.value(id);
}

qint64 pickedSize(const QString &id, const CleanupSelection &selection)
{
    const QSet<QString> paths = picked(id, selection);
    const auto files = selection.previewFiles.constFind(id);
    if (files == selection.previewFiles.cend())
        return 0;
    qint64 sum = 0;
    for (const PreviewFile &file : *files) {
        if (paths.contains(file.path))
            sum = sums::saturated(sum, file.size);
    }
    return sum;
}

qint64 size(const CleanupCategory &category, const CleanupSelection &selection)
{
    return picked(category.id, selection).isEmpty() ? category.size : pickedSize(category.id, selection);
}

Categories selected(const Categories &categories)
{
    Categories ticked;
    std::copy_if(categories.begin(), categories.end(), std::back_inserter(ticked),
                 [](const CleanupCategory &category) { return category.checked; });
    return ticked;
}

qint64 selectedSize(const Categories &categories, const CleanupSelection &selection)
{
    qint64 sum = 0;
    for (const CleanupCategory &category : categories) {
        if (category.checked)
            sum = sums::saturated(sum, size(category, selection));
    }
    return sum;
}

void selectAll(Categories &categories, const CleanupSelection &selection)
{
    for (CleanupCategory &category : categories)
        category.checked = category.checked || !isLocked(category, selection);
}

void selectNone(Categories &categories)
{
    for (CleanupCategory &category : categories)
        category.checked = false;
}

bool toggle(const QString &id, Categories &categories, CleanupSelection &selection)
{
    CleanupCategory *category = findOwn(id, categories);
    if (!category || isLocked(*category, selection))
        return false;
    category->checked = !category->checked;
    if (!category->checked) {
        selection.selectedFilePaths[id] = {};
        return false;
    }
    const QSet<QString> all = allPaths(id, selection);
    if (all.isEmpty())
        return true;
    selection.selectedFilePaths[id] = all;
    return false;
}

void toggleFile(const QString &id, const QString &path, Categories &categories, CleanupSelection &selection)
{
    QSet<QString> &paths = selection.selectedFilePaths[id];
    if (!paths.remove(path))
        paths.insert(path);
    sync(id, categories, selection);
}

void selectAllFiles(const QString &id, Categories &categories, CleanupSelection &selection)
{
    selection.selectedFilePaths[id] = allPaths(id, selection);
    sync(id, categories, selection);
}

void selectNoFiles(const QString &id, Categories &categories, CleanupSelection &selection)
{
    selection.selectedFilePaths[id] = {};
    sync(id, categories, selection);
}

void setReviewed(const QString &id, bool isReviewed, Categories &categories, CleanupSelection &selection)
{
    selection.reviewedUnsafe[id] = isReviewed;
    if (isReviewed)
        return sync(id, categories, selection);
    if (CleanupCategory *category = findOwn(id, categories))
        category->checked = false;
}

void takePreview(const QString &id, std::vector<PreviewFile> files, const Categories &categories,
                 CleanupSelection &selection)
{
    selection.previewFiles[id] = std::move(files);
    const CleanupCategory *category = find(id, categories);
    if (!category || !category->checked || !picked(id, selection).isEmpty())
        return;
    const QSet<QString> all = allPaths(id, selection);
    if (!all.isEmpty())
        selection.selectedFilePaths[id] = all;
}

} // namespace cleanupselection
