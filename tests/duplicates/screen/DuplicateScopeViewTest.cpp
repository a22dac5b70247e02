#include "duplicates/screen/DuplicateScopeView.h"

#include "common/SettingsKeys.h"
#include "duplicates/DuplicateServices.h"
#include "support/Rows.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

#include <limits>
#include <memory>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QString lockTip = u"Built-in default — always excluded"_s;
const QString openLockTip =
    u"Overridden — a scan path is pointing inside this folder, so it WILL be scanned."_s;
const QString builtInRules =
    u"~/Library ~/.Trash ~/DerivedData node_modules .git DerivedData .build __pycache__"_s;

/// The panel that says what a duplicate scan looks at.
struct DuplicateScopeViewTest : public testing::Test
{
    DuplicateServices services;
    TestPlatform &test = services.test;
    DuplicateService &duplicates = services.duplicates;
    const QString home = test.home;
    std::unique_ptr<DuplicateScopeView> view =
        std::make_unique<DuplicateScopeView>(test.platform, duplicates);
    const QAbstractItemModelTester folders{view->scanPaths(),
                                           QAbstractItemModelTester::FailureReportingMode::Fatal};
    const QAbstractItemModelTester locks{view->rules(),
                                         QAbstractItemModelTester::FailureReportingMode::Fatal};

    QString folderTexts() const { return columnTexts(view->scanPaths(), "pathText").join(u' '); }
    QString ruleTexts() const { return columnTexts(view->rules(), "ruleText").join(u' '); }
    QVariant rule(const QString &text, const QByteArray &role) const
    {
        const auto row = columnTexts(view->rules(), "ruleText").indexOf(text);
        return rowValue(view->rules(), static_cast<int>(row), role);
    }

    /// What the desktop hands over for a path that is dropped.
    static QUrl url(const QString &path) { return QUrl::fromEncoded(paths::fileUrl(path)); }

    /// Drops these on the panel, and gives what the scan paths are then without the home folder.
    QStringList dropped(const QList<QUrl> &urls)
    {
        view->dropFolders(urls);
        test.settle();
        return duplicates.scanPaths().mid(1);
    }
};

} // namespace

TEST_F(DuplicateScopeViewTest, beginsWithTheHomeFolderAndTheBuiltInLocks)
{
    EXPECT_EQ(folderTexts(), u"~"_s);
    EXPECT_EQ(ruleTexts(), builtInRules);
    EXPECT_TRUE(view->hasScanPaths());
    for (int row = 0; row < 8; ++row) {
        EXPECT_EQ(rowValue(view->rules(), row, "symbol"), u"lock.fill"_s) << row;
        EXPECT_EQ(rowValue(view->rules(), row, "hint"), lockTip) << row;
        EXPECT_EQ(rowValue(view->rules(), row, "isOverridden"), false) << row;
        EXPECT_EQ(rowValue(view->rules(), row, "canBeRemoved"), false) << row;
    }
}

TEST_F(DuplicateScopeViewTest, writesTheHomeFolderAsATilde)
{
    duplicates.addScanPath(home + u"/Pictures"_s);
    duplicates.addScanPath(home + u"2/Pictures"_s);
    duplicates.addScanPath(u"/mnt/"_s + paths::fromBytes("d\xFF"));
    EXPECT_EQ(folderTexts(), u"~ ~/Pictures "_s + home + u"2/Pictures /mnt/d\uFFFD"_s);
    duplicates.addIgnorePath(home + u"/Private"_s);
    EXPECT_EQ(ruleTexts(), builtInRules + u" ~/Private"_s);
}

TEST_F(DuplicateScopeViewTest, tellsWhereTheListOfFoldersHasBecomeEmpty)
{
    const QSignalSpy changes(view.get(), &DuplicateScopeView::scopeChanged);
    view->removeScanPath(0);
    EXPECT_FALSE(view->hasScanPaths());
    EXPECT_EQ(view->scanPaths()->rowCount(), 0);
    EXPECT_EQ(changes.count(), 1);
}

TEST_F(DuplicateScopeViewTest, opensTheLockOfAFolderThatAScanPathLeadsInto)
{
    for (const QString &inside : {u"/Library/Mail"_s, u"/Library"_s}) {
        duplicates.addScanPath(home + inside);
        EXPECT_EQ(rule(u"~/Library"_s, "isOverridden"), true);
        EXPECT_EQ(rule(u"~/Library"_s, "symbol"), u"lock.open.fill"_s);
        EXPECT_EQ(rule(u"~/Library"_s, "hint"), openLockTip);
        EXPECT_EQ(rule(u"~/Library"_s, "canBeRemoved"), false);
        EXPECT_EQ(rule(u"~/.Trash"_s, "symbol"), u"lock.fill"_s);
        view->removeScanPath(1);
        EXPECT_EQ(rule(u"~/Library"_s, "symbol"), u"lock.fill"_s);
    }
    duplicates.addScanPath(home + u"/Lib"_s);
    duplicates.addScanPath(home + u"/node_modules"_s);
    EXPECT_EQ(columnTexts(view->rules(), "isOverridden"), QStringList(8, u"false"_s));
}

