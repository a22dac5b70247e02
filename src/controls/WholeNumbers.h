#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

/// Whole numbers as a field has them: a double, since that is what QML hands on, and exact up to 10^15 either way.
class WholeNumbers final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    /// The number that the text is; not a number where it is none, or lies outside the range.
    Q_INVOKABLE static double read(const QString &text, double from, double to);
    /// Its digits; empty for what is no whole number.
    Q_INVOKABLE static QString text(double value);
    /// The number so much further, held to the range.
    Q_INVOKABLE static double stepped(double value, double by, double from, double to);
};
