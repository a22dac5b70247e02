#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// What the keys and the wheel mean to a list of rows.
class RowSteps final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    /// The row to which a key (Qt::Key) leads from `current` (-1 is none) in a list of `count` rows: Up, Down, Page Up, Page
    /// Down, Home or End, with Shift or without. `rowsInView` is how many have room. -1 for any other key and for an empty
    /// list.
    Q_INVOKABLE static int target(int key, int modifiers, int current, int count, double rowsInView);

    /// How far a list goes on for a turn of the wheel by that angle, in eighths of a degree; a notch has 120.
    Q_INVOKABLE static double wheelDistance(double angle);

    /// Whether a key asks for the context menu: the Menu key, or Shift and F10.
    Q_INVOKABLE static bool asksForMenu(int key, int modifiers);

    /// Whether a key asks for the row to be taken out of its list: Delete or Backspace, alone.
    Q_INVOKABLE static bool asksForRemoval(int key, int modifiers);
};
