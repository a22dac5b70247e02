#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// What the keys of a list of rows mean. Pure.
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

    /// Whether a key asks for the context menu: the Menu key, or Shift and F10.
    Q_INVOKABLE static bool asksForMenu(int key, int modifiers);
};
