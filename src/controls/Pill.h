#pragma once

#include <QColor>
#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

/// A bar, pill or ring with round ends, whole at every scale. Qt Quick's own rectangle is put together of corners and sides
/// that each take whole points where it is drawn in software: at a scale of 1.5 they stand out by a pixel against each
/// other. This one is painted as one shape on the pixels of the device. Main thread.
class Pill : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)
    Q_PROPERTY(QColor borderColor READ borderColor WRITE setBorderColor NOTIFY borderColorChanged)
    Q_PROPERTY(double borderWidth READ borderWidth WRITE setBorderWidth NOTIFY borderWidthChanged)
    Q_PROPERTY(double radius READ radius WRITE setRadius NOTIFY radiusChanged)

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

    void paint(QPainter *painter) override;

signals:
    void colorChanged();
    void borderColorChanged();
    void borderWidthChanged();
    void radiusChanged();

private:
    template<typename Value>
    void change(Value &value, const Value &next, void (Pill::*told)());

    QColor color_ = Qt::transparent;
    QColor borderColor_ = Qt::transparent;
    double borderWidth_ = 1;
    double radius_ = 1e6; // round ends
};
