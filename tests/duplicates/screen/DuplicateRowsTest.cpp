#include "duplicates/screen/DuplicateRows.h"

#include "duplicates/screen/ShownGroups.h"

#include <QSignalSpy>

#include <limits>
#include <vector>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {
using DuplicateRowsTest = ShownGroups;
using Range = std::pair<int, int>;
} // namespace

TEST_F(DuplicateRowsTest, headTellsNumberSizeAndWaste)
{
    show({group(1000, {u"/home/ada/report.pdf"_s, u"/b/other.pdf"_s, u"/c/third.pdf"_s})});
    EXPECT_EQ(text(0, "title"), u"report.pdf"_s);
    EXPECT_EQ(text(0, "detail"), u"3 copies · 1000 B each · 2.0 KB wasted"_s);
    EXPECT_EQ(text(0, "spoken"), u"3 copies · 1000 B each · 2.0 KB wasted"_s);
    EXPECT_EQ(text(0, "trailing"), u"2.0 KB recoverable"_s);
    EXPECT_EQ(text(0, "badge") + text(0, "badgeSymbol") + text(0, "clickTip"), QString());
    EXPECT_TRUE(rowValue(&rows, 0, "isKept").toBool());
}

TEST_F(DuplicateRowsTest, headOfAGroupWithoutFilesIsUnknown)
{
    show({group(1000, {}), group(1000, {u"/a"_s, u"/b"_s})});
    EXPECT_EQ(texts("title"), u"Unknown a a b"_s);
    EXPECT_EQ(text(0, "detail"), u"0 copies · 1000 B each · 0 B wasted"_s);
    EXPECT_EQ(text(0, "trailing"), u"0 B recoverable"_s);
    EXPECT_TRUE(rowValue(&rows, 0, "isLast").toBool());
}

TEST_F(DuplicateRowsTest, headClampsSizesThatHaveNoText)
{
    show({group(qint64(1) << 60, {u"/a"_s, u"/b"_s})});
    EXPECT_EQ(text(0, "detail"), u"2 copies · 1024 TB each · 1024 TB wasted"_s);
}

TEST_F(DuplicateRowsTest, fileTellsNamePathAndDay)
{
    show({group(1000, {u"/home/ada/Papers/report.pdf"_s, u"/srv/report.pdf"_s, u"/home/adam/x"_s})});
    EXPECT_EQ(text(1, "title"), u"report.pdf"_s);
    EXPECT_EQ(text(1, "detail"), u"~/Papers/report.pdf"_s);
    EXPECT_EQ(text(2, "detail"), u"/srv/report.pdf"_s);
    EXPECT_EQ(text(3, "detail"), u"/home/adam/x"_s);
    EXPECT_EQ(text(1, "trailing"), u"Mar 1, 2026"_s);
    EXPECT_EQ(text(1, "spoken"), u"KEEP, ~/Papers/report.pdf, Mar 1, 2026"_s);
}

TEST_F(DuplicateRowsTest, fileWithoutADateHasADash)
{
    show({group(1000, {u"/a"_s, u"/b"_s})});
    groups[0].files[1].modified = dates::distantPast;
    EXPECT_EQ(text(2, "trailing"), u"—"_s);
    EXPECT_EQ(text(2, "spoken"), u"KEEP, /b, —"_s);
}

TEST_F(DuplicateRowsTest, fileTellsWhetherItStaysAndWhatAClickDoes)
{
    show({group(1000, {u"/a"_s, u"/b"_s})});
    groups[0].files[1].keep = false;
    EXPECT_TRUE(rowValue(&rows, 1, "isKept").toBool());
    EXPECT_EQ(text(1, "badge"), u"KEEP"_s);
    EXPECT_EQ(text(1, "badgeSymbol"), u"checkmark.shield.fill"_s);
    EXPECT_EQ(text(1, "clickTip"), u"Click to mark this copy for deletion"_s);
    EXPECT_FALSE(rowValue(&rows, 2, "isKept").toBool());
    EXPECT_EQ(text(2, "badge"), u"DELETE"_s);
    EXPECT_EQ(text(2, "badgeSymbol"), u"trash.fill"_s);
    EXPECT_EQ(text(2, "clickTip"), u"Click to keep this copy"_s);
    EXPECT_EQ(text(2, "spoken"), u"DELETE, /b, Mar 1, 2026"_s);
}

