#include "gallery/GalleryFixture.h"
#include "gallery/GalleryPoses.h"
#include "screens/Scene.h"

#include <QQuickItem>
#include <QRectF>

#include <map>

using namespace Qt::StringLiterals;

namespace {

/// Texts as no designer has thought of them.
const std::map<std::string, QString> hostileSamples = {
    {"long", QString(2'000, u'm') + u" word"_s.repeated(300)},
    {"line breaks", u"one\ntwo\r\nthree\u2028four\tfive"_s},
    {"right to left", u"העברה לאשפה \u202Etxt.exe"_s},
    {"no glyph", u"a\U0010FFFDb\uE123c\u0378"_s},
    {"markup", u"<b>bold</b> &amp; <img src='none.png'>"_s},
};

/// Where the letters of a text or a symbol are, within the item that draws them.
QRectF inkOf(const QQuickItem *text)
{
    const QSizeF ink(text->property("contentWidth").toDouble(), text->property("contentHeight").toDouble());
    const auto across = Qt::Alignment(text->property("effectiveHorizontalAlignment").toInt());
    const auto down = Qt::Alignment(text->property("verticalAlignment").toInt());
    const auto start = [](double room, double length, bool isAtEnd, bool isInMiddle) {
        return isAtEnd ? room - length : isInMiddle ? (room - length) / 2 : 0;
    };
    return {QPointF(start(text->width(), ink.width(), across & Qt::AlignRight, across & Qt::AlignHCenter),
                    start(text->height(), ink.height(), down & Qt::AlignBottom, down & Qt::AlignVCenter)),
            ink};
}

bool isInk(const QQuickItem *item)
{
    return (item->inherits("QQuickText") || item->inherits("QQuickTextInput"))
           && !item->property("text").toString().isEmpty();
}

QString shown(const QQuickItem *text)
{
    const QVariant name = text->property("name"); // of a symbol
    return name.isValid() ? name.toString() : text->property("text").toString();
}

} // namespace

TEST_F(GalleryTest, keepsTextsOfAllKindsInsideOfTheirControls)
{
    for (const auto &hostile : hostileSamples) {
        const auto &kind = hostile.first;
        gallery->poses().setSample(hostile.second);
        settle();
        forEachCell([&kind](const QQuickItem *, QQuickItem *cell) {
            const QRectF room = cell->mapRectToScene(QRectF(0, 0, cell->width(), cell->height()));
            for (QQuickItem *text : scene::texts(cell)) {
                EXPECT_TRUE(room.adjusted(-1, -1, 1, 1).contains(scene::seen(text)))
                    << kind << ": " << scene::typeName(text).toStdString();
                EXPECT_LE(text->property("contentWidth").toDouble(), text->width() + 1) << kind;
            }
        });
    }
}

TEST_F(GalleryTest, beginsTextsAtTheRightWhereTheLayoutIsMirrored)
{
    int seen = 0;
    forEachCell([&seen](const QQuickItem *, QQuickItem *cell) {
        if (told(cell, "pose") != u"right to left"_s)
            return;
        QQuickItem *stage =
            scene::item(cell, [](QQuickItem *item) { return item->objectName() == u"stage"_s; });
        for (const QQuickItem *text : scene::texts(stage)) {
            ++seen;
            EXPECT_NE(text->property("effectiveHorizontalAlignment").toInt(), Qt::AlignLeft)
                << shown(text).toStdString();
        }
    });
    EXPECT_GT(seen, 40);
}

TEST_F(GalleryTest, keepsTextsAndSymbolsApart)
{
    int pairs = 0;
    forEachCell([&pairs](const QQuickItem *, QQuickItem *cell) {
        const std::vector<QQuickItem *> inks = scene::items(cell, isInk);
        for (auto one = inks.begin(); one != inks.end(); ++one) {
            for (auto other = one + 1; other != inks.end(); ++other) {
                ++pairs;
                const QRectF both = scene::seen(*one, inkOf(*one)) & scene::seen(*other, inkOf(*other));
                EXPECT_FALSE(both.width() > 1 && both.height() > 1)
                    << '"' << shown(*one).toStdString() << "\" and \"" << shown(*other).toStdString() << '"';
            }
        }
    });
    EXPECT_GT(pairs, 500);
}
