#include "base/Files.h"
#include "FallbackPanelFixture.h"
#include "program/Popups.h"

#include <QColor>

#include <cerrno>

using namespace Qt::StringLiterals;

namespace {

const QString taken = u"“a.csv” already exists."_s;

class FallbackPanelTest : public FallbackPanelFixture
{
};

} // namespace

TEST_F(FallbackPanelTest, savesUnderTheSuggestedNameInTheFolderToBeginWith)
{
    choosePath({u"Export"_s, u"a b%.csv"_s, folder(u"out"_s)});
    EXPECT_TRUE(shows(u"Export"_s));
    EXPECT_TRUE(shows(u"a b%.csv"_s));
    EXPECT_EQ(answers_, 0);
    ASSERT_TRUE(clickOn(u"panelAccept"_s));
    EXPECT_EQ(answers_, 1);
    EXPECT_EQ(path_, at(u"out/a b%.csv"_s));
    EXPECT_FALSE(shows(u"Export"_s));
}

TEST_F(FallbackPanelTest, savesInTheHomeFolderWhereNoneIsNamed)
{
    choosePath({u"Export"_s, u"a"_s, {}, Workspace::FileType::commaSeparatedText});
    ASSERT_TRUE(clickOn(u"panelAccept"_s));
    EXPECT_EQ(path_, at(u"a.csv"_s)); // with the extension of its type
}