TEST_F(DuplicateScopeViewTest, tellsAViewOfTheLockThatOpens)
{
    QSignalSpy changes(view->rules(), &QAbstractItemModel::dataChanged);
    duplicates.addScanPath(home + u"/Library"_s);
    ASSERT_EQ(changes.count(), 1);
    EXPECT_EQ(changes[0][0].toModelIndex().row(), 0);
}

TEST_F(DuplicateScopeViewTest, hasNoLockOnARuleOfTheUsersOwn)
{
    duplicates.addIgnorePath(home); // and a scan path as well, which is no override
    EXPECT_EQ(rule(u"~"_s, "symbol"), u"folder.badge.minus"_s);
    EXPECT_EQ(rule(u"~"_s, "hint"), QString());
    EXPECT_EQ(rule(u"~"_s, "isOverridden"), false);
    EXPECT_EQ(rule(u"~"_s, "canBeRemoved"), true);
}

TEST_F(DuplicateScopeViewTest, removesOnlyRulesOfTheUsersOwn)
{
    duplicates.addIgnorePath(u"/mnt"_s);
    duplicates.addScanPath(home + u"/Library"_s);
    for (const int row : {0, 3, 7, -1, 9}) // open and closed locks, and none
        view->removeExclusion(row);
    EXPECT_EQ(ruleTexts(), builtInRules + u" /mnt"_s);
    view->removeExclusion(8);
    EXPECT_EQ(ruleTexts(), builtInRules);
}

TEST_F(DuplicateScopeViewTest, removesAScanPath)
{
    duplicates.addScanPath(u"/a"_s);
    duplicates.addScanPath(u"/b"_s);
    view->removeScanPath(-1);
    view->removeScanPath(3);
    EXPECT_EQ(folderTexts(), u"~ /a /b"_s);
    view->removeScanPath(1);
    EXPECT_EQ(folderTexts(), u"~ /b"_s);
}

TEST_F(DuplicateScopeViewTest, asksForAFolderToScan)
{
    test.workspace.chosenFolder = u"/chosen"_s;
    view->addFolder();
    EXPECT_EQ(test.workspace.folderRequest.message, u"Select a directory to scan for duplicates"_s);
    EXPECT_EQ(test.workspace.folderRequest.start, QString());
    EXPECT_TRUE(test.workspace.folderRequest.showsHidden);
    EXPECT_EQ(folderTexts(), u"~ /chosen"_s);
    view->addFolder();
    EXPECT_EQ(folderTexts(), u"~ /chosen"_s); // once
}

TEST_F(DuplicateScopeViewTest, asksForAFolderToExclude)
{
    test.workspace.chosenFolder = home + u"/Private"_s;
    view->addExclusion();
    EXPECT_EQ(test.workspace.folderRequest.message, u"Select a directory to exclude from scanning"_s);
    EXPECT_EQ(test.workspace.folderRequest.start, QString());
    EXPECT_TRUE(test.workspace.folderRequest.showsHidden);
    EXPECT_EQ(ruleTexts(), builtInRules + u" ~/Private"_s);
}

TEST_F(DuplicateScopeViewTest, asksForAnotherFolderInThePlaceOfOne)
{
    duplicates.addScanPath(u"/a"_s);
    duplicates.addScanPath(u"/b"_s);
    test.workspace.chosenFolder = u"/chosen"_s;
    view->changeScanPath(1);
    EXPECT_EQ(test.workspace.folderRequest.message, u"Choose a different folder to scan"_s);
    EXPECT_EQ(test.workspace.folderRequest.start, u"/a"_s);
    EXPECT_TRUE(test.workspace.folderRequest.showsHidden);
    EXPECT_EQ(folderTexts(), u"~ /chosen /b"_s);
    view->changeScanPath(1); // the same once more
    EXPECT_EQ(folderTexts(), u"~ /chosen /b"_s);
}

