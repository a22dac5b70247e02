#pragma once

#include "base/Error.h"

#include <QString>
#include <QStringList>

/// What a run over a list of paths has done so far, and what of it is told afterwards: in the activity log, in an error, in
/// a banner. A plain value.
struct RunTally
{
    QStringList done;     ///< the paths that went well, in their order
    QStringList failures; ///< "{path}: {why}", in their order
    qint64 bytes = 0;     ///< of the paths that went well; stays at the largest number where it would pass it

    void succeeded(const QString &path, qint64 size);
    void failed(const QString &path, const Error &error);

    bool hasFailures() const { return !failures.isEmpty(); }

    /// At most the first 200 of the paths that went well: what a record of the log may hold.
    QStringList recordedPaths() const;

    /// The first five failures, a line each.
    QString firstFailures() const;
};