TEST_F(FallbackPanelTest, typesTheNameOverItsStem)
{
    choosePath({u"Export"_s, u"a.csv"_s, {}});
    type(u"report"_s);
    EXPECT_EQ(field(), u"report.csv"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(path_, at(u"report.csv"_s));
}

TEST_F(FallbackPanelTest, givesNoPathWhenSavingIsCancelled)
{
    choosePath({u"Export"_s, u"a.csv"_s, {}});
    ASSERT_TRUE(clickOn(u"panelCancel"_s));
    EXPECT_EQ(answers_, 1);
    EXPECT_EQ(path_, std::nullopt);
}

TEST_F(FallbackPanelTest, givesNoPathAtTheEscapeKeyAndTheCross)
{
    choosePath({u"Export"_s, u"a.csv"_s, {}});
    press(Qt::Key_Escape);
    EXPECT_EQ(answers_, 1);
    chooseFolder({u"Choose"_s, {}});
    press(Qt::Key_Escape);
    EXPECT_EQ(answers_, 2);
    chooseFolder({u"Choose"_s, {}});
    ASSERT_TRUE(clickOn(u"sheetClose"_s));
    EXPECT_EQ(answers_, 3);
    EXPECT_EQ(path_, std::nullopt);
    EXPECT_FALSE(shows(u"Choose"_s));
}

TEST_F(FallbackPanelTest, replacesAFileOnlyOnceTheUserAgrees)
{
    file(u"a.csv"_s);
    choosePath({u"Export"_s, u"a.csv"_s, {}});
    ASSERT_TRUE(clickOn(u"panelAccept"_s));
    EXPECT_TRUE(shows(taken));
    EXPECT_EQ(named(u"sheetBackdrop"_s)->property("color").value<QColor>().alpha(), 0)
        << "The window is dimmed once.";
    EXPECT_EQ(answers_, 0);
    ASSERT_TRUE(clickOn(u"confirmAction"_s));
    EXPECT_EQ(answers_, 1);
    EXPECT_EQ(path_, at(u"a.csv"_s));
}

TEST_F(FallbackPanelTest, asksForAnotherNameWhenTheUserKeepsTheFile)
{
    file(u"a.csv"_s);
    choosePath({u"Export"_s, u"a.csv"_s, {}});
    press(Qt::Key_Return);
    EXPECT_TRUE(shows(taken));
    press(Qt::Key_Escape);
    EXPECT_FALSE(shows(taken));
    EXPECT_EQ(answers_, 0);
    press(Qt::Key_A, Qt::ControlModifier);
    type(u"b #1? 5%.csv"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(answers_, 1);
    EXPECT_EQ(path_, at(u"b #1? 5%.csv"_s));
}

TEST_F(FallbackPanelTest, goesIntoAFolderWhoseNameIsTyped)
{
    folder(u"inner"_s);
    choosePath({u"Export"_s, u"a.csv"_s, {}});
    press(Qt::Key_A, Qt::ControlModifier);
    type(u"inner"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(answers_, 0);
    EXPECT_EQ(field(), u"a.csv"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(path_, at(u"inner/a.csv"_s));
}

TEST_F(FallbackPanelTest, takesTheNameOfAFileThatIsClicked)
{
    file(u"old.csv"_s);
    choosePath({u"Export"_s, u"a.csv"_s, {}});
    ASSERT_TRUE(clickText(u"old.csv"_s));
    EXPECT_EQ(field(), u"old.csv"_s);
}

TEST_F(FallbackPanelTest, givesTheFolderToBeginWithWhereNoneIsSelected)
{
    folder(u"start/inner"_s);
    chooseFolder({u"Choose a folder"_s, at(u"start"_s)});
    EXPECT_TRUE(shows(u"Choose a folder"_s));
    EXPECT_TRUE(shows(u"~/start"_s));
    ASSERT_TRUE(clickOn(u"panelAccept"_s));
    EXPECT_EQ(answers_, 1);
    EXPECT_EQ(path_, at(u"start"_s));
}

TEST_F(FallbackPanelTest, givesTheFolderThatIsClicked)
{
    folder(u"start/inner"_s);
    chooseFolder({u"Choose a folder"_s, at(u"start"_s)});
    ASSERT_TRUE(clickText(u"inner"_s));
    EXPECT_TRUE(shows(u"~/start/inner"_s));
    ASSERT_TRUE(clickOn(u"panelAccept"_s));
    EXPECT_EQ(path_, at(u"start/inner"_s));
}

TEST_F(FallbackPanelTest, goesIntoAFolderByTwoClicks)
{
    folder(u"start/inner/deep"_s);
    chooseFolder({u"Choose"_s, at(u"start"_s)});
    ASSERT_TRUE(doubleClickText(u"inner"_s));
    EXPECT_TRUE(shows(u"deep"_s));
    EXPECT_TRUE(shows(u"~/start/inner"_s));
}

TEST_F(FallbackPanelTest, opensARowByTwoClicksAlsoApart)
{
    folder(u"start/b/deep"_s);
    chooseFolder({u"Choose"_s, at(u"start"_s)});
    QQuickItem *row = shown(u"b"_s);
    ASSERT_TRUE(click(row));
    clickASecondTime(row->mapToScene({row->width() / 2, row->height() / 2}).toPoint());
    settle();
    EXPECT_TRUE(shows(u"deep"_s));
}

TEST_F(FallbackPanelTest, opensNoRowThatCameUnderThePointerBetweenTwoClicks)
{
    folder(u"start/b/deep"_s);
    home_.temp.link(u"home/start/a"_s, u"b"_s);
    panel_->chooseFolder({u"Choose"_s, at(u"start"_s)}, taker());
    home_.workQueue.run();
    home_.mainQueue.step(); // where links lead is told later
    QQuickTest::qWaitForPolish(window_.get());
    QQuickItem *first = shown(u"b"_s);
    ASSERT_NE(first, nullptr);
    const QPoint there = first->mapToScene({first->width() / 2, first->height() / 2}).toPoint();
    QTest::mouseClick(window_.get(), Qt::LeftButton, {}, there);
    settle();
    ASSERT_EQ(shown(u"a"_s)->mapToScene({0, 0}).y(), there.y() - first->height() / 2);
    clickASecondTime(there);
    settle();
    EXPECT_FALSE(shows(u"deep"_s));
    EXPECT_TRUE(shows(u"~/start/a"_s));
}

TEST_F(FallbackPanelTest, keepsTheRowThatIsSelectedAsOthersComeBetween)
{
    for (const QString &name : {u"start/a"_s, u"start/c"_s, u"start/e"_s})
        folder(name);
    home_.temp.link(u"home/start/b"_s, u"a"_s);
    home_.temp.link(u"home/start/d"_s, u"a"_s);
    panel_->chooseFolder({u"Choose"_s, at(u"start"_s)}, taker());
    home_.workQueue.run();
    home_.mainQueue.step(); // where links lead is told later
    QQuickTest::qWaitForPolish(window_.get());
    QTest::keyClick(window_.get(), Qt::Key_Down);
    QTest::keyClick(window_.get(), Qt::Key_Down);
    ASSERT_TRUE(shows(u"~/start/c"_s));
    settle();
    EXPECT_TRUE(shows(u"d"_s));
    EXPECT_TRUE(shows(u"~/start/c"_s));
    press(Qt::Key_Down);
    EXPECT_TRUE(shows(u"~/start/d"_s));
}

TEST_F(FallbackPanelTest, keepsTheNameThatIsTypedAsRowsComeBetween)
{
    file(u"start/b.csv"_s);
    home_.temp.link(u"home/start/a.csv"_s, u"b.csv"_s);
    panel_->chooseSavePath({u"Export"_s, u"new.csv"_s, at(u"start"_s)}, taker());
    home_.workQueue.run();
    home_.mainQueue.step(); // where links lead is told later
    QQuickTest::qWaitForPolish(window_.get());
    QQuickItem *row = shown(u"b.csv"_s);
    ASSERT_NE(row, nullptr);
    QTest::mouseClick(window_.get(), Qt::LeftButton, {},
                      row->mapToScene({row->width() / 2, row->height() / 2}).toPoint());
    ASSERT_EQ(field(), u"b.csv"_s);
    named(u"panelName"_s)->forceActiveFocus();
    QTest::keyClick(window_.get(), Qt::Key_Home);
    QTest::keyClick(window_.get(), 'x');
    ASSERT_EQ(field(), u"xb.csv"_s);
    settle();
    EXPECT_TRUE(shows(u"a.csv"_s));
    EXPECT_EQ(field(), u"xb.csv"_s);
}

TEST_F(FallbackPanelTest, saysThatAFolderCouldNotBeReadToItsEnd)
{
    for (const QString &name : {u"start/a"_s, u"start/b"_s})
        folder(name);
    int steps = 0;
    files::injectFaults([&steps](files::Operation operation, const QString &path) {
        return operation == files::Operation::next && path.endsWith(u"start") && ++steps > 2 ? EIO : 0;
    });
    chooseFolder({u"Choose"_s, at(u"start"_s)});
    files::injectFaults({});
    EXPECT_TRUE(shows(u"Not all of this folder could be read"_s));
}

TEST_F(FallbackPanelTest, walksByKeys)
{
    for (const QString &name : {u"start/a"_s, u"start/b/deep"_s, u"start/music"_s, u"start/my files"_s})
        folder(name);
    chooseFolder({u"Choose"_s, at(u"start"_s)});
    press(Qt::Key_Down);
    EXPECT_TRUE(shows(u"~/start/a"_s));
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_TRUE(shows(u"deep"_s));
    EXPECT_TRUE(shows(u"~/start/b"_s));
    press(Qt::Key_Backspace);
    EXPECT_TRUE(shows(u"~/start"_s));
    type(u"mu"_s);
    EXPECT_TRUE(shows(u"~/start/music"_s));
    home_.clock.advance(2);
    type(u"my f"_s);
    EXPECT_TRUE(shows(u"~/start/my files"_s));
    press(Qt::Key_Up, Qt::AltModifier);
    EXPECT_TRUE(shows(u"~"_s));
    EXPECT_EQ(answers_, 0);
}

TEST_F(FallbackPanelTest, goesToAPlaceAndAlongThePath)
{
    folder(u"Movies/films"_s);
    folder(u"start"_s);
    chooseFolder({u"Choose"_s, at(u"start"_s)});
    ASSERT_TRUE(clickText(u"Movies"_s));
    EXPECT_TRUE(shows(u"films"_s));
    ASSERT_TRUE(clickOn(u"panelUp"_s));
    EXPECT_TRUE(shows(u"start"_s));
    ASSERT_TRUE(clickText(u"/"_s));
    EXPECT_FALSE(named(u"panelUp"_s)->isEnabled());
}

TEST_F(FallbackPanelTest, goesRoundByTheTabKey)
{
    folder(u"start/inner"_s);
    chooseFolder({u"Choose"_s, at(u"start"_s)});
    QStringList stops;
    for (int i = 0; i < 12; ++i) {
        press(Qt::Key_Tab);
        const QQuickItem *item = window_->activeFocusItem();
        while (item && item->objectName().isEmpty())
            item = item->parentItem();
        stops << (item ? item->objectName() : QString());
    }
    for (const QString &stop :
         {u"panelHidden"_s, u"panelNewFolder"_s, u"sheetClose"_s, u"panelPlaces"_s, u"panelUp"_s,
          u"panelPath"_s, u"panelList"_s, u"panelCancel"_s, u"panelAccept"_s})
        EXPECT_TRUE(stops.contains(stop))
            << stop.toStdString() << " is not among " << stops.join(u' ').toStdString();
}

TEST_F(FallbackPanelTest, offersHiddenFoldersOnlyWhereTheyAreAskedForOrSwitchedOn)
{
    folder(u"start/.hidden"_s);
    folder(u"start/seen"_s);
    chooseFolder({u"Seen"_s, at(u"start"_s)});
    EXPECT_TRUE(shows(u"seen"_s));
    EXPECT_FALSE(shows(u".hidden"_s));
    ASSERT_TRUE(clickOn(u"panelHidden"_s));
    EXPECT_TRUE(shows(u".hidden"_s));
    ASSERT_TRUE(clickOn(u"panelHidden"_s));
    EXPECT_FALSE(shows(u".hidden"_s));
    chooseFolder({u"All"_s, at(u"start"_s), true});
    EXPECT_TRUE(shows(u".hidden"_s));
}

TEST_F(FallbackPanelTest, offersAPackageAsTheFolderThatItIs)
{
    folder(u"start/Photos.photoslibrary/originals"_s);
    chooseFolder({u"Choose"_s, at(u"start"_s), true});
    ASSERT_TRUE(doubleClickText(u"Photos.photoslibrary"_s));
    ASSERT_TRUE(clickText(u"originals"_s));
    ASSERT_TRUE(clickOn(u"panelAccept"_s));
    EXPECT_EQ(path_, at(u"start/Photos.photoslibrary/originals"_s));
}

TEST_F(FallbackPanelTest, saysWhatStandsInThePlaceOfRows)
{
    folder(u"start"_s);
    chooseFolder({u"Choose"_s, at(u"start"_s)});
    EXPECT_TRUE(shows(u"No folders in this folder"_s));
    chooseFolder({u"Choose"_s, at(u"nowhere"_s)});
    EXPECT_TRUE(shows(u"This folder can’t be opened"_s));
    EXPECT_FALSE(named(u"panelAccept"_s)->isEnabled());
}

TEST_F(FallbackPanelTest, saysThatAFolderDoesNotAnswer)
{
    panel_->chooseFolder({u"Choose"_s, {}}, taker());
    home_.mainQueue.advance(1);
    QCoreApplication::processEvents();
    EXPECT_TRUE(shows(u"Loading…"_s));
    settle();
    EXPECT_FALSE(shows(u"Loading…"_s));
}

TEST_F(FallbackPanelTest, makesAFolderAndGoesIntoIt)
{
    chooseFolder({u"Choose"_s, {}});
    ASSERT_TRUE(clickOn(u"panelNewFolder"_s));
    type(u"new one"_s);
    press(Qt::Key_Return);
    EXPECT_TRUE(shows(u"~/new one"_s));
    ASSERT_TRUE(clickOn(u"panelAccept"_s));
    EXPECT_EQ(path_, at(u"new one"_s));
}

TEST_F(FallbackPanelTest, putsASecondPanelInThePlaceOfTheFirst)
{
    panel_->chooseFolder({u"First"_s, {}}, [](const auto &) { ADD_FAILURE() << "The first one answered."; });
    settle();
    EXPECT_TRUE(shows(u"First"_s));
    choosePath({u"Second"_s, u"a.csv"_s, {}});
    EXPECT_TRUE(shows(u"Second"_s));
    EXPECT_FALSE(shows(u"First"_s));
    ASSERT_TRUE(clickOn(u"panelAccept"_s));
    EXPECT_EQ(path_, at(u"a.csv"_s));
    EXPECT_EQ(answers_, 1);
}

TEST_F(FallbackPanelTest, asksNothingMoreOnceItGivesUp)
{
    file(u"a.csv"_s);
    choosePath({u"Export"_s, u"a.csv"_s, {}});
    ASSERT_TRUE(clickOn(u"panelAccept"_s));
    EXPECT_TRUE(shows(taken));
    panel_->giveUp();
    EXPECT_EQ(answers_, 1);
    EXPECT_EQ(path_, std::nullopt);
    popups::closeAll(*window_);
    settle();
    EXPECT_FALSE(shows(taken));
    EXPECT_FALSE(shows(u"Export"_s));
    EXPECT_EQ(answers_, 1);
}

TEST_F(FallbackPanelTest, givesUpNothingWhereNothingIsAsked)
{
    panel_->giveUp();
    EXPECT_EQ(answers_, 0);
}

TEST_F(FallbackPanelTest, answersNobodyAfterItsEnd)
{
    chooseFolder({u"Choose"_s, {}});
    panel_.reset();
    settle();
    EXPECT_EQ(answers_, 0);
    EXPECT_FALSE(shows(u"Choose"_s));
}

TEST_F(FallbackPanelTest, givesNoPathBeforeThereIsAWindow)
{
    FallbackPanel early;
    early.chooseFolder({u"Choose"_s, {}}, taker());
    EXPECT_EQ(answers_, 1);
    EXPECT_EQ(path_, std::nullopt);
}
