#pragma once

#include <QList>
#include <QObject>
#include <QtQml/qqmlregistration.h>

/// How wide the parts of a stacked bar are.
class BarWidths final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    /// Whole pixels for shares of a bar so wide. A share above nothing gets at least `least` where there is room for that, and
    /// the widest parts give what it takes; one of nothing, or that is no number, gets none. The parts never exceed the bar.
    Q_INVOKABLE static QList<int> of(const QList<double> &shares, int width, int least);
};
