#include "FilePanelFixture.h"

#include <QLocale>

#include <cerrno>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class FilePanelViewTest : public FilePanelFixture
{
};

} // namespace

TEST_F(FilePanelViewTest, beginsInTheFolderThatIsNamed)
{
    folder(u"start/inner"_s);
    chooseFolder(u"start"_s);
    EXPECT_EQ(view_->title(), u"Choose"_s);
    EXPECT_EQ(view_->acceptLabel(), u"Open"_s);
    EXPECT_EQ(view_->folder(), at(u"start"_s));
    EXPECT_EQ(names(), QStringList(u"inner"_s));
    EXPECT_EQ(view_->resultText(), u"~/start"_s);
}

TEST_F(FilePanelViewTest, beginsInTheHomeFolderWhereNoneIsNamed)
{
    make({u"Choose"_s, {}, false, {}});
    EXPECT_EQ(view_->folder(), platform_.home);
    EXPECT_EQ(currentPlace(), u"Home"_s);
}

TEST_F(FilePanelViewTest, listsFoldersWithoutFilesAndHiddenOnes)
{
    folder(u"start/b"_s);
    folder(u"start/A"_s);
    folder(u"start/.hidden"_s);
    folder(u"start/Photos.photoslibrary"_s);
    file(u"start/file"_s);
    chooseFolder(u"start"_s);
    EXPECT_EQ(names(), QStringList({u"A"_s, u"b"_s, u"Photos.photoslibrary"_s}));
    EXPECT_EQ(column(*view_->rows(), "symbol").first(), u"folder.fill"_s);
}

TEST_F(FilePanelViewTest, listsInTheOrderOfTheLocaleAndOfNumbers)
{
    const QLocale before;
    QLocale::setDefault(QLocale(u"sv_SE"_s));
    for (const QString &name : {u"Ö"_s, u"z"_s, u"Z2"_s, u"a"_s, u"10"_s, u"9"_s})
        folder(u"start/"_s + name);
    chooseFolder(u"start"_s);
    EXPECT_EQ(names(), QStringList({u"9"_s, u"10"_s, u"a"_s, u"z"_s, u"Z2"_s, u"Ö"_s}));
    QLocale::setDefault(before);
}

TEST_F(FilePanelViewTest, listsHiddenFoldersWhereTheyAreAskedForAndAtTheSwitch)
{
    folder(u"start/.hidden"_s);
    folder(u"start/seen"_s);
    chooseFolder(u"start"_s, true);
    EXPECT_TRUE(view_->showsHidden());
    EXPECT_EQ(names(), QStringList({u".hidden"_s, u"seen"_s}));
    view_->setShowsHidden(false);
    settle();
    EXPECT_EQ(names(), QStringList(u"seen"_s));
    view_->setShowsHidden(true);
    settle();
    EXPECT_EQ(names(), QStringList({u".hidden"_s, u"seen"_s}));
}

TEST_F(FilePanelViewTest, givesTheFolderOnViewWhereNoneIsSelected)
{
    folder(u"start/inner"_s);
    chooseFolder(u"start"_s);
    view_->accept();
    EXPECT_EQ(answers_, 1);
    EXPECT_EQ(path_, at(u"start"_s));
}

TEST_F(FilePanelViewTest, givesTheFolderThatIsSelected)
{
    folder(u"start/inner"_s);
    chooseFolder(u"start"_s);
    view_->select(0);
    EXPECT_EQ(view_->resultText(), u"~/start/inner"_s);
    view_->accept();
    EXPECT_EQ(path_, at(u"start/inner"_s));
}

TEST_F(FilePanelViewTest, givesNamesInAnyBytes)
{
    const QString name = paths::fromBytes("a\xFF\nb");
    folder(u"start/"_s + name);
    chooseFolder(u"start"_s);
    EXPECT_EQ(names(), QStringList(paths::inOneLine(name)));
    view_->openRow(0);
    settle();
    view_->accept();
    EXPECT_EQ(path_, at(u"start/"_s + name));
}

