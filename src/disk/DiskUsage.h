#pragma once

#include <QString>

/// How full the volume is that holds "/". Bytes.
struct DiskUsage
{
    qint64 total = 0;
    qint64 used = 0; ///< total less available
    qint64 available = 0;
    QString name;

    bool operator==(const DiskUsage &) const = default;
};
