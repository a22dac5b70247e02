#pragma once

#include <QString>
#include <QUuid>

/// One of the biggest items below the user's main folders; a plain file can be one too.
struct LargeDirectory
{
    QUuid id; ///< fresh at each creation
    QString name;
    QString path;    ///< absolute
    qint64 size = 0; ///< bytes
};