TEST_F(DuplicateScopeViewTest, keepsTheRowOfAFolderThatIsChanged)
{
    duplicates.addScanPath(u"/a"_s);
    duplicates.addScanPath(u"/b"_s);
    const QSignalSpy gone(view->scanPaths(), &QAbstractItemModel::rowsRemoved);
    const QSignalSpy changed(view->scanPaths(), &QAbstractItemModel::dataChanged);
    test.workspace.chosenFolder = u"/chosen"_s;
    view->changeScanPath(1);
    EXPECT_EQ(folderTexts(), u"~ /chosen /b"_s);
    EXPECT_EQ(gone.count(), 0);
    EXPECT_EQ(changed.count(), 1);
}

TEST_F(DuplicateScopeViewTest, dropsAFolderThatIsReplacedByAnotherOfTheList)
{
    duplicates.addScanPath(u"/a"_s);
    duplicates.addScanPath(u"/b"_s);
    test.workspace.chosenFolder = u"/b"_s;
    view->changeScanPath(0);
    EXPECT_EQ(test.workspace.folderRequest.start, home);
    EXPECT_EQ(folderTexts(), u"/a /b"_s);
}

TEST_F(DuplicateScopeViewTest, changesNothingWhenNoFolderIsChosen)
{
    const QSignalSpy changes(view.get(), &DuplicateScopeView::scopeChanged);
    test.workspace.chosenFolder.reset();
    view->addFolder();
    view->addExclusion();
    view->changeScanPath(0);
    EXPECT_EQ(folderTexts(), u"~"_s);
    EXPECT_EQ(ruleTexts(), builtInRules);
    EXPECT_EQ(changes.count(), 0);
}

TEST_F(DuplicateScopeViewTest, opensNoPickerForARowThatIsNotThere)
{
    test.workspace.chosenFolder = u"/chosen"_s;
    view->changeScanPath(-1);
    view->changeScanPath(1);
    EXPECT_EQ(test.workspace.folderRequest.message, QString());
    EXPECT_EQ(folderTexts(), u"~"_s);
}

TEST_F(DuplicateScopeViewTest, offersTheDefaultsWhereTheyWouldChangeSomething)
{
    EXPECT_FALSE(view->canReset());
    duplicates.addScanPath(u"/a"_s);
    EXPECT_TRUE(view->canReset());
    duplicates.removeScanPath(u"/a"_s);
    EXPECT_FALSE(view->canReset());
    duplicates.addIgnorePath(u"/b"_s);
    EXPECT_TRUE(view->canReset());
    view->resetToDefaults();
    EXPECT_FALSE(view->canReset());
    view->chooseMinSize(4);
    EXPECT_FALSE(view->canReset()) << "the smallest file is no part of the two lists";
}

TEST_F(DuplicateScopeViewTest, goesBackToTheDefaults)
{
    duplicates.addScanPath(u"/a"_s);
    view->removeScanPath(0);
    duplicates.addIgnorePath(u"/b"_s);
    view->chooseMinSize(4);
    view->resetToDefaults();
    EXPECT_EQ(folderTexts(), u"~"_s);
    EXPECT_EQ(ruleTexts(), builtInRules);
    EXPECT_EQ(view->minSizeText(), u"10 MB"_s); // no part of the two lists
}

TEST_F(DuplicateScopeViewTest, offersFiveSizes)
{
    std::vector<std::pair<QString, qint64>> options;
    for (const DuplicateScopeView::MinSizeOption &option : DuplicateScopeView::minSizeOptions())
        options.emplace_back(option.label, option.bytes);
    const std::vector<std::pair<QString, qint64>> expected = {{u"1 KB"_s, 1024},
                                                              {u"10 KB"_s, 10240},
                                                              {u"100 KB"_s, 102400},
                                                              {u"1 MB"_s, 1048576},
                                                              {u"10 MB"_s, 10485760}};
    EXPECT_EQ(options, expected);
    EXPECT_EQ(view->minSizeLabels().join(u','), u"1 KB,10 KB,100 KB,1 MB,10 MB"_s);
    EXPECT_EQ(view->minSizeIndex(), 2);
    EXPECT_EQ(view->minSizeText(), u"100 KB"_s);
}

TEST_F(DuplicateScopeViewTest, setsTheSizeAndKeepsItInTheSettings)
{
    const QSignalSpy changes(view.get(), &DuplicateScopeView::minSizeChanged);
    for (int index = 0; index < 5; ++index) {
        view->chooseMinSize(index);
        const qint64 bytes = DuplicateScopeView::minSizeOptions()[static_cast<size_t>(index)].bytes;
        EXPECT_EQ(duplicates.minFileSize(), bytes);
        EXPECT_EQ(test.defaults.integerIfAny(settings::duplicateMinSize), bytes);
        EXPECT_EQ(view->minSizeIndex(), index);
        EXPECT_EQ(view->minSizeText(), view->minSizeLabels()[index]);
    }
    EXPECT_EQ(changes.count(), 5);
    for (const int index : {-1, 5, 1000})
        view->chooseMinSize(index);
    EXPECT_EQ(duplicates.minFileSize(), 10485760);
    EXPECT_EQ(changes.count(), 5);
}

