#include "controls/Pill.h"

#include <QImage>
#include <QPainter>
#include <QQuickWindow>
#include <QSGImageNode>

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

constexpr int margin = 2; // pixels around the shape; what is cut off between two pixels is one of them
constexpr int largePicture = 128 * 128; // pixels

/// Where a picture is cut into its two ends and what is drawn out between them, in the small one that is painted and in the
/// one that is drawn. One that is no longer than its ends is left whole.
struct Cuts
{
    Cuts(int length, double end)
    {
        if (2 * end + 1 >= length) {
            painted = drawn = {0, length};
            return;
        }
        const int cut = static_cast<int>(end);
        painted = {0, cut, cut + 1, 2 * cut + 1};
        drawn = {0, cut, length - cut, length};
    }

    std::vector<int> painted;
    std::vector<int> drawn;
};

/// Whole ones. What is open goes on in its neighbour, and leaves no gap ahead of that.
int pixels(double length, bool isOpen)
{
    return isOpen ? static_cast<int>(std::ceil(length)) : qRound(length);
}

QRectF between(const std::vector<int> &columns, size_t column, const std::vector<int> &rows, size_t row)
{
    return {QPointF(columns[column], rows[row]), QPointF(columns[column + 1], rows[row + 1])};
}

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

void Pill::setOpenEdges(Qt::Edges edges)
{
    change(openEdges_, edges, &Pill::openEdgesChanged);
}

QSGNode *Pill::updatePaintNode(QSGNode *node, UpdatePaintNodeData *)
{
    delete node;
    const double ratio = window()->effectiveDevicePixelRatio(); // pixels a point
    const QSize shape(pixels(width() * ratio, openEdges_ & (Qt::LeftEdge | Qt::RightEdge)),
                      pixels(height() * ratio, openEdges_ & (Qt::TopEdge | Qt::BottomEdge)));
    if (shape.isEmpty() || (color_.alpha() == 0 && borderColor_.alpha() == 0))
        return nullptr;
    return stretched(shape.grownBy(margins()), ratio);
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

QMargins Pill::margins() const
{
    const auto width = [this](Qt::Edge edge) { return openEdges_ & edge ? 0 : margin; };
    return {width(Qt::LeftEdge), width(Qt::TopEdge), width(Qt::RightEdge), width(Qt::BottomEdge)};
}

int Pill::linePixels(double ratio) const
{
    return borderColor_.alpha() > 0 ? std::max(1, static_cast<int>(borderWidth_ * ratio)) : 0;
}

QImage Pill::painted(const QSize &size, double ratio) const
{
    const int line = linePixels(ratio);
    // A line is drawn around its middle. Where the shape is open, it ends beyond the picture.
    const double beyond = std::min<double>(radius_ * ratio, size.width() + size.height()) + line + 1;
    const auto inset = [&](Qt::Edge edge) { return openEdges_ & edge ? -beyond : margin + line / 2.; };
    const QRectF shape =
        QRectF(QPointF(), size)
            .adjusted(inset(Qt::LeftEdge), inset(Qt::TopEdge), -inset(Qt::RightEdge), -inset(Qt::BottomEdge));
    const double radius = std::min({radius_ * ratio - line / 2., shape.width() / 2, shape.height() / 2});
    QImage picture(size, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(line > 0 ? QPen(borderColor_, line) : QPen(Qt::NoPen));
    painter.setBrush(color_);
    painter.drawRoundedRect(shape, radius, radius);
    return picture;
}

QSGNode *Pill::stretched(const QSize &size, double ratio) const
{
    const bool isLarge = size.width() * size.height() > largePicture;
    // What is drawn out begins where the sides are straight, and a little further: between two pixels a part may be drawn
    // with the line of pixels next to its own.
    const double corner =
        isLarge ? std::ceil(radius_ * ratio) + linePixels(ratio) + 2 * margin : size.width() + size.height();
    const Cuts across(size.width(), corner);
    const Cuts down(size.height(), corner);
    QSGTexture *texture =
        window()->createTextureFromImage(painted({across.painted.back(), down.painted.back()}, ratio));
    const QPointF origin(-margins().left(), -margins().top());
    auto *whole = new QSGNode;
    for (size_t row = 0; row + 1 < down.drawn.size(); ++row) {
        for (size_t column = 0; column + 1 < across.drawn.size(); ++column) {
            const QRectF pixels = between(across.drawn, column, down.drawn, row).translated(origin);
            const QRectF place(pixels.topLeft() / ratio, pixels.size() / ratio);
            QSGImageNode *part = window()->createImageNode();
            part->setTexture(texture);
            part->setOwnsTexture(!whole->firstChild());
            part->setFiltering(QSGTexture::Nearest); // it has just the pixels that it is drawn on
            part->setSourceRect(between(across.painted, column, down.painted, row));
            part->setRect(place);
            whole->appendChildNode(part);
        }
    }
    return whole;
}
