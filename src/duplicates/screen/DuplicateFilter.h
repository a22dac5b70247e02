#pragma once

#include "duplicates/DuplicateFileGroup.h"

#include <QStringList>

#include <map>
#include <vector>

/// The filters of the Duplicate Finder by file type.
namespace duplicatefilter {

/// In their order, the one that lets all pass first.
const QStringList &names();

/// The extensions that each of the others lets pass, in lower case.
const std::map<QString, QStringList> &extensions();

/// The groups that pass the filter of that name, by index. A group is judged by its first file alone.
std::vector<size_t> passing(const std::vector<DuplicateFileGroup> &groups, const QString &filter);

} // namespace duplicatefilter
