#include "apps/uninstall/UninstallHome.h"

#include <cerrno>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct UninstallTest : public testing::Test
{
    UninstallHome home;
    TestPlatform &test = home.test;
    RealInstalledApp app = home.app(u"Notes"_s);
    std::vector<AssociatedFile> some = {home.file(u"Caches/com.example.Notes"_s, 10),
                                        home.file(u"Preferences/com.example.Notes.plist"_s, 20)};

    UninstallReport run() { return appuninstall::run(app, some, home.tools()); }
    HistoryEntry record()
    {
        const auto records = home.records();
        EXPECT_EQ(records.size(), 1U);
        return records.empty() ? HistoryEntry() : records.front();
    }
};

} // namespace

TEST_F(UninstallTest, movesTheBundleAndThenItsFiles)
{
    const UninstallReport report = run();
    EXPECT_EQ(test.recycler.recycled, QStringList({app.path, some[0].path, some[1].path}));
    EXPECT_TRUE(home.isTrashed(app.path));
    EXPECT_EQ(report.appPath, app.path);
    EXPECT_TRUE(report.appWasMoved);
    EXPECT_FALSE(report.appError);
    EXPECT_EQ(report.filesRemoved, 2);
    EXPECT_EQ(report.filesFailedCount, 0);
    EXPECT_EQ(report.freedSize, 1030);
    EXPECT_EQ(test.systemLog.lines,
              QStringList{u"info AppManager: Uninstalled Notes: 3 items, 1030 bytes"_s});
}

TEST_F(UninstallTest, recordsACompleteRun)
{
    run();
    const HistoryEntry entry = record();
    EXPECT_FALSE(entry.id.isNull());
    EXPECT_EQ(entry.timestamp, test.clock.now());
    EXPECT_EQ(entry.kind, HistoryEntry::Kind::uninstall);
    EXPECT_EQ(entry.title, u"Uninstalled Notes");
    EXPECT_EQ(entry.paths, QStringList({app.path, some[0].path, some[1].path}));
    EXPECT_EQ(entry.bytesAffected, 1030);
    EXPECT_TRUE(entry.success);
    EXPECT_EQ(entry.detail, std::nullopt);
}

TEST_F(UninstallTest, leavesFilesThatAreNotSelected)
{
    some[0].selected = false;
    const UninstallReport report = run();
    EXPECT_TRUE(home.isThere(some[0].path));
    EXPECT_EQ(report.filesRemoved, 1);
    EXPECT_EQ(report.freedSize, 1020);
    EXPECT_EQ(record().paths, QStringList({app.path, some[1].path}));
}

TEST_F(UninstallTest, goesOnWithTheFilesWhereTheBundleHasToStay)
{
    home.refused = {app.path};
    const UninstallReport report = run();
    EXPECT_FALSE(report.appWasMoved);
    ASSERT_TRUE(report.appError);
    EXPECT_EQ(report.appError->description, u"The disk says no.");
    EXPECT_EQ(report.filesRemoved, 2);
    EXPECT_EQ(test.systemLog.lines,
              QStringList{u"error AppManager: Uninstall Notes failed: The disk says no."_s});
    const HistoryEntry entry = record();
    EXPECT_EQ(entry.title, u"Uninstall failed: Notes");
    EXPECT_FALSE(entry.success);
    EXPECT_EQ(entry.detail, u"The disk says no.");
}

TEST_F(UninstallTest, doesNotCountTheBundlesSizeWhereItHasToStay)
{
    home.refused = {app.path};
    EXPECT_EQ(run().freedSize, 30);
    EXPECT_EQ(record().bytesAffected, 30);
}

TEST_F(UninstallTest, countsFilesThatHaveToStay)
{
    home.refused = {some[0].path};
    const UninstallReport report = run();
    EXPECT_TRUE(report.appWasMoved);
    EXPECT_FALSE(report.appError);
    EXPECT_FALSE(report.isComplete());
    EXPECT_EQ(report.filesRemoved, 1);
    EXPECT_EQ(report.filesFailedCount, 1);
    EXPECT_EQ(report.freedSize, 1020);
    EXPECT_EQ(test.systemLog.lines,
              QStringList{u"error AppManager: Uninstall Notes partial: 1 files failed"_s});
    const HistoryEntry entry = record();
    EXPECT_EQ(entry.title, u"Uninstall failed: Notes");
    EXPECT_FALSE(entry.success);
    EXPECT_EQ(entry.detail, u"1 associated file(s) couldn't be moved.");
    EXPECT_EQ(entry.paths.size(), 3);
}

