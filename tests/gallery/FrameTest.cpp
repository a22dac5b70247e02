#include "controls/Pill.h"
#include "gallery/GalleryFixture.h"
#include "screens/Scene.h"

#include <QColor>
#include <QImage>
#include <QQuickItem>
#include <QQuickWindow>

#include <algorithm>
#include <cmath>
#include <memory>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

bool isNear(QRgb one, QRgb other)
{
    constexpr int shade = 12; // of 255
    return std::abs(qRed(one) - qRed(other)) < shade && std::abs(qGreen(one) - qGreen(other)) < shade
           && std::abs(qBlue(one) - qBlue(other)) < shade;
}

/// The colour of the line around an item that shows one: of a pill, or of the toolkit's rectangle. One with round ends is
/// measured by its roundness.
std::optional<QColor> frameColor(const QQuickItem *item)
{
    QColor color = Qt::transparent;
    if (const auto *pill = qobject_cast<const Pill *>(item))
        color = pill->openEdges() || pill->radius() >= pill->height() / 2 ? QColor(Qt::transparent)
                                                                          : pill->borderColor();
    else if (const auto *border = item->property("border").value<QObject *>())
        color = border->property("color").value<QColor>();
    const bool isSeen = color.alpha() == 255 && color != item->property("color").value<QColor>()
                        && color != Qt::black; // that is the toolkit's for none
    return isSeen ? std::optional(color) : std::nullopt;
}

/// How thick the line is that is met first on the way from there, in pixels.
int thickness(const QImage &window, QPoint at, QPoint step, QRgb line)
{
    constexpr int furthest = 6;
    int steps = 0;
    for (; steps < furthest && !isNear(window.pixel(at), line); ++steps)
        at += step;
    int pixels = 0;
    for (; pixels < furthest && isNear(window.pixel(at), line); ++pixels)
        at += step;
    return pixels;
}

/// The same on the way from two pixels outside of a side into the frame: in the side's middle, or where that is covered near
/// it.
int sideOf(const QImage &window, const QRect &frame, QPoint step, QRgb line)
{
    constexpr int outside = 2;
    for (const double part : {0.5, 0.2, 0.8}) {
        const QPoint along(frame.x() + static_cast<int>(frame.width() * part),
                           frame.y() + static_cast<int>(frame.height() * part));
        const QPoint first = frame.topLeft() - QPoint(outside, outside);
        const QPoint last = frame.bottomRight() + QPoint(outside, outside);
        const QPoint from(step.x() > 0   ? first.x()
                          : step.x() < 0 ? last.x()
                                         : along.x(),
                          step.y() > 0   ? first.y()
                          : step.y() < 0 ? last.y()
                                         : along.y());
        if (const int pixels = thickness(window, from, step, line))
            return pixels;
    }
    return 0;
}

/// The lines at the left, the right, the top and the bottom.
std::vector<int> sidesOf(const QImage &window, const QRect &frame, QRgb line)
{
    return {sideOf(window, frame, {1, 0}, line), sideOf(window, frame, {-1, 0}, line),
            sideOf(window, frame, {0, 1}, line), sideOf(window, frame, {0, -1}, line)};
}

/// What is drawn between two pixels is drawn on the next one.
QRect pixelsOf(const QQuickItem *item, double ratio)
{
    const QRectF seen = scene::seen(item);
    return {(seen.topLeft() * ratio).toPoint(), (seen.size() * ratio).toSize()};
}

double ratioOf(const QImage &window)
{
    return static_cast<double>(window.width()) / GalleryTest::gallery->window().width();
}

std::unique_ptr<Pill> pillAt(const QPointF &place, const QSizeF &size)
{
    auto pill = std::make_unique<Pill>();
    pill->setParentItem(GalleryTest::gallery->window().contentItem());
    pill->setPosition(place);
    pill->setSize(size);
    pill->setRadius(8);
    pill->setColor(QColor(u"#58a6ff"_s));
    pill->setBorderColor(Qt::white);
    return pill;
}

} // namespace

