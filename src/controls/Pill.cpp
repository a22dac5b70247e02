#include "controls/Pill.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

Pill::Pill(QQuickItem *parent)
    : QQuickPaintedItem(parent)
{
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

void Pill::paint(QPainter *painter)
{
    const double ratio = painter->transform().m11(); // pixels a point
    const QSizeF pixels(std::round(width() * ratio), std::round(height() * ratio));
    const bool hasBorder = borderColor_.alpha() > 0;
    const double line = hasBorder ? std::max(1., std::floor(borderWidth_ * ratio)) : 0;
    // A line is drawn around its middle.
    const QRectF shape = QRectF(QPointF(0, 0), pixels).adjusted(line / 2, line / 2, -line / 2, -line / 2);
    const double radius = std::min({radius_ * ratio - line / 2, shape.width() / 2, shape.height() / 2});
    painter->resetTransform();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(hasBorder ? QPen(borderColor_, line) : QPen(Qt::NoPen));
    painter->setBrush(color_);
    painter->drawRoundedRect(shape, radius, radius);
}
