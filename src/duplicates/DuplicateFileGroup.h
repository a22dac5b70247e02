#pragma once

#include "duplicates/DuplicateFileEntry.h"

#include <QtNumeric>
#include <QUuid>

#include <algorithm>
#include <vector>

/// Files of equal content: of the same size, and with the same digest.
struct DuplicateFileGroup
{
    QUuid id;        ///< fresh for each group of each scan
    QString hash;    ///< SHA-256: 64 lower-case hexadecimal digits
    qint64 size = 0; ///< bytes, of each of the files
    /// At least two after a scan, in the order in which they were found.
    std::vector<DuplicateFileEntry> files;

    /// How many of the files go at the next delete run; the others stay.
    qint64 filesToGo() const
    {
        return std::count_if(files.begin(), files.end(),
                             [](const DuplicateFileEntry &file) { return !file.keep; });
    }

    /// It has files, and none of them stays at the next delete run.
    bool keepsNothing() const { return !files.empty() && filesToGo() == static_cast<qint64>(files.size()); }

    /// The bytes beyond one file. A product that does not fit into 64 bits is a programming fault and ends the
    /// process.
    qint64 wastedBytes() const
    {
        qint64 bytes = 0;
        if (qMulOverflow(size, static_cast<qint64>(files.size()) - 1, &bytes))
            qFatal("The wasted bytes of a group of equal files overflow.");
        return bytes;
    }
};
