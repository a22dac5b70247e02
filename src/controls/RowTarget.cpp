#include "controls/RowTarget.h"

#include <utility>

void RowTarget::take(QAbstractItemModel *model, int row)
{
    release();
    if (!model || row < 0 || row >= model->rowCount())
        return;
    model_ = model;
    index_ = model->index(row, 0);
    isTaken_ = true;
    for (const auto signal : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
        connect(model, signal, this, &RowTarget::look);
    connect(model, &QAbstractItemModel::rowsMoved, this, &RowTarget::look);
    connect(model, &QAbstractItemModel::layoutChanged, this, &RowTarget::look);
    connect(model, &QAbstractItemModel::modelReset, this, &RowTarget::look);
    connect(model, &QObject::destroyed, this, &RowTarget::look);
    emit rowChanged();
}

void RowTarget::release()
{
    if (model_)
        model_->disconnect(this);
    model_ = nullptr;
    index_ = QPersistentModelIndex();
    if (std::exchange(isTaken_, false))
        emit rowChanged();
}

void RowTarget::look()
{
    if (isTaken_ && !index_.isValid()) {
        release();
        emit lost();
    } else {
        emit rowChanged();
    }
}
