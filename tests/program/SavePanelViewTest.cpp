#include "FilePanelFixture.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class SavePanelViewTest : public FilePanelFixture
{
};

} // namespace

TEST_F(SavePanelViewTest, listsFilesBelowFoldersForSaving)
{
    folder(u"z"_s);
    file(u"a.csv"_s);
    save(u"b.csv"_s);
    EXPECT_EQ(view_->acceptLabel(), u"Save"_s);
    EXPECT_EQ(names(), QStringList({u"z"_s, u"a.csv"_s}));
    EXPECT_EQ(column(*view_->rows(), "symbol").last(), u"tablecells.fill"_s);
}

TEST_F(SavePanelViewTest, savesUnderTheNameInItsField)
{
    save(u"a b%.tar.gz"_s);
    EXPECT_EQ(view_->fileName(), u"a b%.tar.gz"_s);
    EXPECT_EQ(view_->stemLength(), 8) << "The extension is not to be written anew.";
    view_->accept();
    settle();
    EXPECT_EQ(answers_, 1);
    EXPECT_EQ(path_, at(u"a b%.tar.gz"_s));
}

TEST_F(SavePanelViewTest, savesUnderANameInAnyBytesUntilAnotherIsTyped)
{
    const QString name = paths::fromBytes("\xFF.csv");
    save(name);
    EXPECT_EQ(view_->fileName(), u"\uFFFD.csv"_s);
    view_->accept();
    settle();
    EXPECT_EQ(path_, at(name));
}

TEST_F(SavePanelViewTest, savesInTheFolderThatWasGoneInto)
{
    folder(u"inner"_s);
    save(u"a.csv"_s);
    view_->openRow(row(u"inner"_s));
    settle();
    view_->setFileName(u"b.csv"_s);
    EXPECT_EQ(view_->resultText(), u"~/inner/b.csv"_s);
    view_->accept();
    settle();
    EXPECT_EQ(path_, at(u"inner/b.csv"_s));
}

TEST_F(SavePanelViewTest, takesAPathForAName)
{
    folder(u"inner"_s);
    for (const QString &typed : {u"inner/b.csv"_s, u"~/inner/b.csv"_s, at(u"inner/../inner/b.csv"_s)}) {
        save(u"a.csv"_s);
        view_->setFileName(typed);
        view_->accept();
        settle();
        EXPECT_EQ(path_, at(u"inner/b.csv"_s)) << typed.toStdString();
    }
}

TEST_F(SavePanelViewTest, givesAFileTheExtensionOfItsType)
{
    folder(u"inner.x"_s);
    make({u"Export"_s, {}, false, u"a.csv"_s, u"csv"_s});
    settle();
    EXPECT_EQ(view_->resultText(), u"~/a.csv"_s);
    for (const auto &[typed, result] :
         {std::pair(u"b"_s, u"~/b.csv"_s), std::pair(u"b.CSV"_s, u"~/b.CSV"_s),
          std::pair(u"b 2.0"_s, u"~/b 2.0.csv"_s), std::pair(u"inner.x/b"_s, u"~/inner.x/b.csv"_s)}) {
        view_->setFileName(typed);
        EXPECT_EQ(view_->resultText(), result);
    }
    view_->accept();
    settle();
    EXPECT_EQ(path_, at(u"inner.x/b.csv"_s));
}

TEST_F(SavePanelViewTest, asksAboutTheFileThatItsTypeMakesIt)
{
    file(u"b.csv"_s);
    make({u"Export"_s, {}, false, u"a.csv"_s, u"csv"_s});
    settle();
    view_->setFileName(u"b"_s);
    view_->accept();
    settle();
    EXPECT_EQ(answers_, 0);
    EXPECT_TRUE(view_->replaceQuestion()->isUp());
}

TEST_F(SavePanelViewTest, savesNothingWithoutAName)
{
    save(u"a.csv"_s);
    view_->setFileName({});
    EXPECT_FALSE(view_->canAccept());
    view_->accept();
    settle();
    EXPECT_EQ(answers_, 0);
}

TEST_F(SavePanelViewTest, saysThatThereIsNoFolderToSaveIn)
{
    save(u"a.csv"_s);
    view_->setFileName(u"missing/b.csv"_s);
    view_->accept();
    settle();
    EXPECT_EQ(answers_, 0);
    EXPECT_EQ(view_->failureText(), u"There is no folder “%1”"_s.arg(at(u"missing"_s)));
    view_->setFileName(u"b.csv"_s);
    EXPECT_EQ(view_->failureText(), QString());
}

TEST_F(SavePanelViewTest, goesIntoAFolderWhoseNameIsTyped)
{
    folder(u"inner"_s);
    save(u"a.csv"_s);
    view_->setFileName(u"inner"_s);
    view_->accept();
    settle();
    EXPECT_EQ(answers_, 0);
    EXPECT_EQ(view_->folder(), at(u"inner"_s));
    EXPECT_EQ(view_->fileName(), u"a.csv"_s);
}

TEST_F(SavePanelViewTest, takesTheNameOfAFileThatIsSelected)
{
    folder(u"inner"_s);
    file(u"old.csv"_s);
    save(u"a.csv"_s);
    view_->select(row(u"inner"_s));
    EXPECT_EQ(view_->fileName(), u"a.csv"_s);
    view_->select(row(u"old.csv"_s));
    EXPECT_EQ(view_->fileName(), u"old.csv"_s);
}