TEST_F(FilePanelViewTest, goesInAndUpAndByTheCrumbs)
{
    folder(u"start/inner/deep"_s);
    chooseFolder(u"start"_s);
    view_->openRow(0);
    settle();
    EXPECT_EQ(view_->folder(), at(u"start/inner"_s));
    EXPECT_EQ(names(), QStringList(u"deep"_s));
    EXPECT_EQ(view_->crumbs().first(), u"/"_s);
    EXPECT_EQ(view_->crumbs().last(), u"inner"_s);
    view_->goUp();
    settle();
    EXPECT_EQ(view_->folder(), at(u"start"_s));
    EXPECT_EQ(view_->resultText(), u"~/start"_s) << "Nothing is selected in another folder.";
    view_->openCrumb(static_cast<int>(view_->crumbs().size()) - 2);
    EXPECT_EQ(view_->folder(), platform_.home);
    view_->openCrumb(0);
    EXPECT_EQ(view_->folder(), u"/"_s);
    EXPECT_EQ(view_->crumbs(), QStringList(u"/"_s));
    EXPECT_FALSE(view_->canGoUp());
    view_->goUp();
    view_->openCrumb(1);
    view_->openCrumb(-1);
    EXPECT_EQ(view_->folder(), u"/"_s);
}

TEST_F(FilePanelViewTest, goesToTheUsualPlaces)
{
    for (const auto &name :
         {u"Desktop"_s, u"Documents"_s, u"Downloads"_s, u"Pictures"_s, u"Music"_s, u"Movies/films"_s})
        folder(name);
    platform_.temp.folder(u"Applications"_s);
    chooseFolder({});
    EXPECT_EQ(column(*view_->places(), "name"),
              QStringList({u"Home"_s, u"Desktop"_s, u"Documents"_s, u"Downloads"_s, u"Pictures"_s, u"Music"_s,
                           u"Movies"_s, u"Applications"_s, u"File System"_s}));
    EXPECT_EQ(currentPlace(), u"Home"_s);
    view_->openPlace(6);
    settle();
    EXPECT_EQ(names(), QStringList(u"films"_s));
    EXPECT_EQ(currentPlace(), u"Movies"_s);
    view_->openPlace(8);
    EXPECT_EQ(view_->folder(), u"/"_s);
    view_->openPlace(9);
    view_->openPlace(-1);
    EXPECT_EQ(view_->folder(), u"/"_s);
}

TEST_F(FilePanelViewTest, leavesOutPlacesThatDoNotExist)
{
    folder(u"Music"_s);
    chooseFolder({});
    const QStringList places = column(*view_->places(), "name");
    EXPECT_TRUE(places.contains(u"Music"_s));
    EXPECT_FALSE(places.contains(u"Pictures"_s));
    EXPECT_EQ(currentPlace(), u"Home"_s);
    view_->openPlace(1);
    settle();
    EXPECT_EQ(currentPlace(), u"Music"_s);
}

TEST_F(FilePanelViewTest, leavesOutPlacesThatAreSwitchedOff)
{
    platform_.usesLinuxLocations = true;
    chooseFolder({});
    const QStringList places = column(*view_->places(), "name");
    EXPECT_EQ(places.first(), u"Home"_s);
    EXPECT_EQ(places.last(), u"File System"_s);
}

TEST_F(FilePanelViewTest, saysWhatStandsInThePlaceOfRows)
{
    folder(u"start"_s);
    file(u"start/file"_s);
    chooseFolder(u"start"_s);
    EXPECT_EQ(view_->emptyText(), u"No folders in this folder"_s);
    EXPECT_TRUE(view_->canAccept());
    view_->goUp();
    settle();
    EXPECT_EQ(view_->emptyText(), QString());
    folder(u"empty"_s);
    make({u"Export"_s, at(u"empty"_s), false, u"a"_s});
    EXPECT_EQ(view_->emptyText(), QString()) << "Nothing is known yet.";
    settle();
    EXPECT_EQ(view_->emptyText(), u"Nothing in this folder"_s);
}

