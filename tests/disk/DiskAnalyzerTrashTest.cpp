#include "base/Files.h"
#include "disk/DiskAnalyzerView.h"
#include "disk/DiskServices.h"

#include <QTimer>

#include <filesystem>

#include <gtest/gtest.h>

namespace {

/// The Disk Analyzer's Move to Trash, over a scanned home with a folder and a file.
struct DiskAnalyzerTrashTest : public testing::Test
{
    DiskServices services;
    TestPlatform &test = services.test;
    std::shared_ptr<DiskAnalyzerView> view;
    QString path = test.temp.file(QStringLiteral("home/big.bin"), QByteArray(9000, 'x'));

    void SetUp() override
    {
        test.temp.file(QStringLiteral("home/folder/inside"), "x");
        view = makeView();
        view->appear();
        test.settle();
    }
    std::shared_ptr<DiskAnalyzerView> makeView()
    {
        return std::make_shared<DiskAnalyzerView>(test.platform, services.disk, services.fileSystem,
                                                  test.access);
    }
    int rowOf(const QString &name) const
    {
        const std::vector<FileEntry> &children = *view->currentEntry()->children;
        for (size_t i = 0; i < children.size(); ++i) {
            if (children[i].name == name)
                return static_cast<int>(i);
        }
        return -1;
    }
    /// Chooses the command in the row's menu and lets the main loop turn until the move has ended.
    void moveToTrash(const QString &name)
    {
        view->moveToTrash(rowOf(name));
        test.mainQueue.run();
    }
    void trashMoves()
    {
        test.recycler.answers = [](const QStringList &paths, const Recycler::Completion &done) {
            std::filesystem::remove_all(paths.constFirst().toStdString());
            done({});
        };
    }
};

} // namespace

TEST_F(DiskAnalyzerTrashTest, movesTheRowsEntryAndOpensTheEntryOnViewOnceMore)
{
    trashMoves();
    const DiskAnalyzerView::Entry shown = view->currentEntry();
    view->moveToTrash(rowOf(QStringLiteral("big.bin")));
    EXPECT_TRUE(test.recycler.recycled.isEmpty()); // not from within the menu's call
    test.mainQueue.run();
    EXPECT_EQ(test.recycler.recycled, QStringList{path});
    EXPECT_FALSE(files::exists(path));
    ASSERT_EQ(view->breadcrumb().size(), 1U);
    EXPECT_EQ(view->currentEntry(), shown);
    // The measured tree is not changed: the row stays until the next scan.
    EXPECT_GE(rowOf(QStringLiteral("big.bin")), 0);
    view->rescan();
    test.settle();
    EXPECT_EQ(rowOf(QStringLiteral("big.bin")), -1);
}

TEST_F(DiskAnalyzerTrashTest, dropsAFailureWithoutAWord)
{
    moveToTrash(QStringLiteral("big.bin")); // the service refuses silently
    EXPECT_TRUE(files::exists(path));
    EXPECT_EQ(view->breadcrumb().size(), 1U);
    EXPECT_TRUE(test.systemLog.lines.isEmpty());
}

TEST_F(DiskAnalyzerTrashTest, isDisabledWhileAScanRuns)
{
    EXPECT_EQ(view->trashText(), QStringLiteral("Move to Trash"));
    EXPECT_TRUE(view->canTrash());
    view->rescan();
    test.mainQueue.run();
    EXPECT_EQ(view->trashText(), QStringLiteral("Move to Trash (wait for scan)"));
    EXPECT_FALSE(view->canTrash());
    view->moveToTrash(0);
    test.mainQueue.run();
    EXPECT_TRUE(test.recycler.recycled.isEmpty());
    test.settle();
    EXPECT_TRUE(view->canTrash());
}

TEST_F(DiskAnalyzerTrashTest, takesNoSecondMoveWhileOneIsUnderWay)
{
    Recycler::Completion answer;
    test.recycler.answers = [&](const QStringList &, Recycler::Completion done) { answer = std::move(done); };
    QObject context;
    QTimer::singleShot(0, &context, [&] {
        EXPECT_FALSE(view->canTrash());
        view->moveToTrash(rowOf(QStringLiteral("folder")));
        answer({});
    });
    moveToTrash(QStringLiteral("big.bin"));
    EXPECT_EQ(test.recycler.recycled, QStringList{path});
    EXPECT_TRUE(view->canTrash());
}

