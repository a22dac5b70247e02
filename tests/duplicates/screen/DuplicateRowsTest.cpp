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

TEST_F(DuplicateRowsTest, areNoneUntilThereIsSomethingToShow)
{
    groups = {group(10, {u"/a"_s, u"/b"_s})};
    EXPECT_EQ(rows.rowCount(), 0);
    rows.show({0});
    EXPECT_EQ(rows.rowCount(), 3);
    rows.show({});
    EXPECT_EQ(rows.rowCount(), 0);
}

TEST_F(DuplicateRowsTest, areAHeadForEachGroupAndThenItsFiles)
{
    showFour();
    EXPECT_EQ(texts("title"), u"a0 a0 a1 a2 b0 b0 b1 c0 c0 c1 c2 d0 d0 d1"_s);
    EXPECT_EQ(texts("isHead"),
              u"true false false false true false false true false false false true false false"_s);
    EXPECT_EQ(texts("isLast"),
              u"false false false true false false true false false false true false false true"_s);
}

TEST_F(DuplicateRowsTest, areThoseOfTheGroupsThatAreShown)
{
    showFour();
    rows.show({1, 3});
    EXPECT_EQ(texts("title"), u"b0 b0 b1 d0 d0 d1"_s);
    EXPECT_EQ(rows.row(4)->group, 3U);
    EXPECT_EQ(rows.row(4)->file, 0);
    EXPECT_EQ(rows.row(4)->id, groups[3].files[0].id);
    EXPECT_TRUE(rows.row(3)->isHead());
    EXPECT_EQ(rows.row(3)->id, groups[3].id);
}

TEST_F(DuplicateRowsTest, headTellsCopiesSizeAndWaste)
{
    show({group(1000, {u"/home/ada/report.pdf"_s, u"/b/other.pdf"_s, u"/c/third.pdf"_s})});
    EXPECT_EQ(text(0, "title"), u"report.pdf"_s);
    EXPECT_EQ(text(0, "detail"), u"3 copies · 1000 B each · 2.0 KB wasted"_s);
    EXPECT_EQ(text(0, "spoken"), u"3 copies · 1000 B each · 2.0 KB wasted"_s);
    EXPECT_EQ(text(0, "trailing"), u"2.0 KB recoverable"_s);
    EXPECT_EQ(text(0, "badge") + text(0, "badgeSymbol") + text(0, "tip"), QString());
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
    EXPECT_EQ(text(1, "tip"), u"Click to mark this copy for deletion"_s);
    EXPECT_FALSE(rowValue(&rows, 2, "isKept").toBool());
    EXPECT_EQ(text(2, "badge"), u"DELETE"_s);
    EXPECT_EQ(text(2, "badgeSymbol"), u"trash.fill"_s);
    EXPECT_EQ(text(2, "tip"), u"Click to keep this copy"_s);
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

TEST_F(DuplicateRowsTest, giveNothingForOtherRolesAndPlaces)
{
    showFour();
    EXPECT_FALSE(rows.data(rows.index(1), Qt::DisplayRole).isValid());
    EXPECT_FALSE(rows.data(rows.index(1), DuplicateRows::spokenRole + 1).isValid());
    EXPECT_FALSE(rows.data(QModelIndex(), DuplicateRows::titleRole).isValid());
    EXPECT_EQ(rows.rowCount(rows.index(0)), 0); // a list, no tree
    for (const int number : {-1, 14, 1000})
        EXPECT_EQ(rows.row(number), nullptr) << number;
}

TEST_F(DuplicateRowsTest, tellOfExactlyTheRowOfAFileThatHasChanged)
{
    showFour();
    QSignalSpy changes(&rows, &QAbstractItemModel::dataChanged);
    rows.refreshFile(2, 1);
    ASSERT_EQ(changes.count(), 1);
    EXPECT_EQ(range(changes[0]), Range(9, 9));
    rows.refreshFile(0, 0);
    EXPECT_EQ(range(changes[1]), Range(1, 1));
    rows.refreshFile(3, 1);
    EXPECT_EQ(range(changes[2]), Range(13, 13));
}

TEST_F(DuplicateRowsTest, tellOfTheRowsOfAGroupThatHasChanged)
{
    showFour();
    QSignalSpy changes(&rows, &QAbstractItemModel::dataChanged);
    rows.refreshGroup(1);
    ASSERT_EQ(changes.count(), 1);
    EXPECT_EQ(range(changes[0]), Range(4, 6));
    rows.refreshGroup(3);
    EXPECT_EQ(range(changes[1]), Range(11, 13));
    rows.refreshAll();
    EXPECT_EQ(range(changes[2]), Range(0, 13));
}

TEST_F(DuplicateRowsTest, findTheRowsOfAGroupUnderAFilter)
{
    showFour();
    rows.show({1, 3});
    QSignalSpy changes(&rows, &QAbstractItemModel::dataChanged);
    rows.refreshFile(3, 0);
    ASSERT_EQ(changes.count(), 1);
    EXPECT_EQ(range(changes[0]), Range(4, 4));
    rows.refreshGroup(1);
    ASSERT_EQ(changes.count(), 2);
    EXPECT_EQ(range(changes[1]), Range(0, 2));
}

TEST_F(DuplicateRowsTest, tellNothingOfGroupsThatAreNotShown)
{
    showFour();
    rows.show({1, 2});
    const QSignalSpy changes(&rows, &QAbstractItemModel::dataChanged);
    for (const size_t hidden : {0U, 3U}) {
        rows.refreshFile(hidden, 0);
        rows.refreshGroup(hidden);
    }
    rows.show({});
    rows.refreshFile(0, 0);
    rows.refreshGroup(0);
    rows.refreshAll();
    EXPECT_EQ(changes.count(), 0);
}

TEST_F(DuplicateRowsTest, areManyWithoutAWordOfThemBeingWritten)
{
    // The text of a head ends the process where the wasted bytes do not fit, so to show such groups proves that none is
    // written. The list has no tester here: that would ask for texts.
    constexpr qint64 most = std::numeric_limits<qint64>::max();
    const std::vector<DuplicateFileGroup> unspeakable(50000, group(most, {u"/a"_s, u"/b"_s, u"/c"_s}));
    DuplicateRows list(unspeakable, u"/home/ada"_s);
    std::vector<size_t> shown(unspeakable.size());
    for (size_t index = 0; index < shown.size(); ++index)
        shown[index] = index;
    list.show(shown);
    EXPECT_EQ(list.rowCount(), 200000);
    EXPECT_EQ(list.row(199999)->group, 49999U);
    EXPECT_EQ(list.row(199999)->file, 2);
    list.refreshFile(49999, 2);
    list.refreshGroup(25000);
    list.refreshAll();
    list.shrink(shown);
    EXPECT_EQ(list.rowCount(), 200000);
    EXPECT_DEATH(list.index(0).data(DuplicateRows::detailRole), "overflow");
}