TEST_F(FilePanelViewTest, saysThatAFolderCantBeOpened)
{
    folder(u"start/shut/inner"_s);
    chooseFolder(u"start"_s);
    files::injectFaults([](files::Operation operation, const QString &path) {
        return operation == files::Operation::list && path.endsWith(u"shut") ? EACCES : 0;
    });
    view_->openRow(0);
    settle();
    EXPECT_EQ(view_->emptyText(), u"This folder can’t be opened"_s);
    EXPECT_FALSE(view_->canAccept());
    EXPECT_FALSE(view_->canMakeFolder());
    view_->accept();
    EXPECT_EQ(answers_, 0);
    view_->goUp();
    settle();
    EXPECT_TRUE(view_->canAccept());
}

TEST_F(FilePanelViewTest, saysThatAFolderCouldNotBeReadToItsEnd)
{
    for (const QString &name : {u"a"_s, u"b"_s, u"c"_s})
        folder(u"start/"_s + name);
    int steps = 0;
    files::injectFaults([&steps](files::Operation operation, const QString &path) {
        return operation == files::Operation::next && path.endsWith(u"start") && ++steps > 3 ? EIO : 0;
    });
    chooseFolder(u"start"_s);
    EXPECT_GT(names().size(), 0);
    EXPECT_EQ(view_->cutShortText(), u"Not all of this folder could be read"_s);
    EXPECT_TRUE(view_->canAccept());
    view_->goUp();
    settle();
    EXPECT_EQ(view_->cutShortText(), QString());
}

TEST_F(FilePanelViewTest, saysThatAFolderCantBeOpenedWhereNothingOfItIsRead)
{
    folder(u"start/a"_s);
    files::injectFaults([](files::Operation operation, const QString &path) {
        return operation == files::Operation::next && path.endsWith(u"start") ? EIO : 0;
    });
    chooseFolder(u"start"_s);
    EXPECT_EQ(view_->emptyText(), u"This folder can’t be opened"_s);
}

TEST_F(FilePanelViewTest, saysThatAFolderIsGone)
{
    chooseFolder(u"nowhere"_s);
    EXPECT_EQ(view_->emptyText(), u"This folder can’t be opened"_s);
}

TEST_F(FilePanelViewTest, saysAfterAWhileThatAFolderDoesNotAnswer)
{
    folder(u"start/inner"_s);
    make({u"Choose"_s, at(u"start"_s), false, {}});
    platform_.mainQueue.advance(0.2);
    EXPECT_FALSE(view_->isSlow());
    platform_.mainQueue.advance(0.2);
    EXPECT_TRUE(view_->isSlow());
    EXPECT_FALSE(view_->canAccept());
    settle();
    EXPECT_FALSE(view_->isSlow());
    EXPECT_EQ(names(), QStringList(u"inner"_s));
    platform_.mainQueue.advance(1);
    EXPECT_FALSE(view_->isSlow());
}

TEST_F(FilePanelViewTest, leavesAFolderThatDoesNotAnswer)
{
    folder(u"start/inner"_s);
    folder(u"other/deep"_s);
    make({u"Choose"_s, at(u"start"_s), false, {}});
    view_->goUp();
    EXPECT_EQ(platform_.workQueue.waiting(), 3U); // the places are asked about as well
    platform_.workQueue.step();
    platform_.mainQueue.run();
    EXPECT_EQ(names(), QStringList()) << "It answers after it was left.";
    settle();
    EXPECT_EQ(names(), QStringList({u"other"_s, u"start"_s}));
}

TEST_F(FilePanelViewTest, listsWhatIsNoLinkAheadOfWhereLinksLead)
{
    folder(u"start/a"_s);
    folder(u"start/c"_s);
    platform_.temp.link(u"home/start/b"_s, u"c"_s);
    platform_.temp.link(u"home/start/nowhere"_s, u"missing"_s);
    make({u"Choose"_s, at(u"start"_s), false, {}});
    platform_.workQueue.run();
    platform_.mainQueue.step();
    EXPECT_EQ(names(), QStringList({u"a"_s, u"c"_s}));
    view_->select(1);
    settle();
    EXPECT_EQ(names(), QStringList({u"a"_s, u"b"_s, u"c"_s}));
    EXPECT_EQ(view_->resultText(), u"~/start/c"_s) << "What is selected stays so.";
}

