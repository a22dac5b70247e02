#pragma once

#include <QString>
#include <QUuid>

#include <optional>
#include <vector>

/// One node of a measured tree.
struct FileEntry
{
    QUuid id; ///< fresh at each creation
    QString name;
    QString path;    ///< absolute
    qint64 size = 0; ///< bytes; a folder's counts everything in it, also what `children` leaves out
    bool isDirectory = false;
    /// Absent on a file and on a folder that was not opened; present, possibly empty, on one that was listed.
    std::optional<std::vector<FileEntry>> children;

    bool hasChildren() const { return children && !children->empty(); }
};
