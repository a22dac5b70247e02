#pragma once

#include "base/Date.h"

#include <QString>
#include <QStringList>
#include <QUuid>

#include <array>
#include <optional>

/// What one destructive run of a tool did, as the activity log keeps it. The caller builds it whole: a fresh id, the
/// moment, and at most `mostPaths` paths.
struct HistoryEntry
{
    enum class Kind {
        uninstall,
        duplicateDelete,
        cleanup,
        organize,
        ghostClean, ///< no run writes it; a file that holds it loads and is shown
        undo,       ///< likewise
    };

    static constexpr std::array allKinds = {Kind::uninstall, Kind::duplicateDelete, Kind::cleanup,
                                            Kind::organize,  Kind::ghostClean,      Kind::undo};

    /// How many paths a record holds at most.
    static constexpr qsizetype mostPaths = 200;

    QUuid id;
    Date timestamp = dates::distantPast;
    Kind kind = Kind::cleanup;
    QString title;                 ///< one line
    QStringList paths;             ///< touched by the run, the first `mostPaths`
    qint64 bytesAffected = 0;      ///< freed or moved
    bool success = true;           ///< nothing in the run failed
    std::optional<QString> detail; ///< failures or a note

    bool operator==(const HistoryEntry &) const = default;
};

namespace history {

/// A kind as the file names it, which is as its case is called.
QLatin1StringView rawText(HistoryEntry::Kind kind);

/// None for a text that names no kind.
std::optional<HistoryEntry::Kind> kindNamed(QStringView rawText);

} // namespace history

/// Over all eight fields.
size_t qHash(const HistoryEntry &entry, size_t seed = 0);
