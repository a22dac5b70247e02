#include "screens/Contrast.h"

#include "screens/Scene.h"

#include <QColor>
#include <QImage>
#include <QQuickItem>
#include <QQuickWindow>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace {

constexpr int shownLength = 40; // characters of a text in a report
constexpr int placeDepth = 6;   // types around it

bool isInk(const QQuickItem *item)
{
    return (item->inherits("QQuickText") || item->inherits("QQuickTextInput")
            || item->inherits("QQuickTextEdit"))
           && !item->property("text").toString().trimmed().isEmpty();
}

bool isSymbol(const QString &text)
{
    return text.size() == 1 && text.front().category() == QChar::Other_PrivateUse;
}

bool isPlaceholder(const QQuickItem *item)
{
    const QString text = item->property("text").toString();
    for (const QQuickItem *around = item->parentItem(); around; around = around->parentItem()) {
        if (const QVariant told = around->property("placeholder"); told.isValid())
            return told.toString() == text;
    }
    return false;
}

double needed(const QQuickItem *item)
{
    const bool isFaint =
        !item->isEnabled() || isSymbol(item->property("text").toString()) || isPlaceholder(item);
    return isFaint ? contrast::ofFaint : contrast::ofTexts;
}

double effectiveOpacity(const QQuickItem *item)
{
    double opacity = 1;
    for (; item; item = item->parentItem())
        opacity *= item->opacity();
    return opacity;
}

/// What is seen of the item, in pixels of the picture.
QRect seenPixels(const QQuickItem *item, double ratio, const QRect &picture)
{
    const QRectF seen = scene::seen(item);
    return QRectF(seen.topLeft() * ratio, seen.size() * ratio).toAlignedRect() & picture;
}

