#pragma once

#include <QRectF>
#include <QString>

#include <functional>
#include <vector>

class QObject;
class QQuickItem;

/// What a person sees of a Qt Quick scene: items that are visible, not faded out and not clipped away.
namespace scene {

using Condition = std::function<bool(QQuickItem *item)>;

/// The items on view at and below `root` that fulfil the condition, parents first.
std::vector<QQuickItem *> items(QQuickItem *root, const Condition &condition);

/// The first of them; null for none.
QQuickItem *item(QQuickItem *root, const Condition &condition);

/// True for a text that is words, not a symbol.
bool isText(const QQuickItem *item);

/// The QML type that the object is made from, where that is one of ours: "ActionButton"; empty for others.
QString typeName(const QObject *object);

/// What is seen of that part of the item, in the window: what scrolls is cut off by what it scrolls in.
QRectF seen(const QQuickItem *item, const QRectF &part);
QRectF seen(const QQuickItem *item); ///< of all of it

/// The texts on view, in reading order.
std::vector<QQuickItem *> texts(QQuickItem *root);

} // namespace scene
