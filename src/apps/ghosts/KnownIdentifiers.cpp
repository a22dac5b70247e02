#include "apps/ghosts/KnownIdentifiers.h"

#include <algorithm>

bool KnownIdentifiers::resolves(const QString &candidate)
{
    // Every shorter form is a beginning of the longer one, which ends ahead of its last hyphen or dot.
    QString form = candidate;
    while (form.count(u'.') >= 2) {
        if (isKnown(form))
            return true;
        form.truncate(std::max(form.lastIndexOf(u'.'), form.lastIndexOf(u'-')));
    }
    return false;
}

bool KnownIdentifiers::isKnown(const QString &identifier)
{
    const auto answer = answers_.constFind(identifier);
    if (answer != answers_.constEnd())
        return *answer;
    return *answers_.insert(identifier, lookup_(identifier));
}
