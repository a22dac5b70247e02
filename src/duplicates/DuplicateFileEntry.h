#pragma once

#include "base/Date.h"

#include <QString>
#include <QUuid>

/// One file of a group of equal ones.
struct DuplicateFileEntry
{
    QUuid id; ///< fresh for each entry of each scan
    QString name;
    QString path;
    Date modified = dates::distantPast; ///< of the content; the distant past where it can't be read
    bool keep = true;                   ///< false: goes at the next delete run
};
