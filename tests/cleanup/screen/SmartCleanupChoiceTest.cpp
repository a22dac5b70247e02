#include "SmartCleanupHome.h"

using namespace Qt::StringLiterals;

namespace {

struct SmartCleanupChoiceTest : public SmartCleanupHome
{
    void SetUp() override
    {
        SmartCleanupHome::SetUp();
        appear();
    }

    QSet<QString> picked(const QString &id) const { return cleanup.selectedFilePaths().value(id); }
};

} // namespace

TEST_F(SmartCleanupChoiceTest, lockedRowCannotBeTickedUntilItWasReviewed)
{
    view->toggleTick(rowOf(u"Trash"_s));
    view->toggle(rowOf(u"Trash"_s));
    EXPECT_FALSE(flag(u"Trash"_s, "isTicked"));
    openPreview(u"Trash"_s);
    view->toggleReviewed(kindAt(u"note"_s));
    view->toggleTick(rowOf(u"Trash"_s));
    EXPECT_TRUE(flag(u"Trash"_s, "isTicked"));
    EXPECT_EQ(view->selectedFigure(), u"3.0 B");
}

TEST_F(SmartCleanupChoiceTest, takingTheMarkBackUntiesTheTickAndKeepsTheFiles)
{
    openPreview(u"Trash"_s);
    const int note = kindAt(u"note"_s);
    view->toggleReviewed(note);
    view->toggleFile(rowOf(u"three"_s));
    EXPECT_TRUE(flag(u"Trash"_s, "isTicked"));
    view->toggleReviewed(note);
    EXPECT_FALSE(flag(u"Trash"_s, "isTicked"));
    EXPECT_TRUE(flag(u"three"_s, "isTicked"));
    view->toggleReviewed(note);
    EXPECT_TRUE(flag(u"Trash"_s, "isTicked"));
}

TEST_F(SmartCleanupChoiceTest, safeCategoryHasNoMark)
{
    openPreview(u"Log Files"_s);
    view->toggleReviewed(kindAt(u"note"_s));
    EXPECT_FALSE(cleanup.reviewedUnsafe().contains(u"logs"_s));
}

TEST_F(SmartCleanupChoiceTest, pickingInALockedCategoryDoesNotTickIt)
{
    openPreview(u"Old Downloads"_s);
    view->toggleFile(rowOf(u"old"_s));
    EXPECT_TRUE(flag(u"old"_s, "isTicked"));
    EXPECT_FALSE(flag(u"Old Downloads"_s, "isTicked"));
    EXPECT_FALSE(view->hasSelected());
}

TEST_F(SmartCleanupChoiceTest, droppingTheLastFileUnticksItsCategory)
{
    openPreview(u"Log Files"_s);
    view->toggleFile(rowOf(u"one"_s));
    EXPECT_TRUE(flag(u"Log Files"_s, "isTicked"));
    view->toggleFile(rowOf(u"one"_s));
    EXPECT_FALSE(flag(u"Log Files"_s, "isTicked"));
}

TEST_F(SmartCleanupChoiceTest, selectAllPassesOverWhatIsLocked)
{
    openPreview(u"Old Downloads"_s);
    view->toggleFile(rowOf(u"old"_s));
    view->selectAll();
    EXPECT_TRUE(flag(u"Log Files"_s, "isTicked"));
    for (const QString &name : {u"Old Downloads"_s, u"Trash"_s, u"Empty Folders"_s})
        EXPECT_FALSE(flag(name, "isTicked")) << name.toStdString();
    view->selectNone();
    EXPECT_FALSE(flag(u"Log Files"_s, "isTicked"));
    EXPECT_TRUE(flag(u"old"_s, "isTicked")) << "files stay picked";
}

TEST_F(SmartCleanupChoiceTest, previewSelectsAllAndNone)
{
    openPreview(u"Log Files"_s);
    const int guide = kindAt(u"guide"_s);
    view->selectAllFiles(guide);
    EXPECT_EQ(picked(u"logs"_s).size(), 2);
    EXPECT_TRUE(flag(u"Log Files"_s, "isTicked"));
    view->selectNoFiles(guide);
    EXPECT_TRUE(picked(u"logs"_s).isEmpty());
    EXPECT_FALSE(flag(u"Log Files"_s, "isTicked"));
}

TEST_F(SmartCleanupChoiceTest, clickOpensACategoryAndPicksAFile)
{
    view->activate(0);
    test.settle();
    EXPECT_TRUE(flag(u"Log Files"_s, "isExpanded"));
    view->activate(rowOf(u"one"_s));
    EXPECT_EQ(picked(u"logs"_s), QSet<QString>{at(u"Library/Logs/one"_s)});
    for (const QString &kind : {u"note"_s, u"guide"_s, u"end"_s})
        view->activate(kindAt(kind));
    EXPECT_EQ(picked(u"logs"_s).size(), 1);
}

