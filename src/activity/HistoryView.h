#pragma once

#include "activity/HistoryEntry.h"
#include "activity/HistoryTexts.h"
#include "base/RecordListModel.h"
#include "common/Confirmation.h"
#include "platform/Platform.h"

#include <QObject>

#include <memory>
#include <optional>
#include <vector>

class HistoryService;

/// The sheet over the activity log: filters by kind, shows an entry's paths on demand, clears the log. Main thread.
class HistoryView final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QString symbol READ symbol CONSTANT)
    Q_PROPERTY(HistoryTexts texts READ texts CONSTANT)
    Q_PROPERTY(QString countText READ countText NOTIFY contentChanged)
    Q_PROPERTY(QString emptyText READ emptyText NOTIFY contentChanged)
    Q_PROPERTY(bool canClear READ canClear NOTIFY contentChanged)
    Q_PROPERTY(bool canReveal READ canReveal NOTIFY contentChanged)
    Q_PROPERTY(QString revealTip READ revealTip NOTIFY contentChanged)
    Q_PROPERTY(bool showClearConfirm READ showClearConfirm NOTIFY showClearConfirmChanged)
    Q_PROPERTY(QAbstractItemModel *filters READ filters CONSTANT)
    Q_PROPERTY(QAbstractItemModel *rows READ rows CONSTANT)

public:
    using Kind = HistoryEntry::Kind;

    HistoryView(const Platform &platform, HistoryService &history);

    QString title() const;
    QString symbol() const;
    HistoryTexts texts() const { return {}; }
    QString countText() const; ///< "12", or "3 of 12" under a filter
    QString emptyText() const; ///< why there is no row; empty while there is one
    bool canClear() const;
    bool canReveal() const; ///< the log has a file
    QString revealTip() const;
    bool showClearConfirm() const { return clearing_.isUp(); }
    std::optional<Kind> filter() const { return filter_; } ///< none shows all

    /// The chips, "All" first. Rows: label, countText (of "All" alone), isSelected.
    QAbstractItemModel *filters() { return &filterRows_; }
    /// Rows: symbol, tint, headline, spokenText, entryTitle, isFailed, isExpandable, isExpanded, toggleLabel; and of an expanded one, empty on
    /// others: detail, filesHeading, shownPaths, moreText.
    QAbstractItemModel *rows() { return &entryRows_; }

    Q_INVOKABLE void chooseFilter(int chip);
    Q_INVOKABLE void toggleRow(int row); ///< expands or folds; nothing on an entry that has no more to show
    Q_INVOKABLE void reveal();
    Q_INVOKABLE void askToClear();
    Q_INVOKABLE void cancelClear() { clearing_.cancel(); }
    Q_INVOKABLE void confirmClear() { clearing_.confirm(); }

signals:
    void contentChanged();
    void showClearConfirmChanged();

private:
    /// An entry of the log and its own state on this sheet. Rows share it, so that a filter does not fold it.
    struct Item
    {
        HistoryEntry entry;
        bool isExpanded = false;
    };
    using Row = std::shared_ptr<Item>;
    using Rows = std::vector<Row>;

    static std::vector<RecordListModel<Row>::Role> entryRoles();
    Rows itemsOfLog() const;
    Rows shownItems() const;
    void takeEntries();
    void refreshFilters();

    const Platform &platform_;
    HistoryService &history_;
    std::optional<Kind> filter_;
    Confirmation clearing_;
    Rows items_; // the whole log
    RecordListModel<std::optional<Kind>> filterRows_;
    RecordListModel<Row> entryRows_;
};
