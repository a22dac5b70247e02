#include "DemoPictures.h"

#include <QBuffer>
#include <QColor>
#include <QImage>
#include <QPainter>
#include <QtEndian>

#include <array>

namespace {

QByteArray drawn(const QString &name, const QColor &tint, int side)
{
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QLinearGradient ground(0, 0, 0, side);
    ground.setColorAt(0, tint.lighter(118));
    ground.setColorAt(1, tint.darker(112));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ground);
    const double margin = side / 16.0;
    painter.drawRoundedRect(QRectF(margin, margin, side - 2 * margin, side - 2 * margin), side / 5.0,
                            side / 5.0);
    QFont font;
    font.setPixelSize(side / 2);
    font.setWeight(QFont::DemiBold);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(image.rect(), Qt::AlignCenter, name.left(1));
    painter.end();
    QByteArray png;
    QBuffer buffer(&png);
    image.save(&buffer, "png");
    return png;
}

QByteArray withHead(const char *sign, const QByteArray &content)
{
    std::array<char, 4> length = {};
    qToBigEndian(static_cast<quint32>(content.size() + 8), length.data());
    return sign + QByteArray(length.data(), 4) + content;
}

} // namespace

QByteArray demopictures::set(const QString &name, const QString &tint)
{
    const QColor color(tint);
    return withHead("icns",
                    withHead("ic07", drawn(name, color, 128)) + withHead("ic12", drawn(name, color, 64)));
}
