#include "controls/Pill.h"
#include "gallery/GalleryFixture.h"
#include "screens/Scene.h"

#include <QColor>
#include <QImage>
#include <QQuickItem>
#include <QQuickWindow>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <functional>
#include <memory>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

const QStringList roundControls = {u"FilterChip"_s, u"Badge"_s,        u"AgePill"_s,
                                   u"ShareBar"_s,   u"ToggleSwitch"_s, u"ScrollHandle"_s};

bool isGround(QRgb pixel, QRgb ground)
{
    constexpr int shade = 12; // of 255: fainter is the smoothing of an edge
    return std::abs(qRed(pixel) - qRed(ground)) < shade && std::abs(qGreen(pixel) - qGreen(ground)) < shade
           && std::abs(qBlue(pixel) - qBlue(ground)) < shade;
}

/// The smallest frame around all that differs from the ground.
QImage cropped(const QImage &picture, QRgb ground)
{
    QRect frame;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (!isGround(picture.pixel(x, y), ground))
                frame |= QRect(x, y, 1, 1);
        }
    }
    return picture.copy(frame);
}

/// How far a shape stands back from a side of its frame, line by line, in pixels.
std::vector<int> depths(int lines, int most, const std::function<QRgb(int line, int step)> &pixel,
                        QRgb ground)
{
    std::vector<int> depths;
    for (int line = 0; line < lines; ++line) {
        int step = 0;
        while (step < most && isGround(pixel(line, step), ground))
            ++step;
        depths.push_back(step);
    }
    return depths;
}

/// A side is straight between two round ends, which follow a circle. A pixel may be part of the circle's edge.
void expectRoundEnds(const std::vector<int> &side, double radius, const char *name)
{
    const int last = static_cast<int>(side.size()) - 1;
    const auto circle = [radius](double toMiddle) {
        const double inside = std::clamp(toMiddle, 0., radius);
        return radius - std::sqrt(radius * radius - inside * inside);
    };
    for (int line = 0; line <= last; ++line) {
        const int fromEnd = std::min(line, last - line);
        const int depth = side[static_cast<size_t>(line)];
        EXPECT_LE(depth, 1.15 * circle(radius - fromEnd - 0.5) + 0.75) << name << ", line " << line;
        EXPECT_GE(depth, 0.85 * circle(radius - fromEnd - 1) - 1.75) << name << ", line " << line;
    }
}

void expectPill(const QImage &picture, QRgb ground)
{
    const QImage shape = cropped(picture, ground);
    const int right = shape.width() - 1;
    const int bottom = shape.height() - 1;
    ASSERT_GT(std::min(right, bottom), 2);
    const double radius = std::min(shape.width(), shape.height()) / 2.;
    const auto expectSide = [&](const char *name, int lines, int most, const auto &pixel) {
        expectRoundEnds(depths(lines, most, pixel, ground), radius, name);
    };
    expectSide("left", bottom + 1, right, [&](int line, int step) { return shape.pixel(step, line); });
    expectSide("right", bottom + 1, right,
               [&](int line, int step) { return shape.pixel(right - step, line); });
    expectSide("top", right + 1, bottom, [&](int line, int step) { return shape.pixel(line, step); });
    expectSide("bottom", right + 1, bottom,
               [&](int line, int step) { return shape.pixel(line, bottom - step); });
}

/// What is seen of the item and a little around it, in a picture of its window.
QImage part(const QImage &window, const QQuickItem &item)
{
    constexpr double margin = 3;
    const double ratio = static_cast<double>(window.width()) / item.window()->width();
    const QRectF seen =
        item.mapRectToScene(QRectF(-margin, -margin, item.width() + 2 * margin, item.height() + 2 * margin));
    return window.copy(QRectF(seen.topLeft() * ratio, seen.size() * ratio).toAlignedRect());
}

/// The first and the last column in which something has that colour; before and behind the picture where nothing does.
std::pair<int, int> columnsOf(const QImage &picture, QRgb ink)
{
    std::pair<int, int> columns(picture.width(), -1);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (isGround(picture.pixel(x, y), ink))
                columns = {std::min(columns.first, x), std::max(columns.second, x)};
        }
    }
    return columns;
}

/// How many pixels of a line are met on the way through the middle, from the left, the right, the top and the bottom.
std::vector<int> lineWidths(const QImage &picture, QRgb ground)
{
    const QPoint middle = picture.rect().center();
    const auto width = [&](QPoint from, QPoint step) {
        int pixels = 0;
        for (QPoint at = from; at != middle && (pixels == 0 || !isGround(picture.pixel(at), ground));
             at += step)
            pixels += isGround(picture.pixel(at), ground) ? 0 : 1;
        return pixels;
    };
    const QPoint across(1, 0);
    const QPoint down(0, 1);
    return {width({0, middle.y()}, across), width({picture.width() - 1, middle.y()}, -across),
            width({middle.x(), 0}, down), width({middle.x(), picture.height() - 1}, -down)};
}

