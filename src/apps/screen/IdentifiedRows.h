#pragma once

#include "base/RecordListModel.h"

#include <QUuid>

#include <algorithm>
#include <utility>

/// A list for QML of rows that are known by their `id`, one of which may be in the pane beside it: its role `isInPane` is
/// true. Each row is a copy of what it shows, so that the list that it comes from may change at any time. Main thread.
template<typename Row>
class IdentifiedRows
{
public:
    explicit IdentifiedRows(std::vector<typename RecordListModel<Row>::Role> roles)
        : rows_(withCurrent(std::move(roles)))
    {
    }
    IdentifiedRows(const IdentifiedRows &) = delete;
    IdentifiedRows &operator=(const IdentifiedRows &) = delete;

    QAbstractItemModel *model() { return &rows_; }

    /// Takes other rows. What was there keeps its place where it can.
    void show(std::vector<Row> rows)
    {
        rows_.update(std::move(rows), [](const Row &left, const Row &right) { return left.id == right.id; });
    }

    /// Takes another state of one row; nothing where its id is in none.
    void refresh(const Row &row)
    {
        if (const int number = rowOf(row.id); number >= 0)
            rows_.replace(number, row);
    }

    /// Marks another row as the current one; none where the id is in none.
    void setCurrent(const QUuid &id)
    {
        const QUuid before = std::exchange(current_, id);
        for (const QUuid &changed : {before, id}) {
            if (const int number = rowOf(changed); number >= 0)
                rows_.replace(number, Row(rows_.records()[static_cast<size_t>(number)]));
        }
    }

    int count() const { return rows_.rowCount(); }

    /// Null where there is no such row.
    QUuid idAt(int row) const
    {
        return row >= 0 && row < count() ? rows_.records()[static_cast<size_t>(row)].id : QUuid();
    }

    /// -1 where it has none.
    int rowOf(const QUuid &id) const
    {
        const auto found = std::ranges::find(rows_.records(), id, &Row::id);
        return found == rows_.records().end() ? -1 : static_cast<int>(found - rows_.records().begin());
    }

private:
    std::vector<typename RecordListModel<Row>::Role>
    withCurrent(std::vector<typename RecordListModel<Row>::Role> roles)
    {
        roles.push_back({"isInPane", [this](const Row &row) { return row.id == current_; }});
        return roles;
    }

    RecordListModel<Row> rows_;
    QUuid current_;
};