TEST_F(SavePanelViewTest, replacesAFileOnlyOnceTheUserAgrees)
{
    file(u"a.csv"_s);
    save(u"a.csv"_s);
    view_->accept();
    settle();
    EXPECT_EQ(answers_, 0);
    EXPECT_TRUE(view_->replaceQuestion()->isUp());
    EXPECT_EQ(view_->replaceQuestion()->text(), u"“a.csv” already exists."_s);
    view_->replaceQuestion()->cancel();
    EXPECT_EQ(answers_, 0);
    view_->accept();
    settle();
    view_->replaceQuestion()->confirm();
    EXPECT_EQ(answers_, 1);
    EXPECT_EQ(path_, at(u"a.csv"_s));
}

TEST_F(SavePanelViewTest, dropsALookThatIsOvertaken)
{
    folder(u"inner"_s);
    save(u"a.csv"_s);
    view_->accept();
    view_->openRow(row(u"inner"_s));
    settle();
    EXPECT_EQ(answers_, 0) << "The panel shows another folder by now.";
    EXPECT_EQ(view_->folder(), at(u"inner"_s));
}

TEST_F(SavePanelViewTest, asksAheadOfReplacingALinkThatLeadsNowhere)
{
    platform_.temp.link(u"home/a.csv"_s, u"missing"_s);
    save(u"a.csv"_s);
    view_->accept();
    settle();
    EXPECT_EQ(answers_, 0);
    EXPECT_TRUE(view_->replaceQuestion()->isUp());
}

TEST_F(SavePanelViewTest, saysAfterAWhileThatTheDiskHasYetToAnswer)
{
    save(u"a.csv"_s);
    view_->accept();
    platform_.mainQueue.advance(0.2);
    EXPECT_EQ(view_->resultText(), u"~/a.csv"_s);
    platform_.mainQueue.advance(0.2);
    EXPECT_EQ(view_->resultText(), u"Waiting for the disk to answer…"_s);
    view_->setFileName(u"b.csv"_s);
    EXPECT_EQ(view_->resultText(), u"~/b.csv"_s);
    view_->accept();
    settle();
    EXPECT_EQ(path_, at(u"b.csv"_s));
}

TEST_F(SavePanelViewTest, asksTheDiskOnceHoweverOftenItIsToldToSave)
{
    save(u"a.csv"_s);
    view_->accept();
    view_->accept();
    EXPECT_EQ(platform_.workQueue.waiting(), 1U);
    settle();
    EXPECT_EQ(answers_, 1);
}

TEST_F(SavePanelViewTest, asksNothingOnceItIsCancelledBesideASilentDisk)
{
    file(u"a.csv"_s);
    save(u"a.csv"_s);
    view_->accept();
    view_->cancel();
    settle();
    EXPECT_FALSE(view_->replaceQuestion()->isUp());
    EXPECT_EQ(answers_, 1);
    EXPECT_EQ(path_, std::nullopt);
}

TEST_F(SavePanelViewTest, savesAlsoWhereHiddenFilesAreSwitchedMeanwhile)
{
    save(u"a.csv"_s);
    view_->accept();
    view_->setShowsHidden(true);
    settle();
    EXPECT_EQ(path_, at(u"a.csv"_s));
}

TEST_F(SavePanelViewTest, savesNothingUnderANameThatIsEditedMeanwhile)
{
    save(u"a.csv"_s);
    view_->accept();
    view_->setFileName(u"ab.csv"_s);
    settle();
    EXPECT_EQ(answers_, 0);
    view_->accept();
    settle();
    EXPECT_EQ(path_, at(u"ab.csv"_s));
}

TEST_F(SavePanelViewTest, putsNoQuestionOverTheOneForTheNameOfAFolder)
{
    file(u"a.csv"_s);
    save(u"a.csv"_s);
    view_->accept();
    view_->askForFolderName();
    settle();
    EXPECT_FALSE(view_->replaceQuestion()->isUp());
    EXPECT_EQ(answers_, 0);
}

TEST_F(SavePanelViewTest, takesANameThatEndsLikeAFolderForOne)
{
    folder(u"inner"_s);
    file(u"old.csv"_s);
    for (const QString &name : {u"missing"_s, u"old.csv"_s}) {
        for (const QString &ending : {u"/"_s, u"//"_s, u"/."_s}) {
            save(u"a.csv"_s);
            view_->setFileName(name + ending);
            view_->accept();
            settle();
            EXPECT_EQ(answers_, 0);
            EXPECT_FALSE(view_->replaceQuestion()->isUp());
            EXPECT_EQ(view_->failureText(), u"There is no folder “%1”"_s.arg(at(name)));
        }
    }
    save(u"a.csv"_s);
    view_->setFileName(u"inner/"_s);
    view_->accept();
    settle();
    EXPECT_EQ(view_->folder(), at(u"inner"_s));
}

TEST_F(SavePanelViewTest, takesNoNameThatTheSystemWouldCutShort)
{
    save(u"a.csv"_s);
    view_->setFileName(u"a.csv"_s + QChar(0) + u".txt"_s);
    EXPECT_FALSE(view_->canAccept());
}

TEST_F(SavePanelViewTest, savesAsTheFileThatIsOpenedWhateverWasTypedBefore)
{
    file(u"old.csv"_s);
    save(u"a.csv"_s);
    view_->select(row(u"old.csv"_s));
    view_->setFileName(u"b.csv"_s);
    view_->openRow(row(u"old.csv"_s));
    EXPECT_EQ(view_->fileName(), u"old.csv"_s);
    settle();
    EXPECT_EQ(view_->replaceQuestion()->text(), u"“old.csv” already exists."_s);
}

TEST_F(SavePanelViewTest, takesTheNameOfAFileThatIsPressedAnew)
{
    file(u"old.csv"_s);
    save(u"a.csv"_s);
    view_->press(row(u"old.csv"_s));
    view_->setFileName(u"b.csv"_s);
    view_->press(row(u"old.csv"_s));
    EXPECT_EQ(view_->fileName(), u"old.csv"_s);
}
