#pragma once

#include "apps/catalogue/AssociatedFile.h"
#include "base/RecordListModel.h"

#include <QString>

#include <vector>

/// Files that belong to an application, as a list shows them.
namespace appfiles {

/// fileName, path (below the home folder with a tilde), category, symbol, sizeText, spokenText (what stands beside the
/// name), isTicked.
std::vector<RecordListModel<AssociatedFile>::Role> roles(const QString &home);

QString symbol(const QString &category);

struct Amount
{
    size_t count = 0;
    qint64 size = 0; ///< bytes
};

/// Of those that are ticked.
Amount selected(const std::vector<AssociatedFile> &files);

void selectAll(std::vector<AssociatedFile> &files, bool isSelected);

} // namespace appfiles