TEST_F(GalleryTest, drawsAFrameAsThickOnAllSides)
{
    const QImage window = gallery->window().grabWindow();
    QStringList seen;
    const auto expectEven = [&](QQuickItem *within, const QString &what) {
        for (QQuickItem *item :
             scene::items(within, [](QQuickItem *framed) { return bool(frameColor(framed)); })) {
            if (!ofType(u"FocusRing"_s, item).empty())
                continue; // it covers the frame
            const std::vector<int> sides =
                sidesOf(window, pixelsOf(item, ratioOf(window)), frameColor(item)->rgb());
            EXPECT_GT(sides.front(), 0) << what.toStdString();
            EXPECT_EQ(sides, std::vector<int>(4, sides.front())) << what.toStdString();
            seen << what;
        }
    };
    forEachCell([&](const QQuickItem *section, QQuickItem *cell) {
        if (QStringList{u"normal"_s, u"disabled"_s, u"dragged over"_s}.contains(told(cell, "pose")))
            expectEven(cell, told(section, "control"));
    });
    const std::vector<QQuickItem *> popups = scene::items(
        gallery->window().contentItem(), [](QQuickItem *item) { return item->inherits("QQuickPopupItem"); });
    for (QQuickItem *popup : popups)
        expectEven(popup, u"a popup"_s);
    EXPECT_GT(seen.count(u"a popup"_s), 20);
    seen.removeDuplicates();
    EXPECT_GT(seen.size(), 15) << seen.join(u' ').toStdString();
}

TEST_F(GalleryTest, drawsEachDividerAsThick)
{
    const QImage window = gallery->window().grabWindow();
    const double ratio = ratioOf(window);
    const std::vector<QQuickItem *> dividers = ofType(u"Divider"_s);
    EXPECT_GT(dividers.size(), 10U);
    for (const QQuickItem *divider : dividers) {
        const QRect line = pixelsOf(divider, ratio);
        const bool isUpright = line.height() > line.width();
        const QPoint along = isUpright ? QPoint(0, 1) : QPoint(1, 0);
        const QPoint across = isUpright ? QPoint(1, 0) : QPoint(0, 1);
        int pixels = 0; // where nothing covers it, as a tab does
        for (int at = 0; pixels == 0 && at < std::max(line.width(), line.height()); ++at)
            pixels = thickness(window, line.topLeft() + at * along - 2 * across, across,
                               divider->property("color").value<QColor>().rgb());
        EXPECT_EQ(pixels, std::max(1, static_cast<int>(ratio))) << line.x() << ", " << line.y();
    }
}

TEST_F(GalleryTest, drawsALargePillAsASmallOne)
{
    constexpr int corner = 24; // points
    for (const QPointF &place : {QPointF(300, 10), QPointF(301, 11)}) {
        const auto small = pillAt(place, {60, 60});
        const QImage smallPicture = gallery->window().grabWindow();
        small->setVisible(false);
        const auto large = pillAt(place, {401, 201});
        const QImage largePicture = gallery->window().grabWindow();
        const double ratio = ratioOf(largePicture);
        const auto part = [ratio](const QImage &window, QPointF from) {
            return window.copy(QRectF(from * ratio, QSizeF(corner, corner) * ratio).toAlignedRect());
        };
        const QPointF before(-4, -4);
        EXPECT_EQ(part(smallPicture, place + before), part(largePicture, place + before)) << place.x();
        const QRect inside = pixelsOf(large.get(), ratio).adjusted(corner, 0, -corner, 0);
        for (int y = inside.top() - 4; y <= inside.bottom() + 4; ++y) {
            for (int x = inside.left(); x <= inside.right(); ++x)
                ASSERT_EQ(largePicture.pixel(x, y), largePicture.pixel(inside.left(), y)) << x << ", " << y;
        }
    }
}

TEST_F(GalleryTest, roundsAStackedBarAtItsOwnEndsOnly)
{
    const QImage window = gallery->window().grabWindow();
    const QRgb ground = gallery->window().color().rgb();
    int rounds = 0;
    forEachCell([&](const QQuickItem *section, QQuickItem *cell) {
        if (told(section, "control") != u"StackedBar"_s || told(cell, "pose") == u"focused"_s)
            return;
        QQuickItem *bar = ofType(u"StackedBar"_s, cell).front();
        for (const QQuickItem *part :
             scene::items(bar, [](QQuickItem *item) { return item->inherits("QQuickButton"); })) {
            const QRect place = pixelsOf(part, ratioOf(window));
            const QRect whole = pixelsOf(bar, ratioOf(window));
            for (const QPoint end :
                 {place.topLeft(), place.topRight(), place.bottomLeft(), place.bottomRight()}) {
                const bool isAtEnd = end.x() == whole.left() || end.x() == whole.right();
                rounds += isAtEnd ? 1 : 0;
                EXPECT_EQ(isNear(window.pixel(end), ground), isAtEnd) << end.x() << ", " << end.y();
            }
        }
    });
    EXPECT_GT(rounds, 8);
}
