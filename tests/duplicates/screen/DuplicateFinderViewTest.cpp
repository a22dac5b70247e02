#include "duplicates/screen/DuplicateFinderView.h"

#include "duplicates/screen/DuplicateFinderHome.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

using DuplicateFinderViewTest = DuplicateFinderHome;

const QString startText = u"Configure scan directories above and click Start Scan"_s;

} // namespace

TEST_F(DuplicateFinderViewTest, hasItsFixedTexts)
{
    EXPECT_EQ(view->title(), u"Duplicate Finder"_s);
    EXPECT_EQ(view->symbol(), u"doc.on.doc"_s);
    const DuplicateTexts texts = view->texts();
    EXPECT_EQ(texts.stopTip, u"Stop scanning"_s);
    EXPECT_EQ(texts.groups, u"Groups"_s);
    EXPECT_EQ(texts.files, u"Files"_s);
    EXPECT_EQ(texts.wasted, u"Wasted"_s);
    EXPECT_EQ(texts.toDelete, u"To delete"_s);
    EXPECT_EQ(texts.selectAllDuplicates, u"Select All Duplicates"_s);
    EXPECT_EQ(texts.selectNone, u"Select None"_s);
    EXPECT_EQ(texts.keepNewest, u"Keep Newest"_s);
    EXPECT_EQ(texts.keepOldest, u"Keep Oldest"_s);
    EXPECT_EQ(texts.newest, u"Newest"_s);
    EXPECT_EQ(texts.oldest, u"Oldest"_s);
    EXPECT_EQ(texts.moveToTrash, u"Move to Trash"_s);
    EXPECT_EQ(texts.reveal, u"Reveal in Finder"_s);
    EXPECT_EQ(texts.open, u"Open"_s);
    EXPECT_EQ(texts.quickLook, u"Quick Look"_s);
    EXPECT_EQ(texts.copyPath, u"Copy Path"_s);
    EXPECT_EQ(texts.keepOnly, u"Keep Only This (mark others for deletion)"_s);
    EXPECT_EQ(texts.confirmTitle, u"Confirm Deletion"_s);
    EXPECT_EQ(texts.cancel, u"Cancel"_s);
}

TEST_F(DuplicateFinderViewTest, hasItsFixedTextsOfTheScope)
{
    const DuplicateTexts texts = view->texts();
    EXPECT_EQ(texts.scanDirectories, u"Scan Directories"_s);
    EXPECT_EQ(texts.noScanPaths, u"No folders selected — add one to start scanning."_s);
    EXPECT_EQ(texts.changeFolderTip, u"Click to change this folder"_s);
    EXPECT_EQ(texts.removeScanPathTip, u"Remove from scan list"_s);
    EXPECT_EQ(texts.removeScanPath, u"Remove scan path"_s);
    EXPECT_EQ(texts.addFolder, u"Add Folder"_s);
    EXPECT_EQ(texts.ignoreDirectories, u"Ignore Directories"_s);
    EXPECT_EQ(texts.overridden, u"· overridden"_s);
    EXPECT_EQ(texts.removeExclusionTip, u"Remove exclusion"_s);
    EXPECT_EQ(texts.addExclusion, u"Add Exclusion"_s);
    EXPECT_EQ(texts.lockNote,
              u"🔒 folders hold system files. Add one as a scan folder to override (advanced users only)."_s);
    EXPECT_EQ(texts.reset, u"Reset to defaults"_s);
    EXPECT_EQ(texts.resetTip,
              u"Restore Duplicate Finder's scan + ignore lists to their original defaults (~ as the only "
              "scan path; built-in locks for ~/Library, .Trash, node_modules, .git, …)."_s);
    EXPECT_EQ(texts.minFileSize, u"Min file size:"_s);
}

TEST_F(DuplicateFinderViewTest, offersTheStartBeforeTheFirstScan)
{
    EXPECT_EQ(view->emptyText(), startText);
    EXPECT_EQ(view->endText(), QString());
    EXPECT_EQ(view->scanText(), u"Start Scan"_s);
    EXPECT_EQ(view->filter(), u"all"_s);
    EXPECT_EQ(view->rows()->rowCount(), 0);
    EXPECT_FALSE(view->hasFigures());
    EXPECT_FALSE(view->canChoose());
    EXPECT_FALSE(view->canDelete());
    EXPECT_FALSE(view->showDeleteConfirm());
    EXPECT_EQ(view->deleteResult(), std::nullopt);
    EXPECT_EQ(test.workQueue.waiting(), 0U);
}

