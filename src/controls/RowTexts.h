#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

/// Texts that a row of any list has. Pure.
class RowTexts final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    /// What assistive technology is told after the row's name: its own words, and its place, as "3 of 120".
    Q_INVOKABLE static QString told(const QString &spoken, int row, int count);

    /// The lines of a tooltip; those that are empty are left out.
    Q_INVOKABLE static QString lines(const QStringList &lines);
};
