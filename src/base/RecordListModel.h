#pragma once

#include <QAbstractListModel>

#include <algorithm>
#include <functional>
#include <vector>

/// A list of records for QML, a row a record and a role a field. Changes go row by row where the reader's place
/// in the list would else be lost. Main thread only. Hand it no list that is longer than a screen needs.
template<typename Record>
class RecordListModel final : public QAbstractListModel
{
public:
    struct Role
    {
        QByteArray name; ///< as the delegate's required property is called
        std::function<QVariant(const Record &)> value;
    };

    explicit RecordListModel(std::vector<Role> roles, QObject *parent = nullptr)
        : QAbstractListModel(parent)
        , roles_(std::move(roles))
    {
    }

    const std::vector<Record> &records() const { return records_; }

    /// Takes a wholly new list.
    void reset(std::vector<Record> records)
    {
        beginResetModel();
        records_ = std::move(records);
        endResetModel();
    }

    /// Takes a new list of which much is the old one: `isSame` tells whether two records are the same row. What
    /// stays at the head and at the foot keeps its place; the rows between are removed and inserted.
    void update(std::vector<Record> records,
                const std::function<bool(const Record &, const Record &)> &isSame)
    {
        const auto [head, newHead] =
            std::mismatch(records_.begin(), records_.end(), records.begin(), records.end(), isSame);
        const auto kept = head - records_.begin();
        const auto [foot, newFoot] =
            std::mismatch(records_.rbegin(), std::make_reverse_iterator(head), records.rbegin(),
                          std::make_reverse_iterator(newHead), isSame);
        const auto keptFoot = foot - records_.rbegin();
        const auto removed = static_cast<int>(static_cast<std::ptrdiff_t>(records_.size()) - kept - keptFoot);
        const auto inserted = static_cast<int>(static_cast<std::ptrdiff_t>(records.size()) - kept - keptFoot);
        const auto first = static_cast<int>(kept);
        if (removed > 0) {
            beginRemoveRows({}, first, first + removed - 1);
            records_.erase(records_.begin() + first, records_.begin() + first + removed);
            endRemoveRows();
        }
        if (inserted > 0) {
            beginInsertRows({}, first, first + inserted - 1);
            records_.insert(records_.begin() + first, records.begin() + first,
                            records.begin() + first + inserted);
            endInsertRows();
        }
        records_ = std::move(records);
        if (!records_.empty())
            emit dataChanged(index(0), index(rowCount() - 1));
    }

    /// Takes a new record in the place of that of one row.
    void replace(int row, Record record)
    {
        records_[static_cast<size_t>(row)] = std::move(record);
        emit dataChanged(index(row), index(row));
    }

    int rowCount(const QModelIndex &parent = {}) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(records_.size());
    }

    QVariant data(const QModelIndex &index, int role) const override
    {
        const auto number = static_cast<size_t>(role - Qt::UserRole);
        if (!checkIndex(index, CheckIndexOption::IndexIsValid) || role < Qt::UserRole
            || number >= roles_.size())
            return {};
        return roles_[number].value(records_[static_cast<size_t>(index.row())]);
    }

    QHash<int, QByteArray> roleNames() const override
    {
        QHash<int, QByteArray> names;
        for (size_t i = 0; i < roles_.size(); ++i)
            names.insert(Qt::UserRole + static_cast<int>(i), roles_[i].name);
        return names;
    }

private:
    std::vector<Role> roles_;
    std::vector<Record> records_;
};
