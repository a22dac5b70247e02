#include "apps/ghosts/InstalledWords.h"

#include "apps/ghosts/GhostNames.h"

#include <algorithm>

void InstalledWords::addName(const QString &name)
{
    const QString lower = ghostnames::comparable(name);
    if (names_.contains(lower))
        return;
    names_.insert(lower);
    nameParts_.add(lower);
}

void InstalledWords::addIdentifier(const QString &identifier)
{
    const QString lower = ghostnames::comparable(identifier);
    if (!identifiers_.insert(lower).second)
        return;
    identifierParts_.add(lower);
    const QString vendor = lower.section(u'.', 0, 1);
    if (vendor.size() < lower.size())
        vendors_.insert(vendor);
}

bool InstalledWords::hasRelativeOf(const QString &identifier) const
{
    const QString beginning = identifier + u'.';
    const auto following = identifiers_.lower_bound(beginning);
    if (following != identifiers_.end() && following->startsWith(beginning))
        return true;
    for (qsizetype dot = identifier.indexOf(u'.'); dot >= 0; dot = identifier.indexOf(u'.', dot + 1)) {
        if (identifiers_.contains(identifier.left(dot)))
            return true;
    }
    return false;
}

bool InstalledWords::hasNameIn(const QString &text) const
{
    return std::any_of(names_.begin(), names_.end(),
                       [&text](const QString &name) { return !name.isEmpty() && text.contains(name); });
}
