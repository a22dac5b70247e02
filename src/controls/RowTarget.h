#pragma once

#include <QAbstractItemModel>
#include <QObject>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QtQml/qqmlregistration.h>

/// The row that a list's menu is about. It is taken when the menu opens and followed from there, since a list may change
/// while its menu is open and a bare number would then name another row. Main thread.
class RowTarget : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(int row READ row NOTIFY rowChanged)

public:
    /// Where the row stands now; -1 while none is taken and once it has gone.
    int row() const { return index_.isValid() ? index_.row() : -1; }

    Q_INVOKABLE void take(QAbstractItemModel *model, int row);
    Q_INVOKABLE void release();

signals:
    void rowChanged();
    void lost(); ///< the row has gone from its list, or the list was replaced

private:
    void look();

    QPointer<QAbstractItemModel> model_;
    QPersistentModelIndex index_;
    bool isTaken_ = false;
};
