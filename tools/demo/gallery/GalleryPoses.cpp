#include "gallery/GalleryPoses.h"

#include <QCoreApplication>
#include <QDragEnterEvent>
#include <QHoverEvent>
#include <QMimeData>
#include <QQuickItem>
#include <QUrl>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

const auto normal = u"normal"_s;
const auto hovered = u"hovered"_s;
const auto pressed = u"pressed"_s;
const auto focused = u"focused"_s;
const auto dragged = u"dragged over"_s;
const auto disabled = u"disabled"_s;
const auto longText = u"long text"_s;
const auto rightToLeft = u"right to left"_s;

void forEachBelow(QQuickItem *item, const std::function<void(QQuickItem *)> &act)
{
    for (QQuickItem *child : item->childItems()) {
        act(child);
        forEachBelow(child, act);
    }
}

void hover(QQuickItem *item)
{
    if (!item->acceptHoverEvents())
        return;
    const QPointF middle(item->width() / 2, item->height() / 2);
    QHoverEvent event(QEvent::HoverEnter, middle, middle, QPointF(-1, -1));
    QCoreApplication::sendEvent(item, &event);
}

void press(QQuickItem *item)
{
    for (const char *property : {"down", "pressed"}) {
        const int index = item->metaObject()->indexOfProperty(property);
        if (index >= 0 && item->metaObject()->property(index).isWritable()) {
            item->setProperty(property, true);
            return;
        }
    }
}

/// As if a folder were held over it.
void dragOver(QQuickItem *item)
{
    if (!(item->flags() & QQuickItem::ItemAcceptsDrops))
        return;
    QMimeData data;
    data.setUrls({QUrl(u"file:///home/robin"_s)});
    QDragEnterEvent event(QPoint(1, 1), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(item, &event);
}

/// One item of a window has the keyboard. So that the gallery can show the look of each that could have it, only its ring
/// is shown; what has the keyboard in truth is seen by going there with the Tab key.
void showRing(QQuickItem *item)
{
    if (item->objectName() == "focusRing"_L1)
        item->setVisible(true);
}

} // namespace

QStringList GalleryPoses::all()
{
    return {normal, hovered, pressed, focused, disabled, longText, rightToLeft};
}

QStringList GalleryPoses::still()
{
    return {normal, disabled, longText, rightToLeft};
}

void GalleryPoses::setSample(const QString &sample)
{
    if (sample_ == sample)
        return;
    sample_ = sample;
    emit sampleChanged();
}

QString GalleryPoses::word(const QString &pose, const QString &usual, const QString &sample)
{
    if (!sample.isEmpty())
        return sample;
    if (pose == longText)
        return u"A text that is far longer than the room that anyone has given to this control, or ever will"_s;
    return pose == rightToLeft ? u"העברה לאשפה"_s : usual;
}

void GalleryPoses::strike(QQuickItem *stage, const QString &pose)
{
    if (pose == hovered)
        forEachBelow(stage, hover);
    else if (pose == pressed)
        forEachBelow(stage, press);
    else if (pose == dragged)
        forEachBelow(stage, dragOver);
    else if (pose == focused)
        forEachBelow(stage, showRing);
}
