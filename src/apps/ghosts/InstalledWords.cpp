#include "apps/ghosts/InstalledWords.h"

#include "apps/ghosts/GhostNames.h"

#include <algorithm>

void InstalledWords::addName(const QString &name)
{
    const QString lower = ghostnames::comparable(name);
    if (names_.contains(lower))
        return;
    names_.insert(lower);
    allNames_ += lower + QChar::Null;
}

void InstalledWords::addIdentifier(const QString &identifier)
{
    const QString lower = ghostnames::comparable(identifier);
    if (identifiers_.contains(lower))
        return;
    identifiers_.insert(lower);
    allIdentifiers_ += lower + QChar::Null;
    for (qsizetype dot = lower.indexOf(u'.'), dots = 1; dot >= 0;
         dot = lower.indexOf(u'.', dot + 1), ++dots) {
        ancestors_.insert(lower.left(dot));
        if (dots == 2)
            vendors_.insert(lower.left(dot));
    }
}

bool InstalledWords::hasRelativeOf(const QString &identifier) const
{
    if (ancestors_.contains(identifier))
        return true;
    for (qsizetype dot = identifier.indexOf(u'.'); dot >= 0; dot = identifier.indexOf(u'.', dot + 1)) {
        if (identifiers_.contains(identifier.left(dot)))
            return true;
    }
    return false;
}

bool InstalledWords::isInName(QStringView word) const
{
    return !word.isEmpty() && allNames_.contains(word);
}

bool InstalledWords::isInIdentifier(QStringView word) const
{
    return !word.isEmpty() && allIdentifiers_.contains(word);
}

bool InstalledWords::hasNameIn(const QString &text) const
{
    return std::any_of(names_.begin(), names_.end(),
                       [&text](const QString &name) { return !name.isEmpty() && text.contains(name); });
}
