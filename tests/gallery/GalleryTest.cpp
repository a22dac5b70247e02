#include "gallery/GalleryFixture.h"
#include "gallery/GalleryPoses.h"
#include "screens/Contrast.h"
#include "screens/Scene.h"

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
    {u"CardRow"_s, "a ListRow on a CardSlice and a RowBackground, which are shown"},
    {u"KeyboardHeir"_s, "passes the keyboard on, and shows nothing"},
    {u"FocusRow"_s, "what Segments, TabStrip and StackedBar have in common"},
    {u"Tip"_s, "makes the TipPopup, which is shown"},
    {u"RemovableRow"_s, "what FolderRow and RuleRow have in common"},
    {u"RowMenu"_s, "a PopupMenu that knows its row"},
    {u"ViewHands"_s, "what RowList and TileGrid have in common, and nothing to see"},
};

/// What no section of a control shows of the usual poses, and why.
struct Lack
{
    QStringList poses;
    std::string reason;
};

const QStringList doings = {u"hovered"_s, u"pressed"_s, u"focused"_s}; // what a person does to a control
const QStringList off = {u"disabled"_s};
const QStringList longText = {u"long text"_s};
const QStringList wording = {u"long text"_s, u"right to left"_s};

const std::map<QString, Lack> lacks = {
    {u"AgePill"_s, {doings, "it only tells"}},
    {u"Badge"_s, {doings, "it only tells"}},
    {u"BodyText"_s, {doings, "it only tells"}},
    {u"CaptionText"_s, {doings, "it only tells"}},
    {u"Card"_s, {doings + off + wording, "a ground"}},
    {u"CardSlice"_s,
     {QStringList(u"normal"_s) + doings + off + wording, "a ground; its places are shown instead"}},
    {u"ChipRow"_s, {doings + longText, "its chips have a section"}},
    {u"ConfirmDialog"_s,
     {doings + off, "its buttons have sections, and it stands only while it can be answered"}},
    {u"Divider"_s, {QStringList(u"normal"_s) + doings + off + wording, "a line; its ways are shown instead"}},
    {u"ElidedText"_s, {doings, "it only tells"}},
    {u"EmptyState"_s, {doings, "it only tells"}},
    {u"Figure"_s, {doings, "it only tells"}},
    {u"FolderDrop"_s,
     {QStringList(u"normal"_s) + doings + off + wording,
      "it is seen only while a folder is dragged over it"}},
    {u"FolderRow"_s, {{u"focused"_s}, "as a ListRow"}},
    {u"FootBar"_s, {doings, "its button has a section"}},
    {u"ListRow"_s, {{u"focused"_s}, "the list has the keyboard, and the row is the current one"}},
    {u"LoadingLine"_s, {doings + longText, "it only tells; its text is short"}},
    {u"NumberField"_s,
     {{u"pressed"_s, u"long text"_s}, "a press only brings the keyboard; a number is short"}},
    {u"Picture"_s, {doings + wording, "it only tells, and has no text"}},
    {u"PlainAlert"_s, {doings + off, "as a ConfirmDialog"}},
    {u"PopupMenu"_s, {doings + off, "its lines have a section"}},
    {u"ProgressRing"_s, {doings + wording, "it only tells, and has no text"}},
    {u"ResultLine"_s, {doings, "its buttons have sections"}},
    {u"RowBackground"_s,
     {QStringList(u"focused"_s) + off + wording, "a ground: it shows which row is current"}},
    {u"RowList"_s, {doings + wording, "its rows have a section"}},
    {u"RuleRow"_s, {{u"focused"_s}, "as a ListRow"}},
    {u"ScanCommands"_s, {doings + longText, "its buttons have sections; their words are short"}},
    {u"ScanProgress"_s, {doings, "it only tells"}},
    {u"ScrollHandle"_s, {QStringList(u"focused"_s) + wording, "it takes no keys and has no text"}},
    {u"ShareBar"_s,
     {QStringList(u"normal"_s) + doings + off + wording, "it only tells; its shares are shown instead"}},
    {u"SheetFrame"_s, {doings + off, "as a ConfirmDialog"}},
    {u"Spinner"_s, {doings + wording, "it only tells, and has no text"}},
    {u"StackedBar"_s, {longText, "it has no text"}},
    {u"Symbol"_s, {doings + wording, "it only tells, and has no text"}},
    {u"TextPrompt"_s, {doings + off, "as a ConfirmDialog"}},
    {u"TileGrid"_s, {doings + wording, "its cells are those of its screen"}},
    {u"TipPopup"_s, {doings + off, "it goes when anything is done"}},
    {u"ToolHead"_s, {doings + longText, "its buttons have sections; a title is short"}},
};

/// The usual poses that none of the sections of that control shows.
QStringList posesLackedBy(const QString &control)
{
    QStringList lacked = GalleryPoses::all();
    for (const QQuickItem *section : GalleryTest::ofType(u"GallerySection"_s)) {
        for (const QString &pose : section->property("poses").toStringList()) {
            if (GalleryTest::told(section, "control") == control)
                lacked.removeAll(pose);
        }
    }
    return lacked;
}

bool isInnerRing(const QQuickItem *item)
{
    return item->objectName() == u"innerRing"_s;
}

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

TEST_F(GalleryTest, showsEachControlInAllPosesThatItCanTake)
{
    QStringList shown;
    for (const QQuickItem *section : ofType(u"GallerySection"_s))
        shown << told(section, "control");
    shown.removeDuplicates();
    for (const QString &control : shown) {
        const auto lack = lacks.find(control);
        const QStringList expected = lack == lacks.end() ? QStringList() : lack->second.poses;
        EXPECT_EQ(posesLackedBy(control).join(u", ").toStdString(), expected.join(u", ").toStdString())
            << control.toStdString();
    }
    for (const auto &[control, lack] : lacks)
        EXPECT_TRUE(shown.contains(control)) << control.toStdString();
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

TEST_F(GalleryTest, showsOneRingInACellOfWhatHasTheKeyboard)
{
    int cells = 0;
    forEachCell([&cells](const QQuickItem *section, QQuickItem *cell) {
        if (told(cell, "pose") != u"focused"_s || told(section, "control") == u"MenuLine"_s) // that is lit
            return;
        ++cells;
        EXPECT_EQ(ofType(u"FocusRing"_s, cell).size(), 1U);
        const bool isOnAccent =
            told(section, "variant") == u"primary"_s || told(section, "control") == u"StackedBar"_s;
        EXPECT_EQ(scene::item(cell, isInnerRing) != nullptr, isOnAccent)
            << "it needs a second line, or does not";
    });
    EXPECT_GT(cells, 15);
}

TEST_F(GalleryTest, isDrawnWithoutAWarning)
{
    EXPECT_FALSE(gallery->window().grabWindow().isNull());
}
