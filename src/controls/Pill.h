#pragma once

#include <QColor>
#include <QMargins>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

class QImage;

/// A bar, pill or ring with round ends, whole at every scale. Qt Quick's own rectangle is put together of corners and sides
/// that each take whole points where it is drawn in software: at a scale of 1.5 they stand out by a pixel against each
/// other. This one is painted as one shape on the pixels of the device. It may stand between two of them, as each second
/// point does at that scale: then it is drawn on the next one, whole, since its picture ends beyond it on all sides.
/// A large one is put together of its corners, of sides that are drawn out, and of its middle, so that it holds no large
/// picture. Main thread.
class Pill : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)
    Q_PROPERTY(QColor borderColor READ borderColor WRITE setBorderColor NOTIFY borderColorChanged)
    Q_PROPERTY(double borderWidth READ borderWidth WRITE setBorderWidth NOTIFY borderWidthChanged)
    Q_PROPERTY(double radius READ radius WRITE setRadius NOTIFY radiusChanged)
    Q_PROPERTY(Qt::Edges openEdges READ openEdges WRITE setOpenEdges NOTIFY openEdgesChanged)

public:
    explicit Pill(QQuickItem *parent = nullptr);

    QColor color() const { return color_; }
    void setColor(const QColor &color);

    QColor borderColor() const { return borderColor_; } ///< none is drawn where it is transparent
    void setBorderColor(const QColor &color);

    double borderWidth() const { return borderWidth_; } ///< points; whole pixels are drawn, one at least
    void setBorderWidth(double width);

    double radius() const { return radius_; } ///< points; at most half of the height and the width
    void setRadius(double radius);

    Qt::Edges openEdges() const
    {
        return openEdges_;
    } ///< where it goes on: no border and nothing round is there
    void setOpenEdges(Qt::Edges edges);

signals:
    void colorChanged();
    void borderColorChanged();
    void borderWidthChanged();
    void radiusChanged();
    void openEdgesChanged();

protected:
    QSGNode *updatePaintNode(QSGNode *node, UpdatePaintNodeData *data) override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    void itemChange(ItemChange change, const ItemChangeData &value) override;

private:
    QMargins margins() const; ///< pixels around the shape in its picture
    int linePixels(double ratio) const;
    /// Paints it as large as the picture is.
    QImage painted(const QSize &size, double ratio) const;
    /// Its corners, from the picture of a small one, and between them its sides and its middle, drawn out to that size.
    QSGNode *stretched(const QSize &size, double ratio) const;

    template<typename Value>
    void change(Value &value, const Value &next, void (Pill::*told)());

    QColor color_ = Qt::transparent;
    QColor borderColor_ = Qt::transparent;
    double borderWidth_ = 1;
    double radius_ = 1e6; // round ends
    Qt::Edges openEdges_;
};
