#include "duplicates/screen/DuplicateFinderHome.h"
#include "duplicates/screen/DuplicateFinderView.h"

#include <QSignalSpy>

#include <map>
#include <vector>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// The filter of the Duplicate Finder's screen, and the figures over what it lets through.
struct DuplicateFinderFilterTest : public DuplicateFinderHome
{
    QString heads() const
    {
        QStringList titles;
        for (int row = 0; row < view->rows()->rowCount(); ++row) {
            if (!view->isFile(row))
                titles << text(row, "title");
        }
        return titles.join(u' ');
    }

    /// "4 groups, 9 files, 5.6 KB wasted".
    QString figures() const
    {
        return u"%1 groups, %2 files, %3 wasted"_s.arg(view->groupsFigure(), view->filesFigure(),
                                                       view->wastedFigure());
    }
};

} // namespace

TEST_F(DuplicateFinderFilterTest, isOneOfFiveInOrder)
{
    EXPECT_EQ(DuplicateFinderView::filters(),
              QStringList({u"all"_s, u"images"_s, u"documents"_s, u"archives"_s, u"media"_s}));
    EXPECT_EQ(columnTexts(view->filterRows(), "label"),
              QStringList({u"All"_s, u"Images"_s, u"Documents"_s, u"Archives"_s, u"Media"_s}));
    EXPECT_EQ(columnTexts(view->filterRows(), "countText"), QStringList(5, QString()));
    EXPECT_EQ(columnTexts(view->filterRows(), "isSelected").join(u' '), u"true false false false false"_s);
}

TEST_F(DuplicateFinderFilterTest, knowsItsExtensions)
{
    const std::map<QString, QStringList> expected = {
        {u"images"_s, {u"jpg"_s, u"jpeg"_s, u"png"_s, u"gif"_s, u"heic"_s, u"webp"_s, u"svg"_s}},
        {u"documents"_s,
         {u"pdf"_s, u"doc"_s, u"docx"_s, u"txt"_s, u"md"_s, u"rtf"_s, u"xls"_s, u"xlsx"_s, u"ppt"_s,
          u"pptx"_s}},
        {u"archives"_s, {u"zip"_s, u"tar"_s, u"gz"_s, u"rar"_s, u"dmg"_s, u"7z"_s}},
        {u"media"_s, {u"mp3"_s, u"wav"_s, u"flac"_s, u"aac"_s, u"mp4"_s, u"mov"_s, u"avi"_s, u"mkv"_s}},
    };
    EXPECT_EQ(DuplicateFinderView::extMap(), expected);
}

