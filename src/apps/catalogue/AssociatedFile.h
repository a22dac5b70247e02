#pragma once

#include <QString>
#include <QUuid>

/// A file or folder that belongs to an application, installed or gone.
struct AssociatedFile
{
    QUuid id;             ///< fresh for each record
    QString path;         ///< absolute
    QString category;     ///< "Cache", "Preferences", "Support", "Container" or "Other"
    qint64 size = 0;      ///< bytes
    bool selected = true; ///< takes part in a removal

    bool operator==(const AssociatedFile &) const = default;
};
