#pragma once

#include <QColor>
#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

/// A ring, and on it an arc that goes clockwise. Painted here and not put together of shapes: those have ragged edges where
/// the processor draws.
class RingArc : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    /// Of the whole ring, from 0 to 1; what lies outside, or is no number, is held to that.
    Q_PROPERTY(double share READ share WRITE setShare NOTIFY changed)
    /// Where the arc begins, in degrees clockwise from the top.
    Q_PROPERTY(double start READ start WRITE setStart NOTIFY changed)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY changed)
    Q_PROPERTY(QColor track READ track WRITE setTrack NOTIFY changed)

public:
    explicit RingArc(QQuickItem *parent = nullptr);

    double share() const { return share_; }
    void setShare(double share);
    double start() const { return start_; }
    void setStart(double start);
    QColor color() const { return color_; }
    void setColor(const QColor &color);
    QColor track() const { return track_; }
    void setTrack(const QColor &track);

    void paint(QPainter *painter) override;

signals:
    void changed();

private:
    void show();

    double share_ = 0;
    double start_ = 0;
    QColor color_ = Qt::black;
    QColor track_ = Qt::transparent;
};
