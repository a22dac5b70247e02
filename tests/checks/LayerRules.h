#pragma once

#include "SourceFile.h"

#include <QStringList>

#include <map>
#include <vector>

/// The rules of who may know whom. Each function gives what breaks its rule, a line each.
namespace layers {

/// Includes that point up, from one of the `tools` (folders) to another, out of the tree, or from anywhere but the
/// program's entry to a system's adapters.
QStringList brokenIncludes(const std::vector<SourceFile> &files, const QStringList &tools);

/// The same for programs that stand beside src/, such as the driver: they may include all of it, but a system's
/// adapters in their entries only.
QStringList brokenOuterIncludes(const std::vector<SourceFile> &files, const QStringList &tools);

/// Services that include a screen model: models read services, never the other way round. Both are told by their classes,
/// wherever their members are defined.
QStringList servicesThatKnowScreens(const std::vector<SourceFile> &files);

/// Uses of a service's one instance outside of the composition.
QStringList sharedElsewhere(const std::vector<SourceFile> &files);

/// Conditions of the preprocessor on the system that is compiled for, outside of `platform/`.
QStringList platformConditions(const std::vector<SourceFile> &files);

/// From each to those that it leads to.
using Graph = std::map<QString, QStringList>;

/// Who includes whom, by path.
Graph includeGraph(const std::vector<SourceFile> &files);

/// A circle in a graph, its first member once more at its end. Empty when there is none.
QStringList circle(const Graph &graph);

} // namespace layers
