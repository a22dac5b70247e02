#include "screens/Scene.h"

#include <QQmlContext>
#include <QQuickItem>
#include <QtQml/qqml.h>
#include <QUrl>

#include <algorithm>

namespace {

constexpr double rowTolerance = 6; // points: texts of one row differ in height, not much in their middle

QRectF sceneRect(const QQuickItem *item)
{
    return item->mapRectToScene(QRectF(0, 0, item->width(), item->height()));
}

void collect(QQuickItem *item, const QRectF &clip, const scene::Condition &condition,
             std::vector<QQuickItem *> &found)
{
    if (!item->isVisible() || item->opacity() == 0)
        return;
    const QRectF rect = sceneRect(item);
    if (rect.intersects(clip) && condition(item))
        found.push_back(item);
    const QRectF inside = item->clip() ? clip.intersected(rect) : clip;
    const QList<QQuickItem *> children = item->childItems();
    for (QQuickItem *child : children)
        collect(child, inside, condition, found);
}

} // namespace

namespace scene {

std::vector<QQuickItem *> items(QQuickItem *root, const Condition &condition)
{
    std::vector<QQuickItem *> found;
    QQuickItem *top = root;
    while (top->parentItem())
        top = top->parentItem();
    collect(root, sceneRect(top), condition, found);
    return found;
}

QQuickItem *item(QQuickItem *root, const Condition &condition)
{
    const std::vector<QQuickItem *> found = items(root, condition);
    return found.empty() ? nullptr : found.front();
}

bool isText(const QQuickItem *item)
{
    if (!item->inherits("QQuickText"))
        return false;
    const QString text = item->property("text").toString();
    return !text.isEmpty() && text.front().category() != QChar::Other_PrivateUse;
}

QString typeName(const QObject *object)
{
    const QString type = QString::fromLatin1(object->metaObject()->className());
    if (const qsizetype end = type.indexOf(QStringLiteral("_QML")); end > 0)
        return type.left(end);
    // A type that adds no property goes under the name of what it is made of; the file of its context tells it.
    const QQmlContext *context = qmlContext(object);
    return context && context->contextObject() == object
               ? context->baseUrl().fileName().chopped(qstrlen(".qml"))
               : QString();
}

QRectF seen(const QQuickItem *item, const QRectF &part)
{
    QRectF seen = item->mapRectToScene(part);
    for (const QQuickItem *around = item->parentItem(); around; around = around->parentItem()) {
        if (around->clip())
            seen &= sceneRect(around);
    }
    return seen;
}

QRectF seen(const QQuickItem *item)
{
    return seen(item, QRectF(0, 0, item->width(), item->height()));
}

std::vector<QQuickItem *> texts(QQuickItem *root)
{
    std::vector<QQuickItem *> found = items(root, isText);
    const auto middle = [](const QQuickItem *item) { return sceneRect(item).center().y(); };
    std::stable_sort(found.begin(), found.end(), [&middle](const QQuickItem *left, const QQuickItem *right) {
        return middle(left) < middle(right);
    });
    for (auto row = found.begin(); row != found.end();) {
        const double line = middle(*row);
        const auto end = std::find_if(
            row, found.end(), [&](const QQuickItem *item) { return middle(item) - line > rowTolerance; });
        std::stable_sort(row, end, [](const QQuickItem *left, const QQuickItem *right) {
            return sceneRect(left).left() < sceneRect(right).left();
        });
        row = end;
    }
    return found;
}

} // namespace scene
