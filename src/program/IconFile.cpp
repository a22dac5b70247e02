#include "program/IconFile.h"

#include <QBuffer>
#include <QImageReader>
#include <QtEndian>

#include <algorithm>
#include <optional>

namespace {

constexpr qsizetype headSize =
    8; // of a set and of each of its entries: a sign of four letters, then the length with it
constexpr QByteArrayView setSign("icns");
constexpr QByteArrayView pngSign("\x89PNG\r\n\x1a\n");
constexpr qsizetype pngHeadSize = 24; // the sign, the length and name of the first part, its width and height

quint32 numberAt(QByteArrayView bytes, qsizetype offset)
{
    return qFromBigEndian<quint32>(bytes.data() + offset);
}

/// The longer side of a PNG as it tells it itself. None for what is none, or too large.
std::optional<int> sideOf(QByteArrayView png)
{
    if (png.size() < pngHeadSize || !png.startsWith(pngSign))
        return std::nullopt;
    const quint32 side = std::max(numberAt(png, 16), numberAt(png, 20));
    if (side == 0 || side > static_cast<quint32>(iconfile::largestSide))
        return std::nullopt;
    return static_cast<int>(side);
}

/// Of the PNGs of a set the smallest that fills `wanted` pixels, else the largest.
QByteArrayView bestOf(QByteArrayView set, int wanted)
{
    QByteArrayView best;
    int bestSide = 0;
    for (qsizetype at = headSize; set.size() - at >= headSize;) {
        const auto length = static_cast<qsizetype>(numberAt(set, at + 4));
        if (length < headSize || length > set.size() - at)
            break;
        const QByteArrayView entry = set.sliced(at + headSize, length - headSize);
        const int side = sideOf(entry).value_or(0);
        const bool isBetter = bestSide < wanted ? side > bestSide : side >= wanted && side < bestSide;
        if (isBetter) {
            best = entry;
            bestSide = side;
        }
        at += length;
    }
    return best;
}

} // namespace

QImage iconfile::picture(const QByteArray &content, QSize wanted)
{
    const int side = std::max({wanted.width(), wanted.height(), 1});
    const QByteArrayView view(content);
    const QByteArrayView png = view.startsWith(setSign) ? bestOf(view, side) : view;
    if (!sideOf(png))
        return {};
    QByteArray bytes = QByteArray::fromRawData(png.data(), png.size());
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer, QByteArrayLiteral("png"));
    QImage image = reader.read();
    if (std::max(image.width(), image.height()) <= side)
        return image;
    return image.scaled(side, side, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}
