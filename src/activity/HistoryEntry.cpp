#include "activity/HistoryEntry.h"

#include <QHash>

#include <algorithm>

namespace history {

QLatin1StringView rawText(HistoryEntry::Kind kind)
{
    using Kind = HistoryEntry::Kind;
    switch (kind) {
    case Kind::uninstall:
        return QLatin1StringView("uninstall");
    case Kind::duplicateDelete:
        return QLatin1StringView("duplicateDelete");
    case Kind::cleanup:
        return QLatin1StringView("cleanup");
    case Kind::organize:
        return QLatin1StringView("organize");
    case Kind::ghostClean:
        return QLatin1StringView("ghostClean");
    case Kind::undo:
        return QLatin1StringView("undo");
    }
    return {};
}

std::optional<HistoryEntry::Kind> kindNamed(QStringView text)
{
    const auto &kinds = HistoryEntry::allKinds;
    const auto found = std::find_if(kinds.begin(), kinds.end(),
                                    [text](HistoryEntry::Kind kind) { return rawText(kind) == text; });
    return found == kinds.end() ? std::nullopt : std::optional(*found);
}

} // namespace history

size_t qHash(const HistoryEntry &entry, size_t seed)
{
    return qHashMulti(seed, entry.id, entry.timestamp.time_since_epoch().count(),
                      static_cast<int>(entry.kind), entry.title, entry.paths, entry.bytesAffected,
                      entry.success, entry.detail.has_value(), entry.detail.value_or(QString()));
}
