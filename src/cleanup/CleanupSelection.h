#pragma once

#include "cleanup/CleanupCategory.h"
#include "cleanup/PreviewFile.h"

#include <QMap>
#include <QSet>

#include <vector>

/// What the user has chosen beyond the ticks of the categories, by their ids: the files picked in the previews, and which
/// categories were looked through. A plain value.
struct CleanupSelection
{
    QMap<QString, bool> reviewedUnsafe; ///< the mark "I've reviewed these files"
    QMap<QString, std::vector<PreviewFile>> previewFiles;
    QMap<QString, QSet<QString>> selectedFilePaths; ///< of a category with any, these files alone are cleaned
};

/// The rules of choosing. Ids that no category has are passed over.
namespace cleanupselection {

/// The category of that id. Null where there is none.
const CleanupCategory *find(const QString &id, const std::vector<CleanupCategory> &categories);

/// A category that may hold the user's own files is locked until the user says that they were looked through.
bool isLocked(const CleanupCategory &category, const CleanupSelection &selection);

/// The files picked of a category; empty for the category as a whole.
QSet<QString> picked(const QString &id, const CleanupSelection &selection);

/// The sum of the picked files of a category's preview; files that the preview does not list count nothing.
qint64 pickedSize(const QString &id, const CleanupSelection &selection);

/// Bytes that a category counts for when it is cleaned: those of its picked files, else its own. May be less than is
/// removed, or more: files that the preview does not list count nothing.
qint64 size(const CleanupCategory &category, const CleanupSelection &selection);

/// The categories that are ticked, in their order.
std::vector<CleanupCategory> selected(const std::vector<CleanupCategory> &categories);

/// The sum of their sizes.
qint64 selectedSize(const std::vector<CleanupCategory> &categories, const CleanupSelection &selection);

void selectAll(std::vector<CleanupCategory> &categories,
               const CleanupSelection &selection);         ///< locked ones stay
void selectNone(std::vector<CleanupCategory> &categories); ///< picked files stay picked

/// Turns a tick over; nothing where the category is locked. One that is set picks all files of the preview, one that is
/// taken away picks none. True when the preview is not loaded yet, and should be.
bool toggle(const QString &id, std::vector<CleanupCategory> &categories, CleanupSelection &selection);

void toggleFile(const QString &id, const QString &path, std::vector<CleanupCategory> &categories,
                CleanupSelection &selection);
void selectAllFiles(const QString &id, std::vector<CleanupCategory> &categories, CleanupSelection &selection);
void selectNoFiles(const QString &id, std::vector<CleanupCategory> &categories, CleanupSelection &selection);
void setReviewed(const QString &id, bool isReviewed, std::vector<CleanupCategory> &categories,
                 CleanupSelection &selection);

/// Keeps a preview that has been loaded. A category that was ticked meanwhile picks all of it.
void takePreview(const QString &id, std::vector<PreviewFile> files,
                 const std::vector<CleanupCategory> &categories, CleanupSelection &selection);

} // namespace cleanupselection