TEST_F(DuplicateFinderFilterTest, isChosenByItsChip)
{
    QAbstractItemModelTester chips(view->filterRows(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    const QSignalSpy lists(view.get(), &DuplicateFinderView::rowsWillChange);
    scan();
    const qsizetype before = lists.count();
    const QSignalSpy chipChanges(view->filterRows(), &QAbstractItemModel::dataChanged);
    view->chooseFilter(3);
    EXPECT_EQ(chipChanges.count(), 1);
    EXPECT_EQ(view->filter(), u"archives"_s);
    EXPECT_EQ(columnTexts(view->filterRows(), "isSelected").join(u' '), u"false false false true false"_s);
    EXPECT_EQ(lists.count(), before + 1);
    EXPECT_EQ(heads(), u"pack.zip"_s);
    for (const int chip : {-1, 5, 1000})
        view->chooseFilter(chip);
    EXPECT_EQ(view->filter(), u"archives"_s);
    EXPECT_EQ(lists.count(), before + 1);
    view->chooseFilter(0);
    EXPECT_EQ(heads(), u"photo.JPG report.pdf pack.zip song"_s);
}

TEST_F(DuplicateFinderFilterTest, takesExtensionsInCapitals)
{
    scan();
    choose(u"images"_s);
    EXPECT_EQ(titles(), u"photo.JPG photo.JPG photo.png"_s);
}

TEST_F(DuplicateFinderFilterTest, judgesAGroupByItsFirstFileAlone)
{
    scan();
    choose(u"documents"_s);
    EXPECT_EQ(heads(), u"report.pdf"_s); // though "pack.txt" is one
    choose(u"archives"_s);
    EXPECT_EQ(titles(), u"pack.zip pack.zip pack.txt"_s);
    choose(u"media"_s);
    EXPECT_EQ(titles(), QString()); // "song" has no extension, "song.mp3" stands second
}

TEST_F(DuplicateFinderFilterTest, letsEachOfItsExtensionsThrough)
{
    int size = 10;
    for (const auto &[filter, extensions] : DuplicateFinderView::extMap()) {
        for (const QString &extension : extensions) {
            make(u"a/%1.%2"_s.arg(filter, extension), ++size, 100);
            make(u"b/%1.%2"_s.arg(filter, extension), size, 100);
        }
    }
    make(u"a/other.exe"_s, ++size, 100);
    make(u"b/other.exe"_s, size, 100);
    scan();
    const QStringList all = columnTexts(view->rows(), "title");
    for (const auto &[filter, extensions] : DuplicateFinderView::extMap()) {
        choose(filter);
        const QStringList shown = columnTexts(view->rows(), "title");
        for (const QString &extension : extensions)
            EXPECT_TRUE(shown.contains(filter + u'.' + extension)) << extension.toStdString();
        for (const QString &other : DuplicateFinderView::filters())
            EXPECT_TRUE(other == filter || shown.filter(other + u'.').isEmpty()) << other.toStdString();
        EXPECT_FALSE(titles().contains(u"other"_s));
    }
    choose(u"all"_s);
    EXPECT_EQ(columnTexts(view->rows(), "title"), all);
    EXPECT_TRUE(all.contains(u"other.exe"_s));
}

TEST_F(DuplicateFinderFilterTest, keepsTheOrderOfTheGroups)
{
    make(u"a/small.gif"_s, 30, 100);
    make(u"b/small.gif"_s, 30, 100);
    make(u"a/large.svg"_s, 9000, 100);
    make(u"b/large.svg"_s, 9000, 100);
    scan();
    EXPECT_EQ(heads(), u"large.svg photo.JPG report.pdf pack.zip song small.gif"_s);
    choose(u"images"_s);
    EXPECT_EQ(heads(), u"large.svg photo.JPG small.gif"_s);
    EXPECT_EQ(view->filteredGroups(), (std::vector<size_t>{0, 1, 5}));
}

TEST_F(DuplicateFinderFilterTest, countsOnlyWhatItLetsThrough)
{
    scan();
    EXPECT_EQ(figures(), u"4 groups, 9 files, 5.6 KB wasted"_s);
    EXPECT_EQ(view->toDeleteFigure(), u"5 files (5.6 KB)"_s);
    choose(u"images"_s);
    EXPECT_EQ(figures(), u"1 groups, 2 files, 2.9 KB wasted"_s);
    EXPECT_EQ(view->toDeleteFigure(), u"1 files (2.9 KB)"_s);
    EXPECT_EQ(view->footText(), u"1 files marked for deletion (2.9 KB)"_s);
    view->askToDelete();
    EXPECT_EQ(view->confirmation()->text(),
              u"Move 1 files (2.9 KB) to Trash? This can be undone from the Trash."_s);
    choose(u"documents"_s);
    EXPECT_EQ(figures(), u"1 groups, 3 files, 2.0 KB wasted"_s);
    EXPECT_EQ(view->toDeleteFigure(), u"2 files (2.0 KB)"_s);
    EXPECT_EQ(view->footText(), u"2 files marked for deletion (2.0 KB)"_s);
    EXPECT_EQ(view->filesToDelete(), 2);
    EXPECT_EQ(view->bytesToDelete(), 2000);
}

TEST_F(DuplicateFinderFilterTest, countsWhatIsWastedWhateverIsSetToGo)
{
    scan();
    view->selectNone();
    EXPECT_EQ(figures(), u"4 groups, 9 files, 5.6 KB wasted"_s);
    EXPECT_EQ(view->toDeleteFigure(), QString());
    EXPECT_FALSE(view->canDelete());
    view->toggleKeep(photoHead + 1);
    view->toggleKeep(photoHead + 2);
    EXPECT_EQ(figures(), u"4 groups, 9 files, 5.6 KB wasted"_s);
    EXPECT_EQ(view->toDeleteFigure(), u"2 files (5.9 KB)"_s);
    EXPECT_TRUE(view->canDelete());
}

TEST_F(DuplicateFinderFilterTest, saysSoWhenItHidesAllGroups)
{
    scan();
    choose(u"media"_s);
    EXPECT_EQ(view->emptyText(), u"No duplicates match this filter."_s);
    EXPECT_FALSE(view->hasFigures());
    EXPECT_EQ(figures(), u"0 groups, 0 files, 0 B wasted"_s);
    EXPECT_EQ(view->toDeleteFigure(), QString());
    EXPECT_EQ(view->scanText(), u"Rescan"_s); // there are groups, if none on view
    EXPECT_TRUE(view->canChoose());
    EXPECT_FALSE(view->canDelete());
    choose(u"all"_s);
    EXPECT_EQ(view->emptyText(), QString());
}

TEST_F(DuplicateFinderFilterTest, hidesNothingWhereNothingWasScanned)
{
    choose(u"media"_s);
    EXPECT_EQ(view->emptyText(), u"Configure scan directories above and click Start Scan"_s);
}

TEST_F(DuplicateFinderFilterTest, offersNoRunForFilesThatItHides)
{
    scan();
    view->selectNone();
    view->toggleKeep(photoHead + 1);
    choose(u"documents"_s);
    EXPECT_FALSE(view->canDelete());
    view->askToDelete();
    EXPECT_FALSE(view->showDeleteConfirm());
    view->confirmation()->confirm();
    test.mainQueue.run();
    EXPECT_TRUE(test.recycler.recycled.isEmpty());
}

TEST_F(DuplicateFinderFilterTest, staysForTheNextScan)
{
    scan();
    choose(u"archives"_s);
    scan();
    EXPECT_EQ(view->filter(), u"archives"_s);
    EXPECT_EQ(heads(), u"pack.zip"_s);
}