double linear(double part)
{
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double ratioOf(const QColor &one, const QColor &other)
{
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

QColor laidOver(const QColor &color, double opacity, const QColor &ground)
{
    const double share = color.alphaF() * opacity;
    const auto mixed = [share](float above, float below) {
        return static_cast<float>(share * above + (1 - share) * below);
    };
    return QColor::fromRgbF(mixed(color.redF(), ground.redF()), mixed(color.greenF(), ground.greenF()),
                            mixed(color.blueF(), ground.blueF()));
}

/// The two pictures of a window.
struct Pictures
{
    QImage whole;
    QImage ground; // without its texts

    /// The colours behind the ink of what is seen there, each once. Where nothing differs, the text can't be seen at all:
    /// then all there is.
    std::vector<QRgb> behindInk(const QRect &seen) const
    {
        std::vector<QRgb> behind;
        std::vector<QRgb> all;
        std::array last = {QRgb(0), QRgb(0)}; // of each: no colour of an opaque picture is 0
        for (int y = seen.top(); y <= seen.bottom(); ++y) {
            const auto *wholeLine = reinterpret_cast<const QRgb *>(whole.constScanLine(y));
            const auto *groundLine = reinterpret_cast<const QRgb *>(ground.constScanLine(y));
            for (int x = seen.left(); x <= seen.right(); ++x) {
                const bool isInk = wholeLine[x] != groundLine[x];
                if (last[isInk] == groundLine[x]) // as most are
                    continue;
                last[isInk] = groundLine[x];
                (isInk ? behind : all).push_back(groundLine[x]);
            }
        }
        std::vector<QRgb> &found = behind.empty() ? all : behind;
        std::sort(found.begin(), found.end());
        found.erase(std::unique(found.begin(), found.end()), found.end());
        return found;
    }
};

Pictures paint(QQuickWindow &window, const std::vector<QQuickItem *> &texts,
               const std::vector<QColor> &colors)
{
    Pictures pictures;
    pictures.whole = window.grabWindow().convertToFormat(QImage::Format_RGB32);
    for (QQuickItem *item : texts)
        item->setProperty("color", QColor(Qt::transparent));
    pictures.ground = window.grabWindow().convertToFormat(QImage::Format_RGB32);
    for (size_t i = 0; i < texts.size(); ++i)
        texts[i]->setProperty("color", colors[i]);
    return pictures;
}

/// The types around the item that are ours, from within.
QString place(const QQuickItem *item)
{
    QStringList types;
    for (; item && types.size() < placeDepth; item = item->parentItem()) {
        if (const QString type = scene::typeName(item); !type.isEmpty())
            types << type;
        if (const QVariant pose = item->property("pose"); pose.isValid())
            types << pose.toString();
    }
    return types.join(QStringLiteral(" < "));
}

/// What stands over the window, the frontmost last: popups, and the backdrops that dim what is behind them.
std::vector<QQuickItem *> layers(const QQuickWindow &window)
{
    const QQuickItem *overlay = scene::item(
        window.contentItem(), [](const QQuickItem *item) { return item->inherits("QQuickOverlay"); });
    std::vector<QQuickItem *> layers;
    for (QQuickItem *item : overlay ? overlay->childItems() : QList<QQuickItem *>()) {
        if (item->isVisible() && item->opacity() > 0)
            layers.push_back(item);
    }
    std::stable_sort(layers.begin(), layers.end(),
                     [](const QQuickItem *one, const QQuickItem *other) { return one->z() < other->z(); });
    return layers;
}

bool isPopup(const QQuickItem *item)
{
    return item->inherits("QQuickPopupItem");
}

/// What can be read and used: all of the window, or what stands in front of its last backdrop.
std::vector<QQuickItem *> front(const QQuickWindow &window)
{
    const std::vector<QQuickItem *> all = layers(window);
    const auto backdrop =
        std::find_if(all.rbegin(), all.rend(), [](const QQuickItem *item) { return !isPopup(item); });
    if (backdrop == all.rend())
        return {window.contentItem()};
    return {backdrop.base(), all.end()};
}

std::vector<QQuickItem *> inksOf(const std::vector<QQuickItem *> &roots)
{
    std::vector<QQuickItem *> inks;
    for (QQuickItem *root : roots) {
        const std::vector<QQuickItem *> found = scene::items(root, isInk);
        inks.insert(inks.end(), found.begin(), found.end());
    }
    return inks;
}

/// Whether a popup in front of it hides a part of the text.
bool isCovered(const QQuickItem *text, const std::vector<QQuickItem *> &layers)
{
    const QRectF place = text->mapRectToScene(QRectF(0, 0, text->width(), text->height()));
    const auto covers = [&place](const QQuickItem *layer) {
        const QRectF whole(0, 0, layer->width(), layer->height());
        return isPopup(layer) && place.intersects(layer->mapRectToScene(whole));
    };
    const auto nearest = std::find_if(layers.rbegin(), layers.rend(), [&](const QQuickItem *layer) {
        return layer->isAncestorOf(text) || covers(layer);
    });
    return nearest != layers.rend() && !(*nearest)->isAncestorOf(text);
}

QString report(const QQuickItem *item, double ratio, const QColor &ink, QRgb ground)
{
    const QString text = item->property("text").toString();
    return QStringLiteral("\"%1\" %2 of %3, %4 on %5 in %6")
        .arg(isSymbol(text) ? item->property("name").toString() : text.left(shownLength))
        .arg(ratio, 0, 'f', 2)
        .arg(needed(item))
        .arg(ink.name(), QColor(ground).name(), place(item));
}

} // namespace

namespace contrast {

Measure measure(QQuickWindow &window)
{
    const std::vector<QQuickItem *> texts = inksOf(front(window));
    std::vector<QColor> colors;
    for (const QQuickItem *item : texts)
        colors.push_back(item->property("color").value<QColor>());
    const Pictures pictures = paint(window, texts, colors);
    const double ratio = static_cast<double>(pictures.whole.width()) / window.width(); // pixels a point

    const std::vector<QQuickItem *> open = layers(window);
    Measure measure;
    for (size_t i = 0; i < texts.size(); ++i) {
        const QRect seen = seenPixels(texts[i], ratio, pictures.whole.rect());
        if (seen.isEmpty() || isCovered(texts[i], open))
            continue;
        ++measure.texts;
        double least = std::numeric_limits<double>::max();
        QString line;
        for (const QRgb ground : pictures.behindInk(seen)) {
            const QColor ink = laidOver(colors[i], effectiveOpacity(texts[i]), QColor(ground));
            if (const double found = ratioOf(ink, QColor(ground)); found < least) {
                least = found;
                line = report(texts[i], found, ink, ground);
            }
        }
        if (least < needed(texts[i]))
            measure.offenders << line;
    }
    measure.offenders.removeDuplicates();
    return measure;
}

} // namespace contrast