QRgb ground()
{
    return GalleryTest::gallery->window().color().rgb();
}

} // namespace

TEST_F(GalleryTest, drawsAPillEvenlyWhereverItStands)
{
    std::vector<std::unique_ptr<Pill>> pills;
    double x = 800;
    for (const QSizeF &size :
         {QSizeF(82, 22), QSizeF(81, 21), QSizeF(45, 18), QSizeF(100, 6), QSizeF(8, 8), QSizeF(64, 5)}) {
        for (const QColor &border : {QColor(Qt::transparent), QColor(Qt::white)}) {
            auto pill = std::make_unique<Pill>();
            pill->setParentItem(gallery->window().contentItem());
            pill->setPosition({x, border.alpha() > 0 ? 11. : 51.});
            pill->setSize(size);
            pill->setColor(QColor(u"#58a6ff"_s));
            pill->setBorderColor(border);
            pills.push_back(std::move(pill));
        }
        x += size.width() + 11;
    }
    const QImage window = gallery->window().grabWindow();
    for (const auto &pill : pills) {
        SCOPED_TRACE(testing::Message() << pill->width() << " x " << pill->height() << " at " << pill->x());
        expectPill(part(window, *pill), ground());
    }
}

TEST_F(GalleryTest, drawsAPillTheSameBetweenThePixels)
{
    for (const QSizeF &size : {QSizeF(82, 24), QSizeF(81, 23), QSizeF(6, 60)}) {
        std::vector<std::unique_ptr<Pill>> pills;
        for (const QPointF &place :
             {QPointF(800, 10), QPointF(901, 10), QPointF(1000, 11), QPointF(1101, 11)}) {
            auto pill = std::make_unique<Pill>();
            pill->setParentItem(gallery->window().contentItem());
            pill->setPosition(place);
            pill->setSize(size);
            pill->setBorderColor(Qt::white);
            pills.push_back(std::move(pill));
        }
        const QImage window = gallery->window().grabWindow();
        const QImage first = cropped(part(window, *pills.front()), ground());
        for (const auto &pill : pills) {
            EXPECT_EQ(cropped(part(window, *pill), ground()), first)
                << size.width() << " x " << size.height() << " at " << pill->x() << ", " << pill->y();
        }
    }
}

TEST_F(GalleryTest, drawsEachRoundControlEvenly)
{
    const QImage window = gallery->window().grabWindow();
    QStringList seen;
    forEachCell([&](const QQuickItem *section, QQuickItem *cell) {
        const QString type = GalleryTest::told(section, "control");
        const bool isLit = QStringList{u"hovered"_s, u"pressed"_s, u"focused"_s}.contains(told(cell, "pose"));
        if (!roundControls.contains(type)
            || (isLit && type == u"ToggleSwitch"_s)) // what lights that lies behind it
            return;
        seen << type;
        const std::vector<QQuickItem *> pills =
            scene::items(qobject_cast<QQuickItem *>(GalleryTest::control(section, cell)),
                         [](QQuickItem *item) { return qobject_cast<Pill *>(item) != nullptr; });
        ASSERT_FALSE(pills.empty());
        expectPill(part(window, *pills.front()), ground());
    });
    seen.removeDuplicates();
    EXPECT_EQ(seen.size(), roundControls.size());
}

TEST_F(GalleryTest, drawsTheMarkOfARowEvenly)
{
    const QImage window = gallery->window().grabWindow();
    int seen = 0;
    forEachCell([&](const QQuickItem *section, QQuickItem *cell) {
        if (GalleryTest::told(section, "control") != "RowBackground"
            || GalleryTest::told(cell, "pose") != "its menu is open")
            return;
        ++seen;
        const std::vector<int> widths = lineWidths(
            part(window, *qobject_cast<QQuickItem *>(GalleryTest::control(section, cell))), ground());
        EXPECT_GT(widths.front(), 0);
        EXPECT_EQ(widths, std::vector<int>(4, widths.front()));
    });
    EXPECT_EQ(seen, 1);
}

TEST_F(GalleryTest, setsTheWordOfABadgeInItsMiddle)
{
    const QImage window = gallery->window().grabWindow();
    int seen = 0;
    forEachCell([&](const QQuickItem *section, QQuickItem *cell) {
        if (GalleryTest::told(section, "control") != "Badge"
            || GalleryTest::told(section, "variant").isEmpty() // whose symbol stands ahead of it
            || GalleryTest::told(cell, "pose") != "normal")
            return;
        ++seen;
        QQuickItem *badge = qobject_cast<QQuickItem *>(GalleryTest::control(section, cell));
        const QImage picture = cropped(part(window, *badge), ground());
        const auto [first, last] = columnsOf(picture, badge->property("tint").value<QColor>().rgb());
        const double point =
            window.width() / static_cast<double>(gallery->window().width()); // the ends of letters differ
        EXPECT_NEAR(first, picture.width() - 1 - last, point)
            << GalleryTest::told(section, "variant").toStdString();
    });
    EXPECT_EQ(seen, 2);
}
