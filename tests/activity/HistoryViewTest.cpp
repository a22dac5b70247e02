#include "activity/HistoryFileEncoding.h"
#include "activity/HistorySheetFixture.h"
#include "base/Files.h"
#include "base/Paths.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

#include <limits>

#include <unistd.h>

using namespace Qt::StringLiterals;
using Kind = HistoryEntry::Kind;

namespace {
using HistoryViewTest = HistorySheet;
} // namespace

TEST_F(HistoryViewTest, anEmptyLogShowsNoActivityAndOffersNoClear)
{
    open();
    EXPECT_EQ(view->title(), u"Activity History"_s);
    EXPECT_EQ(view->symbol(), u"clock.arrow.circlepath"_s);
    EXPECT_EQ(view->countText(), u"0"_s);
    EXPECT_EQ(view->emptyText(), u"No activity yet."_s);
    EXPECT_FALSE(view->canClear());
    view->askToClear();
    EXPECT_FALSE(view->showClearConfirm());
    EXPECT_EQ(view->rows()->rowCount(), 0);
}

TEST_F(HistoryViewTest, anEmptyLogStaysOneUnderAFilter)
{
    open();
    view->chooseFilter(undoChip);
    EXPECT_EQ(view->emptyText(), u"No activity yet."_s);
    EXPECT_EQ(view->countText(), u"0 of 0"_s);
}

TEST_F(HistoryViewTest, aFilterOnUndoWithoutSuchEntriesSaysThatNoneMatches)
{
    record(samples::entry(u"a"_s));
    open();
    EXPECT_EQ(view->emptyText(), QString());
    view->chooseFilter(undoChip);
    EXPECT_EQ(view->filter(), Kind::undo);
    EXPECT_EQ(view->emptyText(), u"No entries match this filter."_s);
    EXPECT_EQ(view->countText(), u"0 of 1"_s);
    EXPECT_TRUE(view->canClear());
}

TEST_F(HistoryViewTest, hasAChipForAllAndOneForEachKindInOrder)
{
    record(samples::entry(u"a"_s));
    record(samples::entry(u"b"_s));
    open();
    EXPECT_EQ(
        columnTexts(view->filters(), "label").join(u','),
        u"All,App Uninstalled,Duplicates Removed,Smart Cleanup,Files Organized,Ghost Files Cleaned,Undo"_s);
    EXPECT_EQ(columnTexts(view->filters(), "countText").join(u','), u"2,,,,,,"_s);
    EXPECT_EQ(columnTexts(view->filters(), "isSelected").join(u','),
              u"true,false,false,false,false,false,false"_s);
}

TEST_F(HistoryViewTest, showsTheEntriesOfTheChosenKindInTheirOrder)
{
    record(samples::entry(Kind::undo, u"a"_s));
    record(samples::entry(Kind::cleanup, u"b"_s));
    record(samples::entry(Kind::undo, u"c"_s));
    open();
    EXPECT_EQ(titles(), u"c b a"_s);
    EXPECT_EQ(view->countText(), u"3"_s);
    view->chooseFilter(undoChip);
    EXPECT_EQ(titles(), u"c a"_s);
    EXPECT_EQ(view->countText(), u"2 of 3"_s);
    EXPECT_EQ(columnTexts(view->filters(), "isSelected").join(u','),
              u"false,false,false,false,false,false,true"_s);
    view->chooseFilter(allChip);
    EXPECT_EQ(view->filter(), std::nullopt);
    EXPECT_EQ(titles(), u"c b a"_s);
    EXPECT_EQ(view->countText(), u"3"_s);
}

TEST_F(HistoryViewTest, passesOverChipsAndRowsThatAreNotThere)
{
    record(samples::entry(Kind::undo, u"a"_s, 1));
    open();
    const QSignalSpy changes(view.get(), &HistoryView::contentChanged);
    view->chooseFilter(-1);
    view->chooseFilter(7);
    view->toggleRow(-1);
    view->toggleRow(1);
    EXPECT_EQ(view->filter(), std::nullopt);
    EXPECT_FALSE(value(0, "isExpanded").toBool());
    EXPECT_EQ(changes.count(), 0);
}

