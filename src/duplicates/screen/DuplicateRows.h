#pragma once

#include "duplicates/DuplicateFileGroup.h"

#include <QAbstractListModel>
#include <QString>

#include <vector>

/// The result of a scan as one flat list for QML: a row for the head of each group, then one for each of its files. All
/// rows are as high as each other and none is prepared before it is asked for, so that a list of any length shows at
/// once and scrolls evenly. Main thread only.
class DuplicateRows final : public QAbstractListModel
{
    Q_OBJECT

public:
    /// What a row stands for.
    struct Row
    {
        size_t group = 0; ///< index in the groups
        int file = -1;    ///< index in the group's files; -1 is the head
        QUuid id;         ///< of the file, or of the group

        bool isHead() const { return file < 0; }
    };

    enum Role {
        isHeadRole = Qt::UserRole,
        titleRole,       ///< head: the first file's name; file: its name
        detailRole,      ///< head: copies and sizes; file: its path
        trailingRole,    ///< head: what can be won back; file: its date
        keepRole,        ///< file: it stays
        badgeRole,       ///< file: "KEEP" or "DELETE"
        badgeSymbolRole, ///< file
        tipRole,         ///< file: what a click does
        isLastRole,      ///< the group ends with this row
        spokenRole,      ///< all but the title, for who does not see it
    };
    Q_ENUM(Role)

    /// `groups` outlives the model, which shows nothing of it until `show`. `home` is written as a tilde.
    DuplicateRows(const std::vector<DuplicateFileGroup> &groups, QString home, QObject *parent = nullptr);

    /// Shows these of the groups, by index.
    void show(const std::vector<size_t> &shown);

    /// The same after files or groups have gone from what was shown: the other rows stay where they are.
    void shrink(const std::vector<size_t> &shown);

    /// Tells that one file's flag has changed, those of one group, or all.
    void refreshFile(size_t group, size_t file);
    void refreshGroup(size_t group);
    void refreshAll();

    /// The row with that number; null where there is none.
    const Row *row(int number) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    std::vector<Row> rowsOf(const std::vector<size_t> &shown) const;
    int headOf(size_t group) const;
    bool isThere(const Row &row) const;
    QVariant headData(const DuplicateFileGroup &group, int role) const;
    QVariant fileData(const Row &row, int role) const;

    const std::vector<DuplicateFileGroup> &groups_;
    const QString home_;
    std::vector<Row> rows_;
};
