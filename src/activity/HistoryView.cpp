#include "activity/HistoryView.h"

#include "activity/HistoryService.h"
#include "base/Files.h"
#include "base/Paths.h"
#include "common/DateTexts.h"
#include "common/Formatters.h"

#include <algorithm>
#include <functional>
#include <iterator>

namespace {

using Kind = HistoryEntry::Kind;

constexpr qsizetype mostShownPaths = 50;

struct KindLook
{
    const char *label;
    const char *symbol;
    const char *tint; // six hex digits
};

KindLook lookOf(Kind kind)
{
    switch (kind) {
    case Kind::uninstall:
        return {"App Uninstalled", "trash.fill", "f85149"};
    case Kind::duplicateDelete:
        return {"Duplicates Removed", "doc.on.doc.fill", "a371f7"};
    case Kind::cleanup:
        return {"Smart Cleanup", "sparkles", "3fb950"};
    case Kind::organize:
        return {"Files Organized", "folder.badge.gearshape", "58a6ff"};
    case Kind::ghostClean:
        return {"Ghost Files Cleaned", "ghost", "39d2c0"};
    case Kind::undo:
        return {"Undo", "arrow.uturn.backward", "d29922"};
    }
    return {"", "", ""};
}

QString labelOf(std::optional<Kind> filter)
{
    return filter ? QString::fromLatin1(lookOf(*filter).label) : QStringLiteral("All");
}

QString headline(const HistoryEntry &entry)
{
    const QString separator = QStringLiteral(" · ");
    QString line = labelOf(entry.kind) + separator + datetexts::shortDateTime(entry.timestamp);
    if (entry.bytesAffected != 0)
        line += separator + sizeText(entry.bytesAffected);
    return line;
}

/// What stands in a row beside its title, in one line for who does not see it.
QString spokenText(const HistoryEntry &entry)
{
    return entry.success ? headline(entry) : headline(entry) + QStringLiteral(" · ") + HistoryTexts().failed;
}

bool isExpandable(const HistoryEntry &entry)
{
    return !entry.paths.isEmpty() || entry.detail;
}

QString filesHeading(const HistoryEntry &entry)
{
    return entry.paths.isEmpty() ? QString() : QStringLiteral("Files (%1)").arg(entry.paths.size());
}

QStringList shownPaths(const HistoryEntry &entry)
{
    QStringList shown;
    for (const QString &path : entry.paths.first(std::min(entry.paths.size(), mostShownPaths)))
        shown << paths::inOneLine(path);
    return shown;
}

/// The cap is named whatever the count is: it is the storage's, and the count may be below it.
QString moreText(const HistoryEntry &entry)
{
    const qsizetype more = entry.paths.size() - mostShownPaths;
    return more > 0 ? QStringLiteral("… and %1 more (capped at 200 in storage)").arg(more) : QString();
}

} // namespace

HistoryView::HistoryView(const Platform &platform, HistoryService &history)
    : platform_(platform)
    , history_(history)
    , clearing_([this] { history_.clear(); })
    , filterRows_({
          {"label", [](std::optional<Kind> kind) { return labelOf(kind); }},
          {"countText",
           [this](std::optional<Kind> kind) { return kind ? QString() : QString::number(items_.size()); }},
          {"isSelected", [this](std::optional<Kind> kind) { return kind == filter_; }},
      })
    , entryRows_(entryRoles())
{
    std::vector<std::optional<Kind>> chips = {std::nullopt};
    chips.insert(chips.end(), HistoryEntry::allKinds.begin(), HistoryEntry::allKinds.end());
    filterRows_.reset(std::move(chips));
    connect(&history_, &HistoryService::entriesChanged, this, [this] {
        clearing_.cancel(); // it has asked about a log that is another one now
        takeEntries();
    });
    connect(&clearing_, &Confirmation::changed, this, &HistoryView::showClearConfirmChanged);
    takeEntries();
}

