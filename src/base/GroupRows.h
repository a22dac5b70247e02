#pragma once

#include <QAbstractListModel>
#include <QUuid>

#include <vector>

/// Groups and their members as one flat list for QML: a row for the head of each group, then one for each of its members.
/// All rows are as high as each other and none is prepared before it is asked for, so that a list of any length shows at
/// once and scrolls evenly. What the rows say is a matter of the model that is made of this. Main thread only.
class GroupRows : public QAbstractListModel
{
    Q_OBJECT

public:
    /// What a row stands for.
    struct Row
    {
        size_t group = 0; ///< index in the groups
        int member = -1;  ///< index in the group; -1 is the head
        QUuid id;         ///< of the member, or of the group

        bool isHead() const { return member < 0; }
    };

    enum Role {
        isHeadRole = Qt::UserRole,
        isLastRole, ///< the group ends with this row
        firstOwnRole,
    };

    /// Shows these of the groups, by index, in rising order.
    void show(const std::vector<size_t> &shown);

    /// The same after members or groups have gone from what was shown: the other rows stay where they are. Where more
    /// rows went than can be told one by one the list is taken anew, and `takenAnew` tells.
    void shrink(const std::vector<size_t> &shown);

    /// The group has more members than before at its end, or fewer, and what is said of the others may have changed: its other
    /// rows and those of all other groups stay where they are. Nothing where it is not shown.
    void resize(size_t group);

    /// Tells that what is said of one row has changed, of those of one group, or of all. What is not shown is passed over.
    void refreshHead(size_t group);
    void refreshMember(size_t group, size_t member);
    void refreshGroup(size_t group);
    void refreshAll();

    /// The row with that number; null where there is none.
    const Row *row(int number) const;

    /// While `takenAnew` is emitted: where a row of before stands now, or where that had gone, the next one that stayed;
    /// the last row where none did, and -1 in an empty list.
    Q_INVOKABLE int rowNow(int before) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

signals:
    void takenAnew(); ///< the same list, shorter, with its rows made anew

protected:
    using QAbstractListModel::QAbstractListModel;

    virtual size_t groupCount() const = 0;
    virtual size_t memberCount(size_t group) const = 0;
    virtual QUuid groupId(size_t group) const = 0;
    virtual QUuid memberId(size_t group, size_t member) const = 0;
    virtual QVariant headData(size_t group, int role) const = 0;
    virtual QVariant memberData(size_t group, size_t member, int role) const = 0;

private:
    std::vector<Row> rowsOf(const std::vector<size_t> &shown) const;
    int headOf(size_t group) const;
    int endOf(size_t group) const;
    bool isThere(const Row &row) const;
    void takeAnew(std::vector<Row> rows);

    std::vector<Row> rows_;
    std::vector<int> rowsNow_; // while `takenAnew` is emitted
};
