#include "gallery/GalleryFixture.h"
#include "gallery/GalleryPoses.h"
#include "screens/Contrast.h"
#include "screens/Scene.h"

#include <QAccessible>
#include <QDir>
#include <QQuickItem>
#include <QQuickWindow>

#include <algorithm>
#include <map>

using namespace Qt::StringLiterals;

namespace {

/// What of `controls/` has no section, and why.
const std::map<QString, std::string> apart = {
    {u"Theme"_s, "colours and sizes"},
    {u"FocusRing"_s, "a part of each control that takes keys, and shown with it"},
    {u"TextRuler"_s, "measures texts"},
    {u"ButtonBase"_s, "what all buttons have in common"},
    {u"ButtonFace"_s, "the ground of each button"},
    {u"ButtonLabel"_s, "the word on each button"},
    {u"Crumb"_s, "a part of Breadcrumbs"},
    {u"DialogFrame"_s, "what all questions and messages have in common"},
    {u"DialogText"_s, "a part of each of them"},
    {u"FocusRow"_s, "what Segments and TabStrip have in common"},
    {u"Tip"_s, "makes the TipPopup, which is shown"},
    {u"RowMenu"_s, "a PopupMenu that knows its row"},
};

/// What is seen of the text: what scrolls is cut off by what it scrolls in.
QRectF seenOf(const QQuickItem *text)
{
    QRectF seen = text->mapRectToScene(QRectF(0, 0, text->width(), text->height()));
    for (const QQuickItem *around = text->parentItem(); around; around = around->parentItem()) {
        if (around->clip())
            seen &= around->mapRectToScene(QRectF(0, 0, around->width(), around->height()));
    }
    return seen;
}

/// Texts as no designer has thought of them.
const std::map<std::string, QString> hostileSamples = {
    {"long", QString(5'000, u'm') + u" word"_s.repeated(1'000)},
    {"line breaks", u"one\ntwo\r\nthree\u2028four\tfive"_s},
    {"right to left", u"העברה לאשפה \u202Etxt.exe"_s},
    {"no glyph", u"a\U0010FFFDb\uE123c\u0378"_s},
    {"markup", u"<b>bold</b> &amp; <img src='none.png'>"_s},
};

} // namespace

TEST_F(GalleryTest, hasASectionForEachControl)
{
    const std::vector<QQuickItem *> sections = ofType(u"GallerySection"_s);
    const QStringList files =
        QDir(QStringLiteral(QUILLMERE_SOURCE_DIR "/src/controls")).entryList({u"*.qml"_s});
    ASSERT_FALSE(files.isEmpty());
    for (const QString &file : files) {
        const QString control = file.chopped(4);
        const bool isShown = std::any_of(sections.begin(), sections.end(), [&](const QQuickItem *section) {
            return told(section, "control") == control;
        });
        EXPECT_NE(isShown, apart.contains(control))
            << control.toStdString() << " has a section, or is told apart, not both";
    }
}

TEST_F(GalleryTest, showsInEachCellTheControlThatItsSectionNames)
{
    forEachCell([](const QQuickItem *section, QQuickItem *cell) { EXPECT_TRUE(control(section, cell)); });
}

TEST_F(GalleryTest, writesTextsThatCanBeToldFromWhatIsBehindThem)
{
    for (const bool isDark : {true, false}) {
        gallery->setDark(isDark);
        settle();
        const contrast::Measure measure = contrast::measure(gallery->window());
        EXPECT_GT(measure.texts, 100);
        EXPECT_EQ(measure.offenders.join(u'\n').toStdString(), "") << (isDark ? "dark" : "light");
    }
}

TEST_F(GalleryTest, tellsRoleNameAndStateOfEachControl)
{
    forEachCell([](const QQuickItem *section, QQuickItem *cell) {
        const int role = section->property("role").toInt();
        if (role == QAccessible::NoRole)
            return;
        QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(control(section, cell));
        ASSERT_TRUE(spoken);
        EXPECT_EQ(spoken->role(), role);
        EXPECT_EQ(spoken->text(QAccessible::Name).toStdString(), told(cell, "word").toStdString());
        EXPECT_EQ(bool(spoken->state().checked), told(control(section, cell), "checked") == u"true"_s);
        EXPECT_FALSE(spoken->state().invisible);
    });
}

TEST_F(GalleryTest, namesEverythingThatTakesTheKeyboard)
{
    const std::vector<QQuickItem *> takers =
        scene::items(gallery->window().contentItem(), [](QQuickItem *item) {
            return item->activeFocusOnTab()
                   && !item->property("isDivider").toBool(); // which a menu passes over
        });
    ASSERT_FALSE(takers.empty());
    for (QQuickItem *item : takers) {
        QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(item);
        ASSERT_TRUE(spoken) << scene::typeName(item).toStdString();
        EXPECT_NE(spoken->text(QAccessible::Name).toStdString(), "") << scene::typeName(item).toStdString();
        EXPECT_TRUE(spoken->state().focusable) << scene::typeName(item).toStdString();
    }
}

TEST_F(GalleryTest, showsARingAroundWhatHasTheKeyboard)
{
    forEachCell([](const QQuickItem *section, QQuickItem *cell) {
        auto *item = qobject_cast<QQuickItem *>(control(section, cell));
        // A line, row or cell of theirs is lit instead.
        const bool isLit =
            QStringList{u"MenuLine"_s, u"RowList"_s, u"TileGrid"_s}.contains(told(section, "control"));
        if (!item || !item->activeFocusOnTab() || told(cell, "pose") != u"normal"_s || isLit)
            return;
        EXPECT_TRUE(ofType(u"FocusRing"_s, item).empty());
        item->forceActiveFocus(Qt::TabFocusReason);
        EXPECT_FALSE(ofType(u"FocusRing"_s, item).empty());
    });
}

TEST_F(GalleryTest, keepsTextsOfAllKindsInsideOfTheirControls)
{
    for (const auto &[kind, sample] : hostileSamples) {
        gallery->poses().setSample(sample);
        settle();
        forEachCell([&kind](const QQuickItem *, QQuickItem *cell) {
            const QRectF room = cell->mapRectToScene(QRectF(0, 0, cell->width(), cell->height()));
            for (QQuickItem *text : scene::texts(cell)) {
                EXPECT_TRUE(room.adjusted(-1, -1, 1, 1).contains(seenOf(text)))
                    << kind << ": " << scene::typeName(text).toStdString();
                EXPECT_LE(text->property("contentWidth").toDouble(), text->width() + 1) << kind;
            }
        });
    }
}

TEST_F(GalleryTest, isDrawnWithoutAWarning)
{
    EXPECT_FALSE(gallery->window().grabWindow().isNull());
}