TEST_F(UninstallTest, recordsAVanishedFileAndDoesNotCountIt)
{
    std::filesystem::remove(some[0].path.toStdString());
    const UninstallReport report = run();
    EXPECT_EQ(report.filesRemoved, 1);
    EXPECT_EQ(report.filesFailedCount, 0);
    EXPECT_EQ(report.freedSize, 1020);
    EXPECT_EQ(test.recycler.recycled, QStringList({app.path, some[1].path}));
    const HistoryEntry entry = record();
    EXPECT_TRUE(entry.success);
    EXPECT_EQ(entry.paths, QStringList({app.path, some[0].path, some[1].path}));
}

TEST_F(UninstallTest, takesAVanishedBundleForMoved)
{
    std::filesystem::remove_all(app.path.toStdString());
    EXPECT_TRUE(run().isComplete());
}

TEST_F(UninstallTest, recordsTheFirst200Paths)
{
    some.clear();
    for (int i = 0; i < 250; ++i)
        some.push_back(home.file(u"Caches/entry-%1"_s.arg(i)));
    EXPECT_EQ(run().filesRemoved, 250);
    const QStringList paths = record().paths;
    ASSERT_EQ(paths.size(), 200);
    EXPECT_EQ(paths.first(), app.path);
    EXPECT_EQ(paths.last(), some[198].path);
}

TEST_F(UninstallTest, recordsAFileThatWasFoundTwiceTwice)
{
    some = {some[0], some[0]};
    const UninstallReport report = run();
    EXPECT_EQ(report.filesRemoved, 1);
    EXPECT_EQ(report.filesFailedCount, 0);
    EXPECT_EQ(record().paths, QStringList({app.path, some[0].path, some[0].path}));
}

TEST_F(UninstallTest, tellsOfAFullDisk)
{
    test.recycler.answers = [](const QStringList &, const Recycler::Completion &done) {
        done({{}, errors::fromErrno(ENOSPC)});
    };
    const UninstallReport report = run();
    EXPECT_FALSE(report.appWasMoved);
    EXPECT_EQ(report.appError->code, ENOSPC);
    EXPECT_EQ(report.filesFailedCount, 2);
    EXPECT_EQ(report.freedSize, 0);
    EXPECT_TRUE(home.isThere(app.path));
    EXPECT_TRUE(home.isThere(some[0].path));
    EXPECT_EQ(record().detail, report.appError->description);
}

TEST_F(UninstallTest, movesALinkItselfAndNotWhatItLeadsTo)
{
    const QString kept = test.temp.file(u"home/Documents/plan.txt"_s, "mine");
    const QString link = test.temp.link(u"home/Library/Caches/com.example.Link"_s, paths::parent(kept));
    some = {{ids::fresh(), link, u"Cache"_s, 10, true}};
    EXPECT_EQ(run().filesRemoved, 1);
    EXPECT_TRUE(home.isThere(kept));
    EXPECT_FALSE(home.isThere(link));
}

TEST_F(UninstallTest, removesNothingElsewhereThanDirectlyInTheFoldersForIt)
{
    const QString library = home.inLibrary({});
    const QString document = test.temp.file(u"home/Documents/plan.txt"_s, "mine");
    const QString deeper = test.temp.file(u"home/Library/Caches/a/b"_s, "mine");
    some.clear();
    for (const QString &path : {document, paths::parent(document), deeper, home.inLibrary(u"Caches"_s),
                                home.inLibrary(u"Caches/"_s), home.inLibrary(u"Caches/."_s),
                                home.inLibrary(u"Caches/.."_s), home.inLibrary(u"Caches/../../Documents"_s),
                                home.inLibrary(u"Caches/a/"_s), library, test.home, u"/"_s})
        some.push_back({ids::fresh(), path, u"Cache"_s, 10, true});
    const UninstallReport report = run();
    EXPECT_EQ(test.recycler.recycled, QStringList{app.path});
    EXPECT_EQ(report.filesRemoved, 0);
    EXPECT_EQ(report.filesFailedCount, static_cast<int>(some.size()));
    EXPECT_TRUE(home.isThere(document));
    EXPECT_TRUE(home.isThere(deeper));
}