TEST_F(DuplicateScopeViewTest, showsASizeThatIsNoneOfTheChoices)
{
    const std::vector<std::pair<qint64, QString>> sizes = {
        {5000, u"4.9 KB"_s},   {0, u"0 B"_s},
        {-5, u"0 B"_s},        {std::numeric_limits<qint64>::max(), u"1024 TB"_s},
        {102401, u"100 KB"_s},
    };
    for (const auto &[bytes, text] : sizes) {
        duplicates.setMinFileSize(bytes);
        EXPECT_EQ(view->minSizeIndex(), -1) << bytes;
        EXPECT_EQ(view->minSizeText(), text) << bytes;
    }
}

TEST_F(DuplicateScopeViewTest, addsFoldersThatAreDropped)
{
    const QString first = test.temp.folder(u"drop/first"_s);
    const QString second = test.temp.folder(u"drop/a b#c?d%20é"_s);
    EXPECT_EQ(dropped({url(second), url(first)}), QStringList({second, first}));
    EXPECT_EQ(dropped({url(first), url(first), url(home)}), QStringList({second, first}));
    EXPECT_EQ(duplicates.scanPaths().constFirst(), home);
}

TEST_F(DuplicateScopeViewTest, passesOverWhatIsNoFolder)
{
    const QString folder = test.temp.folder(u"drop/folder"_s);
    const QString file = test.temp.file(u"drop/file"_s, "x");
    const QString lost = test.temp.link(u"drop/lost"_s, u"nowhere"_s);
    const QString link = test.temp.link(u"drop/link to file"_s, u"file"_s);
    EXPECT_EQ(dropped({url(file), url(folder + u"/missing"_s), url(lost), url(link), url(file + u'/'),
                       QUrl(u"https://example.org/"_s), QUrl(), QUrl(folder), url(folder)}),
              QStringList{folder});
}

TEST_F(DuplicateScopeViewTest, addsALinkToAFolderAsItIs)
{
    test.temp.folder(u"drop/folder"_s);
    const QString link = test.temp.link(u"drop/link"_s, u"folder"_s);
    EXPECT_EQ(dropped({url(link)}), QStringList{link});
}

TEST_F(DuplicateScopeViewTest, cutsASlashFromTheEndOfADroppedFolder)
{
    const QString folder = test.temp.folder(u"drop/folder"_s);
    EXPECT_EQ(dropped({url(folder + u'/'), url(folder + u"//"_s), url(folder)}), QStringList{folder});
    EXPECT_EQ(dropped({url(u"/"_s)}), QStringList({folder, u"/"_s}));
}

TEST_F(DuplicateScopeViewTest, addsDroppedFoldersWhoseNamesAreNoText)
{
    const QString folder = test.temp.folder(u"drop/"_s + paths::fromBytes("d\xFF\xC3"));
    EXPECT_EQ(dropped({QUrl::fromEncoded(paths::fileUrl(test.temp.at(u"drop"_s)) + "/d%FF%C3")}),
              QStringList{folder});
    EXPECT_TRUE(folderTexts().endsWith(u"/drop/d\uFFFD\uFFFD"_s));
}

TEST_F(DuplicateScopeViewTest, looksAtWhatIsDroppedOffTheMainThread)
{
    const QString folder = test.temp.folder(u"drop/folder"_s);
    view->dropFolders({url(folder)});
    EXPECT_EQ(test.workQueue.waiting(), 1U);
    EXPECT_EQ(test.workQueue.lastPriority(), WorkPriority::userInitiated);
    test.mainQueue.run();
    EXPECT_EQ(duplicates.scanPaths(), QStringList{home});
    test.workQueue.run();
    EXPECT_EQ(duplicates.scanPaths(), QStringList{home}); // the list changes on the main thread only
    test.mainQueue.run();
    EXPECT_EQ(duplicates.scanPaths(), QStringList({home, folder}));
    EXPECT_EQ(folderTexts(), u"~ "_s + folder);
}

TEST_F(DuplicateScopeViewTest, addsWhatIsDroppedThoughItsPanelIsGone)
{
    const QString folder = test.temp.folder(u"drop/folder"_s);
    view->dropFolders({url(folder)});
    view.reset();
    test.settle();
    EXPECT_EQ(duplicates.scanPaths(), QStringList({home, folder}));
}
