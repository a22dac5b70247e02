#pragma once

#include "SourceFile.h"

#include <QStringList>

#include <map>
#include <vector>

/// The rules of who may include whom. Each function gives what breaks its rule, a line each.
namespace layers {

/// The folders that a folder builds on beside those below it.
using BuildsOn = std::map<QString, QStringList>;

/// Includes that point up, sideways to a folder that theirs does not build on, out of the tree, or from anywhere
/// but the entry to a system's adapters.
QStringList brokenIncludes(const std::vector<SourceFile> &files, const BuildsOn &buildsOn);

/// Services that include a screen model: models read services, never the other way round.
QStringList servicesThatKnowScreens(const std::vector<SourceFile> &files);

/// Conditions of the preprocessor on the system that is compiled for, outside of `platform/`.
QStringList platformConditions(const std::vector<SourceFile> &files);

/// Who includes whom, by path.
BuildsOn includeGraph(const std::vector<SourceFile> &files);

/// A circle in a graph, its first member once more at its end. Empty when there is none.
QStringList circle(const BuildsOn &graph);

} // namespace layers