TEST_F(DiskAnalyzerTrashTest, takesNoSecondMoveFromAScreenMadeWhileOneIsUnderWay)
{
    Recycler::Completion answer;
    test.recycler.answers = [&](const QStringList &, Recycler::Completion done) {
        if (answer)
            done({}); // a second move, which must not be, ends at once
        else
            answer = std::move(done);
    };
    const int folder = rowOf(QStringLiteral("folder"));
    std::shared_ptr<DiskAnalyzerView> second;
    std::vector<bool> told;
    QObject context;
    QTimer::singleShot(0, &context, [&] {
        view.reset(); // another screen was chosen, and this one again
        second = makeView();
        QObject::connect(second.get(), &DiskAnalyzerView::scanChanged, &context,
                         [&] { told.push_back(second->canTrash()); });
        EXPECT_FALSE(second->canTrash());
        second->moveToTrash(folder);
        test.mainQueue.run();
        answer({});
    });
    moveToTrash(QStringLiteral("big.bin"));
    EXPECT_EQ(test.recycler.recycled, QStringList{path});
    EXPECT_EQ(told, std::vector<bool>{true});
    ASSERT_TRUE(second->canTrash());
    trashMoves();
    second->moveToTrash(folder);
    test.mainQueue.run();
    EXPECT_EQ(test.recycler.recycled.size(), 2);
}

TEST_F(DiskAnalyzerTrashTest, dropsACommandWhoseTurnComesDuringAnotherMove)
{
    Recycler::Completion answer;
    test.recycler.answers = [&](const QStringList &, Recycler::Completion done) {
        if (answer)
            done({});
        else
            answer = std::move(done);
    };
    view->moveToTrash(rowOf(QStringLiteral("big.bin")));
    view->moveToTrash(rowOf(QStringLiteral("folder")));
    QObject context;
    QTimer::singleShot(0, &context, [&] {
        test.mainQueue.run();
        answer({});
    });
    test.mainQueue.run();
    EXPECT_EQ(test.recycler.recycled, QStringList{path});
    EXPECT_EQ(view->breadcrumb().size(), 1U);
}

TEST_F(DiskAnalyzerTrashTest, dropsACommandWhoseTurnComesDuringAScan)
{
    view->rescan();
    view->moveToTrash(rowOf(QStringLiteral("big.bin"))); // the scan tells of itself in a later turn, too
    test.mainQueue.run();
    EXPECT_TRUE(test.recycler.recycled.isEmpty());
}

TEST_F(DiskAnalyzerTrashTest, livesUntilItsMoveHasEndedThoughAnotherScreenIsChosenMeanwhile)
{
    Recycler::Completion answer;
    test.recycler.answers = [&](const QStringList &, Recycler::Completion done) { answer = std::move(done); };
    const std::weak_ptr<DiskAnalyzerView> model = view;
    bool livesDuringTheMove = false;
    QObject context;
    QTimer::singleShot(0, &context, [&] {
        view.reset(); // another screen was chosen
        livesDuringTheMove = !model.expired();
        answer({});
    });
    moveToTrash(QStringLiteral("big.bin"));
    EXPECT_TRUE(livesDuringTheMove);
    EXPECT_TRUE(model.expired());
}

TEST_F(DiskAnalyzerTrashTest, movesNothingOnceItsScreenIsGone)
{
    view->moveToTrash(rowOf(QStringLiteral("big.bin")));
    view.reset();
    test.mainQueue.run();
    EXPECT_TRUE(test.recycler.recycled.isEmpty());
}

TEST_F(DiskAnalyzerTrashTest, staysWhereTheUserHasGoneMeanwhile)
{
    Recycler::Completion answer;
    test.recycler.answers = [&](const QStringList &, Recycler::Completion done) { answer = std::move(done); };
    QObject context;
    DiskAnalyzerView::Entry elsewhere;
    QTimer::singleShot(0, &context, [&] {
        view->openRow(rowOf(QStringLiteral("folder")));
        elsewhere = view->currentEntry();
        answer({});
    });
    moveToTrash(QStringLiteral("big.bin"));
    EXPECT_EQ(elsewhere->name, QStringLiteral("folder"));
    EXPECT_EQ(view->currentEntry(), elsewhere);
    EXPECT_EQ(view->breadcrumb().size(), 1U);
}

TEST_F(DiskAnalyzerTrashTest, aScanTellsWhetherProtectedFoldersCouldBeRead)
{
    EXPECT_EQ(test.access.deniedContexts(), QSet<QString>{QStringLiteral("Disk Analyzer")});
    EXPECT_TRUE(view->banner()->isShown());
    EXPECT_EQ(view->banner()->title(), QStringLiteral("Some folders couldn't be scanned"));
    test.temp.folder(QStringLiteral("home/Library/Mail"));
    view->appear();
    view->rescan();
    test.settle();
    EXPECT_TRUE(test.access.deniedContexts().isEmpty());
    EXPECT_EQ(view->banner()->title(), QStringLiteral("Full Disk Access enabled"));
}