TEST_F(DuplicateRowsTest, showNamesThatAreNoTextWithReplacementCharacters)
{
    show({group(1000, {paths::fromBytes("/home/ada/d\xFE/a\xFF.txt"), u"/b"_s})});
    EXPECT_EQ(text(0, "title"), u"a\uFFFD.txt"_s);
    EXPECT_EQ(text(1, "title"), u"a\uFFFD.txt"_s);
    EXPECT_EQ(text(1, "detail"), u"~/d\uFFFD/a\uFFFD.txt"_s);
    EXPECT_EQ(text(1, "spoken"), u"KEEP, ~/d\uFFFD/a\uFFFD.txt, Mar 1, 2026"_s);
}

TEST_F(DuplicateRowsTest, headTellsWhereItsFilesAreOne)
{
    show({group(1000, {u"/a/x"_s, u"/b/x"_s})});
    EXPECT_EQ(text(0, "sameMark") + text(0, "sameTip"), QString());
    kinds.insert(groups[0].id, samefile::Kind::oneEntry);
    EXPECT_EQ(text(0, "sameMark"), u"SAME FILE"_s);
    EXPECT_EQ(text(0, "sameTip"),
              u"Two of these paths lead to one and the same file: if one goes, both are gone."_s);
    EXPECT_EQ(
        text(0, "spoken"),
        u"2 copies · 1000 B each · 1000 B wasted, SAME FILE, Two of these paths lead to one and the same file: if one goes, both are gone."_s);
    kinds.insert(groups[0].id, samefile::Kind::hardLinks);
    EXPECT_EQ(text(0, "sameMark"), u"SAME FILE"_s);
    EXPECT_EQ(
        text(0, "sameTip"),
        u"Some of these are hard links, names of one file: if one goes, nothing is lost and nothing is freed."_s);
    EXPECT_EQ(text(1, "sameMark") + text(1, "sameTip"), QString());
}

TEST_F(DuplicateRowsTest, headTellsThatNothingIsKept)
{
    show({group(1000, {u"/a"_s, u"/b"_s})});
    groups[0].files[0].keep = false;
    EXPECT_EQ(text(0, "lossMark") + text(0, "lossTip"), QString());
    groups[0].files[1].keep = false;
    EXPECT_EQ(text(0, "lossMark"), u"NOTHING KEPT"_s);
    EXPECT_EQ(text(0, "lossTip"), u"No copy of this group stays."_s);
    EXPECT_EQ(text(0, "spoken"), u"2 copies · 1000 B each · 1000 B wasted, NOTHING KEPT"_s);
    EXPECT_EQ(text(1, "lossMark") + text(1, "lossTip"), QString());
}

TEST_F(DuplicateRowsTest, tellOfTheHeadOnlyWhereItSaysSomethingElse)
{
    show({group(10, {u"/a"_s, u"/b"_s, u"/c"_s})});
    QSignalSpy changes(&rows, &QAbstractItemModel::dataChanged);
    const auto toggle = [this](size_t file) {
        groups[0].files[file].keep = !groups[0].files[file].keep;
        rows.refreshFile(0, file);
    };
    toggle(0); // two stay
    ASSERT_EQ(changes.count(), 1);
    EXPECT_EQ(range(changes[0]), Range(1, 1));
    toggle(1);
    toggle(2); // nothing is kept by now
    EXPECT_EQ(range(changes.last()), Range(0, 0));
    changes.clear();
    toggle(1); // it is again
    ASSERT_EQ(changes.count(), 2);
    EXPECT_EQ(range(changes[0]), Range(2, 2));
    EXPECT_EQ(range(changes[1]), Range(0, 0));
    changes.clear();
    toggle(0);
    EXPECT_EQ(changes.count(), 1);
}

TEST_F(DuplicateRowsTest, areManyWithoutAWordOfThemBeingWritten)
{
    // The text of a head ends the process where the wasted bytes do not fit, so to show such groups proves that none is
    // written. The list has no tester here: that would ask for texts.
    constexpr qint64 most = std::numeric_limits<qint64>::max();
    const std::vector<DuplicateFileGroup> unspeakable(50000, group(most, {u"/a"_s, u"/b"_s, u"/c"_s}));
    DuplicateRows list(unspeakable, u"/home/ada"_s, [](const QUuid &) { return samefile::Kind::none; });
    std::vector<size_t> shown(unspeakable.size());
    for (size_t index = 0; index < shown.size(); ++index)
        shown[index] = index;
    list.show(shown);
    EXPECT_EQ(list.rowCount(), 200000);
    EXPECT_EQ(list.row(199999)->group, 49999U);
    EXPECT_EQ(list.row(199999)->member, 2);
    list.refreshMember(49999, 2);
    list.refreshGroup(25000);
    list.refreshAll();
    list.shrink(shown);
    EXPECT_EQ(list.rowCount(), 200000);
    EXPECT_DEATH(list.index(0).data(DuplicateRows::detailRole), "overflow");
}
