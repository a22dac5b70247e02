#include "disk/TreemapView.h"

#include "base/Paths.h"
#include "common/Formatters.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double gap = 2; // points between neighbours, half of it on each side of a tile
constexpr double leastLabelWidth = 55;
constexpr double leastLabelHeight = 28;

const QString darkLabel = QStringLiteral("#0d1117");
const QString lightLabel = QStringLiteral("#ffffff");

/// Near-black on light tiles and white on dark ones, by the relative luminance of sRGB.
QString labelColor(const QString &tileColor)
{
    const Color color = colorFromHex(tileColor);
    const auto linear = [](double component) {
        return component <= 0.04045 ? component / 12.92 : std::pow((component + 0.055) / 1.055, 2.4);
    };
    const double luminance =
        0.2126 * linear(color.red) + 0.7152 * linear(color.green) + 0.0722 * linear(color.blue);
    return luminance > 0.18 ? darkLabel : lightLabel; // equal contrast at 0.18
}

/// The other of the two, so that a tile that lets it through reads better, not worse, whatever the card below is.
QString groundColor(const QString &tileColor)
{
    return labelColor(tileColor) == darkLabel ? lightLabel : darkLabel;
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

bool hasLabel(const TreemapItem &item)
{
    return item.rect.width() > leastLabelWidth && item.rect.height() > leastLabelHeight;
}

} // namespace

TreemapView::TreemapView(QObject *parent)
    : QObject(parent)
    , tiles_({
          {"tileName", [](const TreemapItem &item) { return paths::inOneLine(item.name); }},
          {"sizeText", [](const TreemapItem &item) { return tileSizeText(item.size); }},
          {"tipText", tipText},
          {"tileColor", [](const TreemapItem &item) { return colorText(item.color); }},
          {"labelColor", [](const TreemapItem &item) { return labelColor(item.color); }},
          {"groundColor", [](const TreemapItem &item) { return groundColor(item.color); }},
          {"tileX", [](const TreemapItem &item) { return item.rect.x() + gap / 2; }},
          {"tileY", [](const TreemapItem &item) { return item.rect.y() + gap / 2; }},
          {"tileWidth", [](const TreemapItem &item) { return std::max(item.rect.width() - gap, 0.0); }},
          {"tileHeight", [](const TreemapItem &item) { return std::max(item.rect.height() - gap, 0.0); }},
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

void TreemapView::resize(double width, double height)
{
    width_ = width;
    height_ = height;
    layOut();
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