TEST_F(HistoryViewTest, showsAKindByItsLabelAndSymbol)
{
    for (const Kind kind : HistoryEntry::allKinds)
        record(samples::entry(kind, u"t"_s));
    open();
    EXPECT_EQ(columnTexts(view->rows(), "symbol").join(u','),
              u"arrow.uturn.backward,ghost,folder.badge.gearshape,sparkles,doc.on.doc.fill,trash.fill"_s);
    QStringList labels;
    for (const QString &line : columnTexts(view->rows(), "headline"))
        labels << line.section(u" · "_s, 0, 0);
    EXPECT_EQ(labels.join(u','),
              u"Undo,Ghost Files Cleaned,Files Organized,Smart Cleanup,Duplicates Removed,App Uninstalled"_s);
}

TEST_F(HistoryViewTest, writesLabelDateAndSizeOnOneLine)
{
    HistoryEntry entry = samples::entry(Kind::uninstall, u"Uninstalled Paint"_s);
    entry.bytesAffected = 1536;
    record(entry);
    entry.bytesAffected = 0;
    record(entry);
    open();
    EXPECT_EQ(textOf(1, "headline"), u"App Uninstalled · 01.03.26, 10:30 · 1.5 KB"_s);
    EXPECT_EQ(textOf(0, "headline"), u"App Uninstalled · 01.03.26, 10:30"_s);
    EXPECT_EQ(textOf(0, "entryTitle"), u"Uninstalled Paint"_s);
}

TEST_F(HistoryViewTest, clampsSizesThatHaveNoText)
{
    HistoryEntry entry = samples::entry(u"t"_s);
    entry.bytesAffected = -5;
    record(entry);
    entry.bytesAffected = std::numeric_limits<qint64>::max();
    record(entry);
    open();
    EXPECT_TRUE(textOf(1, "headline").endsWith(u" · 0 B"_s));
    EXPECT_TRUE(textOf(0, "headline").endsWith(u" · 1024 TB"_s));
}

TEST_F(HistoryViewTest, marksARunThatFailed)
{
    HistoryEntry entry = samples::entry(u"t"_s);
    record(entry);
    entry.success = false;
    record(entry);
    open();
    EXPECT_TRUE(value(0, "isFailed").toBool());
    EXPECT_TRUE(textOf(0, "spokenText").endsWith(u" · FAILED"_s));
    EXPECT_FALSE(value(1, "isFailed").toBool());
    EXPECT_EQ(textOf(1, "spokenText"), textOf(1, "headline"));
    EXPECT_EQ(view->texts().failed, u"FAILED"_s);
}

TEST_F(HistoryViewTest, expandsOnlyAnEntryThatHasMoreToShow)
{
    record(samples::entry(u"bare"_s));
    HistoryEntry noted = samples::entry(u"noted"_s);
    noted.detail = u"Caches, Logs"_s;
    record(noted);
    record(samples::entry(Kind::organize, u"pathed"_s, 1));
    open();
    EXPECT_EQ(columnTexts(view->rows(), "isExpandable").join(u','), u"true,true,false"_s);
    for (int row = 0; row < 3; ++row)
        view->toggleRow(row);
    EXPECT_EQ(columnTexts(view->rows(), "isExpanded").join(u','), u"true,true,false"_s);
    EXPECT_EQ(textOf(0, "filesHeading"), u"Files (1)"_s);
    EXPECT_EQ(textOf(0, "detail"), QString());
    EXPECT_EQ(textOf(1, "filesHeading"), QString());
    EXPECT_EQ(textOf(1, "detail"), u"Caches, Logs"_s);
}