std::vector<RecordListModel<HistoryView::Row>::Role> HistoryView::entryRoles()
{
    // What an entry hides while it is folded is not made until then.
    return {
        {"symbol", [](const Row &row) { return QString::fromLatin1(lookOf(row->entry.kind).symbol); }},
        {"tint", [](const Row &row) { return colorText(QString::fromLatin1(lookOf(row->entry.kind).tint)); }},
        {"headline", [](const Row &row) { return headline(row->entry); }},
        {"spokenText", [](const Row &row) { return spokenText(row->entry); }},
        {"entryTitle", [](const Row &row) { return paths::display(row->entry.title); }},
        {"isFailed", [](const Row &row) { return !row->entry.success; }},
        {"isExpandable", [](const Row &row) { return isExpandable(row->entry); }},
        {"isExpanded", [](const Row &row) { return row->isExpanded; }},
        {"toggleLabel",
         [](const Row &row) {
             return row->isExpanded ? QStringLiteral("Hide details") : QStringLiteral("Show details");
         }},
        {"detail",
         [](const Row &row) {
             return row->isExpanded ? paths::display(row->entry.detail.value_or(QString())) : QString();
         }},
        {"filesHeading",
         [](const Row &row) { return row->isExpanded ? filesHeading(row->entry) : QString(); }},
        {"shownPaths",
         [](const Row &row) { return row->isExpanded ? shownPaths(row->entry) : QStringList(); }},
        {"moreText", [](const Row &row) { return row->isExpanded ? moreText(row->entry) : QString(); }},
    };
}

QString HistoryView::title() const
{
    return QStringLiteral("Activity History");
}

QString HistoryView::symbol() const
{
    return QStringLiteral("clock.arrow.circlepath");
}

QString HistoryView::countText() const
{
    const QString total = QString::number(items_.size());
    return filter_ ? QStringLiteral("%1 of %2").arg(entryRows_.rowCount()).arg(total) : total;
}

QString HistoryView::emptyText() const
{
    if (items_.empty())
        return QStringLiteral("No activity yet.");
    return entryRows_.rowCount() == 0 ? QStringLiteral("No entries match this filter.") : QString();
}

bool HistoryView::canClear() const
{
    return !items_.empty();
}

bool HistoryView::canReveal() const
{
    return files::exists(history_.fileURL());
}

QString HistoryView::revealTip() const
{
    return canReveal() ? QStringLiteral("Reveal history.json in Finder")
                       : QStringLiteral("No history file yet — perform an action first.");
}

void HistoryView::chooseFilter(int chip)
{
    if (chip < 0 || chip >= filterRows_.rowCount())
        return;
    const std::optional<Kind> chosen = filterRows_.records()[static_cast<size_t>(chip)];
    if (chosen == filter_)
        return;
    filter_ = chosen;
    refreshFilters();
    entryRows_.reset(shownItems());
    emit contentChanged();
}

void HistoryView::refreshFilters()
{
    filterRows_.update(filterRows_.records(), std::equal_to<>()); // the same chips, told to look again
}

void HistoryView::toggleRow(int row)
{
    if (row < 0 || row >= entryRows_.rowCount())
        return;
    const Row item = entryRows_.records()[static_cast<size_t>(row)];
    if (!isExpandable(item->entry))
        return;
    item->isExpanded = !item->isExpanded;
    entryRows_.replace(row, item);
}

void HistoryView::reveal()
{
    if (canReveal())
        platform_.workspace.reveal(history_.fileURL());
    else
        emit contentChanged(); // the file has gone since the last look
}

void HistoryView::askToClear()
{
    if (canClear())
        clearing_.ask(texts().confirmText);
}

HistoryView::Rows HistoryView::itemsOfLog() const
{
    const std::vector<HistoryEntry> &entries = history_.entries();
    // Ids in a file may repeat, so that an item is found again by its place: the log grows at its head and is cut at
    // its foot. `added` is how many are new at the head.
    const auto goesOnAfter = [&](size_t added) {
        const size_t count = std::min(entries.size() - added, items_.size());
        const auto isSame = [](const HistoryEntry &entry, const Row &item) {
            return entry.id == item->entry.id;
        };
        const auto first = entries.begin() + static_cast<std::ptrdiff_t>(added);
        return std::equal(first, first + static_cast<std::ptrdiff_t>(count), items_.begin(), isSame);
    };
    size_t added = 0;
    while (!goesOnAfter(added))
        ++added; // ends at the latest with all of them
    Rows items;
    items.reserve(entries.size());
    for (size_t i = 0; i < entries.size(); ++i) {
        const bool isKnown = i >= added && i - added < items_.size();
        items.push_back(isKnown ? items_[i - added] : std::make_shared<Item>(Item{entries[i]}));
    }
    return items;
}

HistoryView::Rows HistoryView::shownItems() const
{
    Rows shown;
    std::copy_if(items_.begin(), items_.end(), std::back_inserter(shown),
                 [this](const Row &item) { return !filter_ || item->entry.kind == *filter_; });
    return shown;
}

void HistoryView::takeEntries()
{
    items_ = itemsOfLog();
    refreshFilters();
    entryRows_.update(shownItems(), [](const Row &one, const Row &other) { return one == other; });
    emit contentChanged();
}
