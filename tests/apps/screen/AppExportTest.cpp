#include "apps/screen/AppCsv.h"
#include "apps/screen/AppManagerHome.h"
#include "filesystem/InjectedFaults.h"

#include <cerrno>

using namespace Qt::StringLiterals;

namespace {

/// The export of the App Manager's lists.
struct AppExportTest : public AppManagerHome
{
    QString file = test.temp.at(u"list.csv"_s);

    void SetUp() override
    {
        AppManagerHome::SetUp();
        appear();
        test.workspace.chosenSavePath = file;
    }

    QByteArray written() const { return files::readPrefix(file, 1 << 20).value_or(QByteArray("none")); }
};

} // namespace

TEST_F(AppExportTest, savesTheInstalledApps)
{
    EXPECT_EQ(view->tabTexts().exportTip, u"Export installed apps");
    view->exportList();
    EXPECT_EQ(test.workspace.saveRequest.message, u"Export Installed Apps");
    EXPECT_EQ(test.workspace.saveRequest.suggestedName, u"installed_apps.csv");
    EXPECT_EQ(test.workspace.saveRequest.fileType, Workspace::FileType::commaSeparatedText);
    EXPECT_EQ(written(), appcsv::ofInstalled(service->apps(), test.clock.now()));
    EXPECT_EQ(written().count('\n'), 4);
    EXPECT_EQ(test.workspace.calls, QStringList{u"reveal "_s + file});
}

TEST_F(AppExportTest, savesTheGhosts)
{
    view->chooseTab(1);
    test.settle();
    EXPECT_EQ(view->tabTexts().exportTip, u"Export ghost files");
    view->exportList();
    EXPECT_EQ(test.workspace.saveRequest.message, u"Export Ghost Files");
    EXPECT_EQ(test.workspace.saveRequest.suggestedName, u"ghost_files.csv");
    EXPECT_EQ(test.workspace.saveRequest.fileType, Workspace::FileType::commaSeparatedText);
    EXPECT_EQ(written(), appcsv::ofGhosts(service->ghosts()));
    EXPECT_EQ(written().count('\n'), 4);
    EXPECT_EQ(test.workspace.calls, QStringList{u"reveal "_s + file});
}

TEST_F(AppExportTest, writesEveryGhostWhateverTheSearchAndTheTicks)
{
    view->chooseTab(1);
    test.settle();
    view->exportList();
    const QByteArray all = written();
    view->toggleTick(0);
    view->select(1);
    view->toggleFile(0);
    view->lists()->setSearchText(u"departed"_s);
    EXPECT_EQ(ghosts(), QStringList{u"org.departed.thing"_s});
    view->exportList();
    EXPECT_EQ(written(), all);
}

TEST_F(AppExportTest, savesAlsoWhereTheScreenIsLeftWhileThePanelIsUp)
{
    test.workspace.leavesSavePanelUp = true;
    view->exportList();
    close();
    EXPECT_FALSE(isThere(file));
    test.workspace.savePanel(file);
    EXPECT_EQ(written(), appcsv::ofInstalled(service->apps(), test.clock.now()));
    EXPECT_EQ(test.workspace.calls, QStringList{u"reveal "_s + file});
}

TEST_F(AppExportTest, writesEveryAppWhateverTheSearchAndTheOrder)
{
    view->exportList();
    const QByteArray all = written();
    view->lists()->setSearchText(u"no such app"_s);
    view->lists()->chooseSort(0);
    EXPECT_EQ(installed(), QStringList());
    view->exportList();
    EXPECT_EQ(written(), all);
}

TEST_F(AppExportTest, writesNothingAfterACancel)
{
    test.workspace.chosenSavePath.reset();
    view->exportList();
    EXPECT_FALSE(isThere(file));
    EXPECT_TRUE(test.workspace.calls.isEmpty());
}

TEST_F(AppExportTest, leavesTheOldFileWholeWhereTheDiskIsFull)
{
    for (const auto operation : {files::Operation::write, files::Operation::sync, files::Operation::rename}) {
        test.temp.file(u"list.csv"_s, "old");
        {
            const InjectedFaults full([this, operation](files::Operation asked, const QString &at) {
                return asked == operation && at.startsWith(test.temp.path()) ? ENOSPC : 0;
            });
            view->exportList();
        }
        EXPECT_EQ(written(), "old") << static_cast<int>(operation);
        EXPECT_TRUE(test.workspace.calls.isEmpty());
    }
}

TEST_F(AppExportTest, saysNothingWhereThePlaceTakesNoFile)
{
    test.workspace.chosenSavePath = test.temp.at(u"nowhere/list.csv"_s);
    view->exportList();
    EXPECT_TRUE(test.workspace.calls.isEmpty());
    EXPECT_FALSE(view->banner()->isUp());
}

TEST_F(AppExportTest, isThereWithoutAnyApp)
{
    service->takeOut(std::vector<RealInstalledApp>(service->apps()));
    view->exportList();
    EXPECT_EQ(written().count('\n'), 1);
}