TEST_F(HistoryViewTest, anEntryWith200PathsShows50AndHowManyMore)
{
    record(samples::entry(Kind::organize, u"t"_s, 200));
    open();
    EXPECT_TRUE(value(0, "shownPaths").toStringList().isEmpty());
    view->toggleRow(0);
    EXPECT_EQ(textOf(0, "filesHeading"), u"Files (200)"_s);
    EXPECT_EQ(value(0, "shownPaths").toStringList(), samples::paths(50));
    EXPECT_EQ(textOf(0, "moreText"), u"… and 150 more (capped at 200 in storage)"_s);
    view->toggleRow(0);
    EXPECT_TRUE(value(0, "shownPaths").toStringList().isEmpty());
    EXPECT_EQ(textOf(0, "moreText"), QString());
}

TEST_F(HistoryViewTest, anEntryWithExactly50PathsShowsThemAllWithoutALastLine)
{
    record(samples::entry(Kind::organize, u"t"_s, 50));
    record(samples::entry(Kind::organize, u"t"_s, 51));
    open();
    view->toggleRow(0);
    view->toggleRow(1);
    EXPECT_EQ(value(1, "shownPaths").toStringList(), samples::paths(50));
    EXPECT_EQ(textOf(1, "moreText"), QString());
    EXPECT_EQ(value(0, "shownPaths").toStringList(), samples::paths(50));
    EXPECT_EQ(textOf(0, "moreText"), u"… and 1 more (capped at 200 in storage)"_s);
}

TEST_F(HistoryViewTest, showsBytesThatAreNoTextAsReplacementCharacters)
{
    HistoryEntry entry = samples::entry(paths::fromBytes("a\xFF"));
    entry.paths = {paths::fromBytes("/b\xFE")};
    entry.detail = paths::fromBytes("c\xFD");
    record(entry);
    open();
    view->toggleRow(0);
    EXPECT_EQ(textOf(0, "entryTitle"), u"a\uFFFD"_s);
    EXPECT_EQ(value(0, "shownPaths").toStringList(), QStringList{u"/b\uFFFD"_s});
    EXPECT_EQ(textOf(0, "detail"), u"c\uFFFD"_s);
}

TEST_F(HistoryViewTest, expandingARowTellsOfThatRowAlone)
{
    for (int i = 0; i < 5; ++i)
        record(samples::entry(Kind::organize, u"t"_s, 200));
    open();
    const QAbstractItemModelTester tester(view->rows());
    const QSignalSpy resets(view->rows(), &QAbstractItemModel::modelReset);
    const QSignalSpy removals(view->rows(), &QAbstractItemModel::rowsRemoved);
    const QSignalSpy contents(view.get(), &HistoryView::contentChanged);
    QSignalSpy changes(view->rows(), &QAbstractItemModel::dataChanged);
    view->toggleRow(3);
    EXPECT_EQ(resets.count() + removals.count() + contents.count(), 0);
    ASSERT_EQ(changes.count(), 1);
    EXPECT_EQ(changes[0][0].toModelIndex().row(), 3);
    EXPECT_EQ(changes[0][1].toModelIndex().row(), 3);
}

TEST_F(HistoryViewTest, aNewRecordAppearsAtTheTopAtOnceAndLeavesTheOthersAsTheyAre)
{
    record(samples::entry(Kind::organize, u"a"_s, 3));
    record(samples::entry(Kind::organize, u"b"_s, 3));
    open();
    const QAbstractItemModelTester tester(view->rows());
    view->toggleRow(1);
    QSignalSpy insertions(view->rows(), &QAbstractItemModel::rowsInserted);
    const QSignalSpy removals(view->rows(), &QAbstractItemModel::rowsRemoved);
    record(samples::entry(u"c"_s));
    EXPECT_EQ(titles(), u"c b a"_s);
    EXPECT_EQ(columnTexts(view->rows(), "isExpanded").join(u','), u"false,false,true"_s);
    EXPECT_EQ(insertions.count(), 1);
    EXPECT_EQ(removals.count(), 0);
    EXPECT_EQ(view->countText(), u"3"_s);
    EXPECT_EQ(rowValue(view->filters(), allChip, "countText").toString(), u"3"_s);
}

