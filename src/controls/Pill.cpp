#include "controls/Pill.h"

#include <QImage>
#include <QPainter>
#include <QQuickWindow>
#include <QSGImageNode>

#include <algorithm>
#include <cmath>

namespace {

constexpr int margin = 2; // pixels around the shape; what is cut off between two pixels is one of them

} // namespace

Pill::Pill(QQuickItem *parent)
    : QQuickItem(parent)
{
    setFlag(ItemHasContents);
}

template<typename Value>
void Pill::change(Value &value, const Value &next, void (Pill::*told)())
{
    if (value == next)
        return;
    value = next;
    update();
    emit(this->*told)();
}

void Pill::setColor(const QColor &color)
{
    change(color_, color, &Pill::colorChanged);
}

void Pill::setBorderColor(const QColor &color)
{
    change(borderColor_, color, &Pill::borderColorChanged);
}

void Pill::setBorderWidth(double width)
{
    change(borderWidth_, width, &Pill::borderWidthChanged);
}

void Pill::setRadius(double radius)
{
    change(radius_, radius, &Pill::radiusChanged);
}

QSGNode *Pill::updatePaintNode(QSGNode *node, UpdatePaintNodeData *)
{
    const double ratio = window()->effectiveDevicePixelRatio(); // pixels a point
    const QSize shape(qRound(width() * ratio), qRound(height() * ratio));
    if (shape.isEmpty() || (color_.alpha() == 0 && borderColor_.alpha() == 0)) {
        delete node;
        return nullptr;
    }
    QImage picture(shape + QSize(2 * margin, 2 * margin), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    paint(picture, ratio);
    auto *image = static_cast<QSGImageNode *>(node);
    if (!image) {
        image = window()->createImageNode();
        image->setOwnsTexture(true);
        image->setFiltering(QSGTexture::Nearest); // it has just the pixels that it is drawn on
    }
    image->setTexture(window()->createTextureFromImage(picture));
    image->setRect(QRectF(QPointF(-margin, -margin) / ratio, QSizeF(picture.size()) / ratio));
    image->setSourceRect(picture.rect());
    return image;
}

void Pill::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    if (newGeometry.size() != oldGeometry.size())
        update();
    QQuickItem::geometryChange(newGeometry, oldGeometry);
}

void Pill::itemChange(ItemChange change, const ItemChangeData &value)
{
    if (change == ItemDevicePixelRatioHasChanged)
        update();
    QQuickItem::itemChange(change, value);
}

void Pill::paint(QImage &picture, double ratio) const
{
    const bool hasBorder = borderColor_.alpha() > 0;
    const double line = hasBorder ? std::max(1., std::floor(borderWidth_ * ratio)) : 0;
    // A line is drawn around its middle.
    const double inset = margin + line / 2;
    const QRectF shape = QRectF(picture.rect()).adjusted(inset, inset, -inset, -inset);
    const double radius = std::min({radius_ * ratio - line / 2, shape.width() / 2, shape.height() / 2});
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(hasBorder ? QPen(borderColor_, line) : QPen(Qt::NoPen));
    painter.setBrush(color_);
    painter.drawRoundedRect(shape, radius, radius);
}
