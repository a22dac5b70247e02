#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// What the keys of a grid of cells mean. Pure.
class GridSteps final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    /// The cell to which a key (Qt::Key) leads from `current` (-1 is none) in a grid of `count` cells, `columns` in a row: the
    /// arrows, Page Up, Page Down, Home or End, with Shift or without. `rowsInView` is how many rows have room. -1 for any other
    /// key and for an empty grid.
    Q_INVOKABLE static int target(int key, int modifiers, int current, int count, int columns,
                                  double rowsInView);

    /// The first cell of the first row that is whole in a view which begins `top` below the first row; where the last row is
    /// cut as well, its first cell. -1 for an empty grid.
    Q_INVOKABLE static int firstWhole(double top, double cellHeight, int count, int columns);

    /// The key that means the same where one reads from the right.
    Q_INVOKABLE static int mirrored(int key);
};