TEST_F(HistoryViewTest, aNewRecordOfAnotherKindChangesOnlyTheCountUnderAFilter)
{
    record(samples::entry(Kind::undo, u"a"_s));
    open();
    view->chooseFilter(undoChip);
    record(samples::entry(Kind::cleanup, u"b"_s));
    EXPECT_EQ(titles(), u"a"_s);
    EXPECT_EQ(view->countText(), u"1 of 2"_s);
}

TEST_F(HistoryViewTest, aRecordOnAFullLogDropsItsLastRow)
{
    std::vector<HistoryEntry> full;
    full.reserve(500);
    for (int i = 0; i < 500; ++i)
        full.push_back(samples::entry(Kind::organize, QString::number(i), 1));
    test.temp.file(u"home/Library/Application Support/Quillmere/history.json"_s, historyfile::encode(full));
    HistoryService loaded(test.platform);
    HistoryView over(test.platform, loaded);
    over.toggleRow(498);
    loaded.record(samples::entry(u"new"_s));
    test.mainQueue.run();
    ASSERT_EQ(over.rows()->rowCount(), 500);
    EXPECT_EQ(rowValue(over.rows(), 0, "entryTitle").toString(), u"new"_s);
    EXPECT_TRUE(rowValue(over.rows(), 499, "isExpanded").toBool());
    EXPECT_EQ(rowValue(over.rows(), 499, "entryTitle").toString(), u"498"_s);
}

TEST_F(HistoryViewTest, expandsOneOfTwoEntriesOfTheSameId)
{
    const HistoryEntry entry = samples::entry(Kind::organize, u"a"_s, 1);
    record(entry);
    record(entry);
    open();
    view->toggleRow(1);
    EXPECT_EQ(columnTexts(view->rows(), "isExpanded").join(u','), u"false,true"_s);
    record(samples::entry(u"b"_s));
    EXPECT_EQ(columnTexts(view->rows(), "isExpanded").join(u','), u"false,false,true"_s);
}

TEST_F(HistoryViewTest, aFilterKeepsWhatIsExpanded)
{
    record(samples::entry(Kind::organize, u"a"_s, 1));
    open();
    view->toggleRow(0);
    view->chooseFilter(undoChip);
    view->chooseFilter(allChip);
    EXPECT_TRUE(value(0, "isExpanded").toBool());
}

TEST_F(HistoryViewTest, revealsTheFileOnceThereIsOne)
{
    open();
    EXPECT_FALSE(view->canReveal());
    EXPECT_EQ(view->revealTip(), u"No history file yet — perform an action first."_s);
    view->reveal();
    EXPECT_TRUE(test.workspace.calls.isEmpty());
    record(samples::entry(u"a"_s));
    EXPECT_TRUE(view->canReveal());
    EXPECT_EQ(view->revealTip(), u"Reveal history.json in Finder"_s);
    view->reveal();
    EXPECT_EQ(test.workspace.calls, QStringList{u"reveal "_s + history.fileURL()});
}

TEST_F(HistoryViewTest, noticesAtTheClickThatTheFileHasGone)
{
    record(samples::entry(u"a"_s));
    open();
    ASSERT_EQ(unlink(paths::toBytes(history.fileURL()).constData()), 0);
    const QSignalSpy changes(view.get(), &HistoryView::contentChanged);
    view->reveal();
    EXPECT_TRUE(test.workspace.calls.isEmpty());
    EXPECT_EQ(changes.count(), 1);
    EXPECT_FALSE(view->canReveal());
}