TEST_F(DuplicateFinderViewTest, opensAndClosesTheScope)
{
    const QSignalSpy changes(view.get(), &DuplicateFinderView::showSettingsChanged);
    EXPECT_TRUE(view->showSettings());
    EXPECT_EQ(view->settingsText(), u"Hide Settings"_s);
    view->toggleSettings();
    EXPECT_FALSE(view->showSettings());
    EXPECT_EQ(view->settingsText(), u"Settings"_s);
    view->toggleSettings();
    EXPECT_TRUE(view->showSettings());
    EXPECT_EQ(changes.count(), 2);
}

TEST_F(DuplicateFinderViewTest, listsTheGroupsWithTheirFiles)
{
    scan();
    EXPECT_EQ(titles(), u"photo.JPG photo.JPG photo.png report.pdf report.pdf report.pdf report.pdf "
                        "pack.zip pack.zip pack.txt song song song.mp3"_s);
    EXPECT_EQ(columnTexts(view->rows(), "isHead").join(u' '),
              u"true false false true false false false true false false true false false"_s);
    EXPECT_EQ(text(reportHead, "detail"), u"3 copies · 1000 B each · 2.0 KB wasted"_s);
    EXPECT_EQ(text(reportHead + 2, "detail"), u"~/b/report.pdf"_s);
    EXPECT_EQ(view->emptyText(), QString());
    EXPECT_TRUE(view->canChoose());
}

TEST_F(DuplicateFinderViewTest, findsAFinishedResultWhenItIsMade)
{
    scan();
    choose(u"images"_s);
    view->toggleSettings();
    open();
    EXPECT_EQ(view->rows()->rowCount(), 13);
    EXPECT_EQ(view->groupsFigure(), u"4"_s);
    EXPECT_EQ(view->filter(), u"all"_s);
    EXPECT_TRUE(view->showSettings());
    EXPECT_EQ(view->scanText(), u"Rescan"_s);
}

TEST_F(DuplicateFinderViewTest, offersTheChoicesThatWouldChangeSomething)
{
    const auto offered = [this] {
        return QStringList({view->canSelectAllDuplicates() ? u"all"_s : u"-"_s,
                            view->canSelectNone() ? u"none"_s : u"-"_s,
                            view->canKeepNewest() ? u"newest"_s : u"-"_s,
                            view->canKeepOldest() ? u"oldest"_s : u"-"_s})
            .join(u' ');
    };
    EXPECT_EQ(offered(), u"- - - -"_s) << "there are no files";
    scan();
    EXPECT_EQ(offered(), u"- none newest oldest"_s);
    view->selectNone();
    EXPECT_EQ(offered(), u"all - newest oldest"_s);
    view->keepNewest();
    EXPECT_EQ(offered(), u"all none - oldest"_s);
    view->keepOldest();
    EXPECT_EQ(offered(), u"all none newest -"_s);
    view->selectAllDuplicates();
    EXPECT_EQ(offered(), u"- none newest oldest"_s);
    choose(u"images"_s);
    view->toggleKeep(2); // of a group on view
    choose(u"documents"_s);
    EXPECT_TRUE(view->canSelectAllDuplicates()) << "in a group that the filter hides";
}

TEST_F(DuplicateFinderViewTest, choosesTheFilesOfAllGroups)
{
    scan();
    view->selectNone();
    EXPECT_EQ(services.shown(), QStringList({u"3000: a/photo.JPG b/photo.png"_s,
                                             u"1000: a/report.pdf b/report.pdf c/report.pdf"_s,
                                             u"500: a/pack.zip b/pack.txt"_s, u"200: a/song b/song.mp3"_s}));
    EXPECT_EQ(view->filesToDelete(), 0);
    view->selectAllDuplicates();
    EXPECT_EQ(services.shown(), asScanned);
    EXPECT_EQ(view->filesToDelete(), 5);
    view->keepNewest();
    EXPECT_EQ(services.shown(), QStringList({u"3000: a/photo.JPG b/photo.png-"_s,
                                             u"1000: a/report.pdf- b/report.pdf c/report.pdf-"_s,
                                             u"500: a/pack.zip b/pack.txt"_s, u"200: a/song- b/song.mp3"_s}));
    EXPECT_EQ(view->filesToDelete(), 4);
    view->keepOldest();
    EXPECT_EQ(services.shown(), QStringList({u"3000: a/photo.JPG- b/photo.png"_s,
                                             u"1000: a/report.pdf b/report.pdf- c/report.pdf-"_s,
                                             u"500: a/pack.zip b/pack.txt"_s, u"200: a/song b/song.mp3-"_s}));
}

