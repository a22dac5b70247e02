#include "gallery/GalleryPoses.h"

#include <QColor>
#include <QCoreApplication>
#include <QDragEnterEvent>
#include <QHoverEvent>
#include <QImage>
#include <QMimeData>
#include <QQuickItem>
#include <QUrl>

#include <algorithm>
#include <functional>
#include <map>

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

/// Whether the ring is that of where the Tab key comes to first: not of a row's choices but one, nor of a button within
/// another stop.
bool isOfTheStop(const QQuickItem *ring)
{
    QList<int> policies; // of the controls around it, from within
    for (const QQuickItem *around = ring; around; around = around->parentItem()) {
        if (around->inherits("QQuickControl")) // newer toolkits give every item a policy
            policies << around->property("focusPolicy").toInt();
    }
    const auto stops =
        std::count_if(policies.begin(), policies.end(), [](int policy) { return policy & Qt::TabFocus; });
    return policies.isEmpty() || (stops == 1 && (policies.front() & Qt::TabFocus));
}

/// One item of a window has the keyboard. So that the gallery can show the look of each that could have it, only its ring
/// is shown; what has the keyboard in truth is seen by going there with the Tab key.
void showRing(QQuickItem *item)
{
    if (item->objectName() == "focusRing"_L1 && isOfTheStop(item))
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

QString GalleryPoses::picture()
{
    if (!picture_.isOpen() && picture_.open()) {
        QImage image(64, 64, QImage::Format_RGB32);
        image.fill(QColor(u"#1f9e9a"_s));
        image.save(&picture_, "png");
        picture_.flush();
    }
    return picture_.fileName();
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
    static const std::map<QString, void (*)(QQuickItem *)> acts = {
        {hovered, hover}, {pressed, press}, {dragged, dragOver}, {focused, showRing}};
    const auto act = acts.find(pose);
    if (act == acts.end())
        return;
    QMetaObject::invokeMethod(
        stage, [stage, act] { forEachBelow(stage, act->second); }, Qt::QueuedConnection);
}
