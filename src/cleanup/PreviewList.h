#pragma once

#include "base/Date.h"
#include "cleanup/CleanupCategory.h"
#include "cleanup/PreviewFile.h"

#include <vector>

/// The single files of a category.
namespace previewlist {

/// A category's list ends here, but for one file more of each further place.
inline constexpr size_t mostFiles = 10000;

/// Largest first; equal ones as a walk through the places meets them. Of old downloads those that were last changed more
/// than thirty days before `now`. Of empty folders the folders themselves, of size 0 and in their order. Packages are not
/// looked into and links not followed. Blocks; any thread.
std::vector<PreviewFile> load(const CleanupCategory &category, Date now);

} // namespace previewlist
