#pragma once

#include <QString>

/// A single file that a category offers.
struct PreviewFile
{
    QString name;
    qint64 size = 0; ///< bytes
    QString path;

    bool operator==(const PreviewFile &) const = default;
};
