#pragma once

#include <QAbstractItemModel>

/// What a list model gives for a row's role, by the role's name; an invalid value for a name that it does not have.
inline QVariant rowValue(const QAbstractItemModel *model, int row, const QByteArray &role)
{
    const int number = model->roleNames().key(role, -1);
    return number < 0 ? QVariant() : model->index(row, 0).data(number);
}

/// The same of every row, as texts.
inline QStringList columnTexts(const QAbstractItemModel *model, const QByteArray &role)
{
    QStringList texts;
    for (int row = 0; row < model->rowCount(); ++row)
        texts << rowValue(model, row, role).toString();
    return texts;
}