TEST_F(DuplicateFinderViewTest, choosesTheFilesOfGroupsThatTheFilterHidesAsWell)
{
    scan();
    choose(u"images"_s);
    view->selectNone();
    EXPECT_FALSE(services.shown().join(u' ').contains(u'-'));
}

TEST_F(DuplicateFinderViewTest, choosesTheFilesOfOneGroupAtItsHead)
{
    scan();
    view->keepNewestOf(reportHead);
    EXPECT_EQ(services.shown()[1], u"1000: a/report.pdf- b/report.pdf c/report.pdf-"_s);
    view->keepOldestOf(photoHead);
    EXPECT_EQ(services.shown()[0], u"3000: a/photo.JPG- b/photo.png"_s);
    view->keepOldestOf(reportHead);
    view->keepNewestOf(photoHead);
    EXPECT_EQ(services.shown(), asScanned);
}

TEST_F(DuplicateFinderViewTest, choosesTheFilesOfNoGroupAtARowThatIsNoHead)
{
    scan();
    for (const int row : {photoHead + 1, reportHead + 3, songHead + 2, -1, 13, 1000}) {
        view->keepNewestOf(row);
        view->keepOldestOf(row);
    }
    EXPECT_EQ(services.shown(), asScanned);
}

TEST_F(DuplicateFinderViewTest, aClickOnAFileTurnsItsFlagAndTellsOfItsRowAlone)
{
    scan();
    QSignalSpy rows(view->rows(), &QAbstractItemModel::dataChanged);
    const QSignalSpy figures(view.get(), &DuplicateFinderView::figuresChanged);
    const QSignalSpy lists(view.get(), &DuplicateFinderView::rowsWillChange);
    view->toggleKeep(reportHead + 2);
    EXPECT_EQ(services.shown()[1], u"1000: a/report.pdf b/report.pdf c/report.pdf-"_s);
    ASSERT_EQ(rows.count(), 1);
    EXPECT_EQ(rows[0][0].toModelIndex().row(), reportHead + 2);
    EXPECT_EQ(rows[0][1].toModelIndex().row(), reportHead + 2);
    EXPECT_EQ(figures.count(), 1);
    EXPECT_EQ(lists.count(), 0);
    EXPECT_EQ(text(reportHead + 2, "badge"), u"KEEP"_s);
    view->toggleKeep(reportHead + 2);
    EXPECT_EQ(services.shown(), asScanned);
    EXPECT_EQ(duplicates.markedForDeletion(), QSet<QString>{path(u"b/report.pdf"_s)});
}

TEST_F(DuplicateFinderViewTest, keepsOnlyOneFileOfItsGroup)
{
    scan();
    view->keepOnly(reportHead + 3);
    EXPECT_EQ(services.shown()[1], u"1000: a/report.pdf- b/report.pdf- c/report.pdf"_s);
    EXPECT_EQ(services.shown()[0], asScanned[0]);
    EXPECT_TRUE(duplicates.markedForDeletion().isEmpty());
}

TEST_F(DuplicateFinderViewTest, commandsOnAFileReachTheRowOnViewUnderAFilter)
{
    scan();
    choose(u"archives"_s);
    ASSERT_EQ(titles(), u"pack.zip pack.zip pack.txt"_s);
    view->toggleKeep(2);
    EXPECT_EQ(services.shown()[2], u"500: a/pack.zip b/pack.txt"_s);
    view->keepOnly(2);
    EXPECT_EQ(services.shown()[2], u"500: a/pack.zip- b/pack.txt"_s);
    view->keepNewestOf(0);
    EXPECT_EQ(services.shown()[2], u"500: a/pack.zip b/pack.txt"_s);
    view->open(1);
    EXPECT_EQ(test.workspace.calls, QStringList{u"open "_s + path(u"a/pack.zip"_s)});
    for (const int other : {0, 1, 3})
        EXPECT_EQ(services.shown()[other], asScanned[other]);
}

