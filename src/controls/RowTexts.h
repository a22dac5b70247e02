#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

/// Texts that a row of any list has, and what controls put together of the texts that they are given. Pure.
class RowTexts final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    /// Where a row stands: "3 of 120" for the one with the number 2.
    Q_INVOKABLE static QString place(int row, int count);

    /// What assistive technology is told after the row's name: what else it shows, and its place; what is empty is left out.
    Q_INVOKABLE static QString told(const QString &spoken, const QString &place);

    /// What the context menu of a row is called.
    Q_INVOKABLE static QString menuName();

    /// The lines of a tooltip; those that are empty are left out.
    Q_INVOKABLE static QString lines(const QStringList &lines);

    /// One text after the other on a line; those that are empty are left out.
    Q_INVOKABLE static QString inARow(const QStringList &texts);

    /// What assistive technology is told of a figure: "Total size: 4 GB".
    Q_INVOKABLE static QString figure(const QString &label, const QString &value);
};
