#pragma once

#include "apps/catalogue/AssociatedFile.h"
#include "base/Sums.h"

#include <QString>
#include <QUuid>

#include <vector>

/// Files that an application which is gone has left behind, as far as can be told.
struct GhostApp
{
    QUuid id;             ///< fresh for each record
    QString inferredName; ///< made up from the key, for people
    QString bundleID;     ///< the key of the group: an identifier or a folder's name, in lower case
    std::vector<AssociatedFile> files; ///< in the order in which they were found
    bool selected = true;
    bool looksInstalled = false; ///< a warning: it resembles something that is installed

    qint64 totalSize() const ///< bytes
    {
        qint64 total = 0;
        for (const AssociatedFile &file : files)
            total = sums::saturated(total, file.size);
        return total;
    }

    bool operator==(const GhostApp &) const = default;
};
