#pragma once

#include <QString>
#include <QStringList>

/// One kind of reclaimable things, as the last scan found it.
struct CleanupCategory
{
    QString id; ///< stable; one of cleanupids
    QString name;
    QString description;
    QString icon;      ///< symbol name
    QStringList paths; ///< folders whose content it stands for; of "empty-folders" each path is one of them
    qint64 size = 0;   ///< bytes, of all that lies in the paths; of "empty-folders" their number
    qint64 fileCount = 0; ///< an estimate for people, of at most 10,000 a path and three levels down
    bool safe = false;    ///< its content comes again by itself and needs no review
    bool checked = false; ///< the user's choice

    bool operator==(const CleanupCategory &) const = default;
};

/// The ids that have rules of their own.
namespace cleanupids {

inline const QString emptyFolders = QStringLiteral("empty-folders");
inline const QString oldDownloads = QStringLiteral("old-downloads");
inline const QString trash = QStringLiteral("trash");

} // namespace cleanupids
