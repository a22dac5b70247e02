#include "duplicates/scan/ScanScope.h"

#include "base/Paths.h"

#include <algorithm>

namespace scope {
namespace {

bool isAbsolute(const QString &rule)
{
    return rule.startsWith(u'/');
}

} // namespace

bool isCovered(const QString &path, const QString &rule)
{
    // Not paths::isAtOrBelow, which takes a slash at the end of a folder for the one that belongs there.
    return path.startsWith(rule) && (path.size() == rule.size() || path[rule.size()] == u'/');
}

QStringList effectiveRules(const QStringList &ignorePaths, const QString &root)
{
    QStringList rules;
    for (const QString &rule : ignorePaths) {
        if (!isAbsolute(rule) || !isCovered(root, rule))
            rules.append(rule);
    }
    return rules;
}

bool isLifted(const QString &rule, const QStringList &scanPaths)
{
    return isAbsolute(rule) && std::any_of(scanPaths.begin(), scanPaths.end(), [&rule](const QString &path) {
               return isCovered(path, rule);
           });
}

IgnoreRules::IgnoreRules(const QStringList &rules)
{
    for (const QString &rule : rules)
        (isAbsolute(rule) ? absolute_ : bare_).push_back(rule);
}

bool IgnoreRules::match(const QString &path) const
{
    if (std::any_of(absolute_.begin(), absolute_.end(),
                    [&path](const QString &rule) { return isCovered(path, rule); }))
        return true;
    const QString name = paths::lastComponent(path);
    return std::find(bare_.begin(), bare_.end(), name) != bare_.end();
}

} // namespace scope