TEST_F(SmartCleanupChoiceTest, keysDoWhatARowIsFor)
{
    makeLogs(118);
    view->toggle(0);
    EXPECT_TRUE(flag(u"Log Files"_s, "isTicked"));
    view->toggle(0);
    view->open(0);
    test.settle();
    EXPECT_TRUE(flag(u"Log Files"_s, "isExpanded"));
    view->toggle(3);
    EXPECT_EQ(picked(u"logs"_s).size(), 1);
    view->open(3);
    EXPECT_TRUE(picked(u"logs"_s).isEmpty());
    view->open(kindAt(u"end"_s));
    EXPECT_EQ(text(kindAt(u"end"_s), "title"), u"Showing all 120 files, sorted by size.");
    openPreview(u"Trash"_s);
    const int note = kindAt(u"note"_s, rowOf(u"Trash"_s));
    view->open(note);
    EXPECT_FALSE(flag(u"Trash"_s, "isLocked"));
    view->toggle(note);
    EXPECT_TRUE(flag(u"Trash"_s, "isLocked"));
}

TEST_F(SmartCleanupChoiceTest, fileMenuDoesWhatItSays)
{
    openPreview(u"Log Files"_s);
    const int row = rowOf(u"one"_s);
    const QString path = at(u"Library/Logs/one"_s);
    view->openFile(row);
    view->revealFile(row);
    view->copyPath(row);
    EXPECT_EQ(test.workspace.calls, QStringList({u"open "_s + path, u"reveal "_s + path}));
    EXPECT_EQ(test.workspace.clipboard, path);
    EXPECT_EQ(view->toggleText(row), u"Include in Cleanup");
    view->toggleFile(row);
    EXPECT_EQ(view->toggleText(row), u"Exclude from Cleanup");
}

TEST_F(SmartCleanupChoiceTest, categoryIsRevealedAtItsFirstPlace)
{
    view->revealCategory(rowOf(u"Log Files"_s));
    view->revealCategory(rowOf(u"Empty Folders"_s));
    EXPECT_EQ(test.workspace.calls,
              QStringList({u"show "_s + at(u"Library/Logs"_s), u"show "_s + at(u"Downloads/Hollow"_s)}));
}

// Browsers keep their caches at a dozen places there, most of which nobody has.
TEST_F(SmartCleanupChoiceTest, categoryIsRevealedAtAPlaceThatIsThereOnLinuxToo)
{
    CleanupServices linux;
    linux.test.usesLinuxLocations = true;
    linux.file(u".cache/mozilla/entry"_s);
    SmartCleanupView screen(linux.test.platform, *linux.cleanup, linux.fileSystem, linux.test.access);
    linux.scan();
    screen.revealCategory(0);
    EXPECT_EQ(linux.test.workspace.calls, QStringList(u"show "_s + linux.inHome(u".cache/mozilla"_s)));
}

TEST_F(SmartCleanupChoiceTest, commandsPassOverRowsOfAnotherKind)
{
    openPreview(u"Trash"_s);
    const QString before = kinds();
    for (int row = -1; row <= view->rows()->rowCount(); ++row) {
        if (text(row, "kind") != u"file") {
            view->toggleFile(row);
            view->openFile(row);
            view->revealFile(row);
            view->copyPath(row);
        }
        if (text(row, "kind") != u"guide")
            view->selectAllFiles(row);
        if (text(row, "kind") != u"category") {
            view->toggleTick(row);
            view->togglePreview(row);
            view->revealCategory(row);
        }
        if (text(row, "kind") != u"note")
            view->toggleReviewed(row);
        view->showMore(row); // all are shown
        view->showAllFiles(row);
    }
    EXPECT_EQ(kinds(), before);
    EXPECT_TRUE(test.workspace.calls.isEmpty());
    EXPECT_TRUE(picked(u"trash"_s).isEmpty());
    EXPECT_FALSE(view->hasSelected());
}

TEST_F(SmartCleanupChoiceTest, menuNamesThePreviewsCommand)
{
    EXPECT_EQ(view->previewText(0), u"Expand file preview");
    view->togglePreview(0);
    EXPECT_EQ(view->previewText(0), u"Collapse file preview");
}

TEST_F(SmartCleanupChoiceTest, rowsThatHaveCommandsHaveAMenu)
{
    makeLogs(118);
    openPreview(u"Log Files"_s);
    EXPECT_EQ(view->menuKind(0), u"category");
    EXPECT_EQ(view->menuKind(1), QString());
    EXPECT_EQ(view->menuKind(2), u"guide");
    EXPECT_EQ(view->menuKind(3), u"file");
    EXPECT_EQ(view->menuKind(kindAt(u"end"_s)), u"end");
    view->showMore(kindAt(u"end"_s));
    EXPECT_EQ(view->menuKind(kindAt(u"end"_s)), QString()) << "all are shown";
    EXPECT_EQ(view->menuKind(-1), QString());
}

TEST_F(SmartCleanupChoiceTest, untickingClearsTheFilesAndTickingTakesAll)
{
    openPreview(u"Log Files"_s);
    view->toggleFile(rowOf(u"one"_s));
    view->toggleTick(0);
    EXPECT_FALSE(flag(u"one"_s, "isTicked"));
    view->toggleTick(0);
    EXPECT_TRUE(flag(u"one"_s, "isTicked"));
    EXPECT_TRUE(flag(u"two"_s, "isTicked"));
}
