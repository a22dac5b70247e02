#pragma once

#include <QString>
#include <QStringList>

#include <vector>

/// The rules that keep a duplicate scan out of folders. A rule that begins with "/" is absolute: it stands for that
/// folder and all below it. Any other is bare: it stands for every folder of that name. All comparisons are on the text
/// of the paths, exact in case; no link is resolved and no ".." taken away. Pure.
namespace scope {

/// True when `path` is the folder of the absolute rule `rule`, or lies below it.
bool isCovered(const QString &path, const QString &rule);

/// The rules that hold for the walk of `root`: all but the absolute ones that would keep the walk out of its own root.
/// A bare rule holds always, so that a root of such a name yields nothing.
QStringList effectiveRules(const QStringList &ignorePaths, const QString &root);

/// True for an absolute rule whose folder a scan path leads into, which lifts it for that scan path.
bool isLifted(const QString &rule, const QStringList &scanPaths);

/// The rules of one walk, ready to be asked of each folder on the way.
class IgnoreRules
{
public:
    explicit IgnoreRules(const QStringList &rules);

    /// True when the walk stays out of the folder at `path`.
    bool match(const QString &path) const;

private:
    std::vector<QString> absolute_;
    std::vector<QString> bare_;
};

} // namespace scope
