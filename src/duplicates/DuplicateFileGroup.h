#pragma once

#include "duplicates/DuplicateFileEntry.h"

#include <QtNumeric>
#include <QUuid>

#include <vector>

/// Files of equal content: of the same size, and with the same digest.
struct DuplicateFileGroup
{
    QUuid id;        ///< fresh for each group of each scan
    QString hash;    ///< SHA-256: 64 lower-case hexadecimal digits
    qint64 size = 0; ///< bytes, of each of the files
    std::vector<DuplicateFileEntry>
        files; ///< at least two after a scan, in the order in which they were found

    /// The bytes beyond one copy. A product that does not fit into 64 bits is a programming fault and ends the
    /// process.
    qint64 wastedBytes() const
    {
        qint64 bytes = 0;
        if (qMulOverflow(size, static_cast<qint64>(files.size()) - 1, &bytes))
            qFatal("The wasted bytes of a group of equal files overflow.");
        return bytes;
    }
};
