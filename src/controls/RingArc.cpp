#include "controls/RingArc.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

RingArc::RingArc(QQuickItem *parent)
    : QQuickPaintedItem(parent)
{
}

void RingArc::setShare(double share)
{
    share_ = std::isnan(share) ? 0 : std::clamp(share, 0.0, 1.0);
    show();
}

void RingArc::setStart(double start)
{
    start_ = std::isfinite(start) ? std::fmod(start, 360.0) : 0;
    show();
}

void RingArc::setColor(const QColor &color)
{
    color_ = color;
    show();
}

void RingArc::setTrack(const QColor &track)
{
    track_ = track;
    show();
}

void RingArc::show()
{
    emit changed();
    update();
}

void RingArc::paint(QPainter *painter)
{
    constexpr int sixteenths = 16; // the painter's unit of a degree
    const double size = std::min(width(), height());
    const double line = std::max(1.5, size / 7);
    const QRectF ring((width() - size + line) / 2, (height() - size + line) / 2, size - line, size - line);
    if (ring.width() <= 0)
        return;
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(track_, line));
    painter->drawEllipse(ring);
    painter->setPen(QPen(color_, line, Qt::SolidLine, Qt::FlatCap));
    painter->drawArc(ring, static_cast<int>(std::lround((90 - start_) * sixteenths)),
                     static_cast<int>(std::lround(-share_ * 360 * sixteenths)));
}