TEST_F(FilePanelViewTest, findsARowByWhatIsTyped)
{
    for (const QString &name : {u"Music"_s, u"Movies"_s, u"notes"_s})
        folder(u"start/"_s + name);
    chooseFolder(u"start"_s);
    EXPECT_EQ(view_->find(u"m"_s), row(u"Movies"_s));
    EXPECT_EQ(view_->find(u"u"_s), row(u"Music"_s));
    EXPECT_EQ(view_->find(u"x"_s), -1);
    platform_.clock.advance(2);
    EXPECT_EQ(view_->find(u"n"_s), row(u"notes"_s));
}

TEST_F(FilePanelViewTest, findsARowAnewInTheFolderThatWasGoneInto)
{
    folder(u"start/deep/mail"_s);
    chooseFolder(u"start"_s);
    EXPECT_EQ(view_->find(u"d"_s), 0);
    view_->openRow(0);
    settle();
    EXPECT_EQ(view_->find(u"m"_s), row(u"mail"_s)) << "What was typed was meant for the other folder.";
}

TEST_F(FilePanelViewTest, goesUpAndFindsRowsByKey)
{
    for (const QString &name : {u"Music"_s, u"Movies"_s})
        folder(u"start/"_s + name);
    chooseFolder(u"start"_s);
    int found = -1;
    QObject::connect(view_.get(), &FilePanelView::found, view_.get(), [&](int row) { found = row; });
    EXPECT_TRUE(view_->takeKey(Qt::Key_M, Qt::NoModifier, u"m"_s));
    EXPECT_EQ(found, row(u"Movies"_s));
    found = -1;
    EXPECT_TRUE(view_->takeKey(Qt::Key_U, Qt::ShiftModifier, u"U"_s));
    EXPECT_EQ(found, row(u"Music"_s));
    EXPECT_FALSE(view_->takeKey(Qt::Key_M, Qt::ControlModifier, u"m"_s));
    EXPECT_FALSE(view_->takeKey(Qt::Key_Escape, Qt::NoModifier, u"\x1b"_s));
    EXPECT_FALSE(view_->takeKey(Qt::Key_Tab, Qt::NoModifier, u"\t"_s));
    EXPECT_FALSE(view_->takeKey(Qt::Key_F5, Qt::NoModifier, {}));
    EXPECT_FALSE(view_->takeKey(Qt::Key_Up, Qt::NoModifier, {}));
    EXPECT_EQ(view_->folder(), at(u"start"_s));
    EXPECT_TRUE(view_->takeKey(Qt::Key_Backspace, Qt::NoModifier, u"\b"_s));
    EXPECT_EQ(view_->folder(), platform_.home);
    EXPECT_TRUE(view_->takeKey(Qt::Key_Up, Qt::AltModifier | Qt::KeypadModifier, {}));
    EXPECT_EQ(view_->folder(), paths::parent(platform_.home));
}

TEST_F(FilePanelViewTest, answersOnceAndNothingWhenItIsCancelled)
{
    chooseFolder({});
    view_->cancel();
    view_->accept();
    view_->cancel();
    EXPECT_EQ(answers_, 1);
    EXPECT_EQ(path_, std::nullopt);
}

TEST_F(FilePanelViewTest, answersNobodyOnceItIsWithdrawn)
{
    chooseFolder({});
    view_->withdraw();
    view_->accept();
    view_->cancel();
    EXPECT_EQ(answers_, 0);
}

TEST_F(FilePanelViewTest, mayGoWhileTheDiskIsAsked)
{
    make({u"Choose"_s, {}, false, {}});
    tester_.reset();
    view_.reset();
    settle();
    EXPECT_EQ(answers_, 0);
}

TEST_F(FilePanelViewTest, passesOverRowsThatAreNotThere)
{
    chooseFolder({});
    view_->openRow(0);
    view_->openRow(-1);
    view_->select(7);
    view_->accept();
    EXPECT_EQ(path_, platform_.home);
}