TEST_F(UninstallTest, removesNoBundleInAFolderThatLeadsOutOfThoseForApplications)
{
    const QString document = test.temp.file(u"home/Documents/Mine.app/x"_s);
    const QString tools = test.temp.link(u"Applications/Tools"_s, test.temp.at(u"home/Documents"_s));
    some.clear();
    app.path = paths::join(tools, u"Mine.app"_s);
    const UninstallReport report = run();
    EXPECT_FALSE(report.appWasMoved);
    ASSERT_TRUE(report.appError);
    EXPECT_EQ(report.appError->code, EPERM);
    EXPECT_THROW(appuninstall::runAsAdministrator(app.path, home.tools()), Error);
    EXPECT_TRUE(home.isThere(document));
    EXPECT_TRUE(test.recycler.recycled.isEmpty());
    EXPECT_TRUE(test.recycler.moved.isEmpty());
}

TEST_F(UninstallTest, passesOverVanishedFilesWhereverTheyWere)
{
    some.clear();
    for (const QString &path : {u""_s, u"Caches/a"_s, home.inLibrary(u"Caches/a"_s) + QChar(0) + u"b"_s,
                                test.temp.at(u"home/Documents/vanished"_s)})
        some.push_back({ids::fresh(), path, u"Cache"_s, 10, true});
    const UninstallReport report = run();
    EXPECT_EQ(report.filesRemoved, 0);
    EXPECT_EQ(report.filesFailedCount, 0);
    EXPECT_EQ(test.recycler.recycled, QStringList{app.path});
}

TEST_F(UninstallTest, removesABundleBehindALinkWithinTheFolderForApplications)
{
    test.temp.file(u"Applications/Real/Mine.app/x"_s);
    app.path = paths::join(test.temp.link(u"Applications/Tools"_s, u"Real"_s), u"Mine.app"_s);
    EXPECT_TRUE(run().appWasMoved);
}

TEST_F(UninstallTest, takesABundleForMovedWhoseFolderHasVanishedToo)
{
    app.path = home.inApplications(u"Tools/Mine.app"_s);
    EXPECT_TRUE(run().appWasMoved);
    EXPECT_NO_THROW(appuninstall::runAsAdministrator(app.path, home.tools()));
}

TEST_F(UninstallTest, removesNoBundleThatAScanDoesNotList)
{
    test.temp.file(u"home/Documents/Mine.app/x"_s);
    test.temp.file(u"Applications/Tools/Deep/Deeper.app/x"_s);
    test.temp.file(u"Applications/Plain/x"_s);
    some.clear();
    for (const QString &path :
         {test.temp.at(u"home/Documents/Mine.app"_s), home.inApplications(u"Plain"_s),
          home.inApplications(u"Tools/Deep/Deeper.app"_s), test.temp.at(u"Applications"_s),
          home.inApplications(u"../home/Documents/Mine.app"_s)}) {
        app.path = path;
        const UninstallReport report = run();
        EXPECT_FALSE(report.appWasMoved);
        EXPECT_EQ(report.appError->code, EPERM);
        EXPECT_THROW(appuninstall::runAsAdministrator(path, home.tools()), Error);
        EXPECT_TRUE(home.isThere(path)) << path.toStdString();
    }
    EXPECT_TRUE(test.recycler.recycled.isEmpty());
    EXPECT_TRUE(test.recycler.moved.isEmpty());
}

TEST_F(UninstallTest, removesABundleInAFolderOfTheApplications)
{
    test.temp.file(u"Applications/Utilities/Ruler.app/x"_s);
    app.path = home.inApplications(u"Utilities/Ruler.app"_s);
    EXPECT_TRUE(run().appWasMoved);
    EXPECT_FALSE(home.isThere(app.path));
}

TEST_F(UninstallTest, takesTheBundleAlongAsAnAdministrator)
{
    appuninstall::runAsAdministrator(app.path, home.tools());
    EXPECT_EQ(test.recycler.moved, QStringList{app.path});
    EXPECT_TRUE(home.isTrashed(app.path));
    appuninstall::runAsAdministrator(app.path, home.tools()); // nothing there is a success
    EXPECT_EQ(test.recycler.moved.size(), 1);
}