TEST_F(DuplicateFinderViewTest, namesTheChoiceInTheMenuByWhatItDoes)
{
    scan();
    EXPECT_EQ(view->toggleText(photoHead + 1), u"Mark for Deletion"_s);
    EXPECT_EQ(view->toggleText(photoHead + 2), u"Keep This One"_s);
    view->toggleKeep(photoHead + 2);
    EXPECT_EQ(view->toggleText(photoHead + 2), u"Mark for Deletion"_s);
}

TEST_F(DuplicateFinderViewTest, handsAFileToTheDesktop)
{
    scan();
    const QString report = path(u"c/report.pdf"_s);
    view->open(reportHead + 3);
    EXPECT_EQ(test.workspace.calls, QStringList{u"open "_s + report});
    test.workspace.calls.clear();
    view->quickLook(reportHead + 3);
    EXPECT_EQ(test.workspace.calls, QStringList({u"reveal "_s + report, u"quick look "_s + report}));
    test.workspace.calls.clear();
    view->reveal(reportHead + 3);
    EXPECT_EQ(test.workspace.calls, QStringList{u"reveal "_s + report});
    view->copyPath(reportHead + 3);
    EXPECT_EQ(test.workspace.clipboard, report);
}

TEST_F(DuplicateFinderViewTest, doesNothingOnHeadsAndRowsThatAreNotThere)
{
    scan();
    test.workspace.clipboard = u"untouched"_s;
    for (const int row : {photoHead, songHead, -1, 13, 1000}) {
        EXPECT_FALSE(view->isFile(row));
        view->open(row);
        view->quickLook(row);
        view->reveal(row);
        view->copyPath(row);
        view->toggleKeep(row);
        view->keepOnly(row);
        EXPECT_EQ(view->toggleText(row), u"Keep This One"_s);
    }
    EXPECT_TRUE(view->isFile(photoHead + 1));
    EXPECT_TRUE(view->isFile(songHead + 2));
    EXPECT_TRUE(test.workspace.calls.isEmpty());
    EXPECT_EQ(test.workspace.clipboard, u"untouched"_s);
    EXPECT_EQ(services.shown(), asScanned);
}

TEST_F(DuplicateFinderViewTest, showsTheBannerOfItsOwnContext)
{
    test.access.markDenied(u"Smart Cleanup"_s);
    test.settle();
    EXPECT_FALSE(view->banner()->isShown());
    test.access.markDenied(u"Duplicate Finder"_s);
    test.settle();
    EXPECT_TRUE(view->banner()->isShown());
    view->banner()->hide();
    test.settle();
    EXPECT_FALSE(view->banner()->isShown());
    EXPECT_EQ(test.access.dismissedContexts(), QSet<QString>{u"Duplicate Finder"_s});
}

TEST_F(DuplicateFinderViewTest, showsTheBannerAfterAScanWithoutAccessToProtectedFolders)
{
    scan();
    EXPECT_TRUE(view->banner()->isShown());
}

TEST_F(DuplicateFinderViewTest, asksForAccessAnewOnceItHasAppeared)
{
    scan();
    ASSERT_FALSE(test.access.hasFullDiskAccess());
    test.temp.folder(u"home/Library/Mail"_s);
    EXPECT_FALSE(test.access.hasFullDiskAccess()); // the answer stands until somebody asks anew
    view->appear();
    EXPECT_TRUE(test.access.hasFullDiskAccess());
}

TEST_F(DuplicateFinderViewTest, makesAScanPathsRemovalShowAtItsButton)
{
    const QSignalSpy changes(view.get(), &DuplicateFinderView::stateChanged);
    for (const QString &scanPath : QStringList(duplicates.scanPaths())) {
        EXPECT_TRUE(view->canScan());
        duplicates.removeScanPath(scanPath);
    }
    EXPECT_FALSE(view->canScan());
    EXPECT_EQ(changes.count(), 3);
    duplicates.addScanPath(path(u"a"_s));
    EXPECT_TRUE(view->canScan());
}
