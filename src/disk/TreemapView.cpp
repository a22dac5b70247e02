#include "disk/TreemapView.h"

#include "base/Paths.h"
#include "common/Formatters.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double gap = 2; // points between neighbours
constexpr double opacityUnderPointer = 0.8;
constexpr double leastLabelWidth = 55;
constexpr double leastLabelHeight = 28;

const QString darkLabel = QStringLiteral("#0d1117");
const QString lightLabel = QStringLiteral("#ffffff");

double luminance(const Color &color)
{
    const auto linear = [](double component) {
        return component <= 0.04045 ? component / 12.92 : std::pow((component + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.red) + 0.7152 * linear(color.green) + 0.0722 * linear(color.blue);
}

/// Near-black on light tiles and white on dark ones, by the relative luminance of sRGB.
QString labelColor(const QString &tileColor)
{
    return luminance(colorFromHex(tileColor)) > 0.18 ? darkLabel : lightLabel; // equal contrast at 0.18
}

/// White, so that every tile lightens as it lets it through, except where a white label would not read well then.
QString groundColor(const QString &tileColor)
{
    constexpr double mostBelowWhite = 1.05 / 4.5 - 0.05; // the luminance that white has a contrast of 4.5 on
    if (labelColor(tileColor) == darkLabel)
        return lightLabel;
    const Color tile = colorFromHex(tileColor);
    const auto hovered = [](double part) { return part * opacityUnderPointer + 1 - opacityUnderPointer; };
    return luminance({hovered(tile.red), hovered(tile.green), hovered(tile.blue)}) <= mostBelowWhite
               ? lightLabel
               : darkLabel;
}

QString tileSizeText(double bytes)
{
    constexpr double tooMany = 0x1p62; // beyond it a double may not fit the count's type
    return sizeText(static_cast<qint64>(std::min(bytes, tooMany)));
}

/// Both texts of a tile, whichever of them it has room to show.
QString tipText(const TreemapItem &item)
{
    return QStringLiteral("%1 · %2").arg(paths::inOneLine(item.name), tileSizeText(item.size));
}

/// Where a tile begins and how far it reaches between two edges, in points. The edges are laid on pixels before the gap is
/// taken off, so that it is as wide everywhere.
struct Stretch
{
    Stretch(double begin, double end, double pixelRatio)
    {
        const double gapPixels = std::round(gap * pixelRatio);
        const double ahead = std::floor(gapPixels / 2);
        const double first = std::round(begin * pixelRatio);
        start = (first + ahead) / pixelRatio;
        length = std::max(std::round(end * pixelRatio) - first - gapPixels, 0.) / pixelRatio;
    }

    double start;
    double length;
};

bool hasLabel(const TreemapItem &item)
{
    return item.rect.width() > leastLabelWidth && item.rect.height() > leastLabelHeight;
}

} // namespace

TreemapView::TreemapView(QObject *parent)
    : QObject(parent)
    , hoveredOpacity(opacityUnderPointer)
    , tiles_({
          {"tileName", [](const TreemapItem &item) { return paths::inOneLine(item.name); }},
          {"sizeText", [](const TreemapItem &item) { return tileSizeText(item.size); }},
          {"tipText", tipText},
          {"tileColor", [](const TreemapItem &item) { return colorText(item.color); }},
          {"labelColor", [](const TreemapItem &item) { return labelColor(item.color); }},
          {"groundColor", [](const TreemapItem &item) { return groundColor(item.color); }},
          {"tileX", [this](const TreemapItem &item) { return drawn(item.rect).x(); }},
          {"tileY", [this](const TreemapItem &item) { return drawn(item.rect).y(); }},
          {"tileWidth", [this](const TreemapItem &item) { return drawn(item.rect).width(); }},
          {"tileHeight", [this](const TreemapItem &item) { return drawn(item.rect).height(); }},
          {"hasLabel", hasLabel},
      })
{
}

void TreemapView::setCategories(std::vector<StorageCategory> categories)
{
    sorted_ = sortedForTreemap(std::move(categories));
    setHoveredIndex(-1);
    layOut();
}

void TreemapView::resize(double width, double height, double pixelRatio)
{
    width_ = width;
    height_ = height;
    pixelRatio_ = pixelRatio;
    layOut();
}

QRectF TreemapView::drawn(const QRectF &rect) const
{
    const Stretch across(rect.left(), rect.right(), pixelRatio_);
    const Stretch down(rect.top(), rect.bottom(), pixelRatio_);
    return {across.start, down.start, across.length, down.length};
}

void TreemapView::layOut()
{
    tiles_.update(layoutTreemap(sorted_, width_, height_),
                  [](const TreemapItem &left, const TreemapItem &right) { return left.name == right.name; });
}

void TreemapView::hover(int index)
{
    setHoveredIndex(index);
}

void TreemapView::leave(int index)
{
    if (hoveredIndex_ == index) // the pointer may have entered the next tile before it left this one
        setHoveredIndex(-1);
}

void TreemapView::setHoveredIndex(int index)
{
    if (hoveredIndex_ == index)
        return;
    hoveredIndex_ = index;
    emit hoveredIndexChanged();
}

void TreemapView::tap(int index)
{
    if (onTap && index >= 0 && index < static_cast<int>(sorted_.size()))
        onTap(
            StorageCategory(sorted_[static_cast<size_t>(index)])); // a copy: the callback may change the list
}
