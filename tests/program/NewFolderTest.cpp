#include "FilePanelFixture.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class NewFolderTest : public FilePanelFixture
{
};

} // namespace

TEST_F(NewFolderTest, makesAFolderAndGoesIntoIt)
{
    chooseFolder({});
    view_->askForFolderName();
    EXPECT_TRUE(view_->asksForFolderName());
    view_->makeFolder(u"new one"_s);
    EXPECT_FALSE(view_->asksForFolderName());
    settle();
    EXPECT_EQ(view_->folder(), at(u"new one"_s));
    EXPECT_TRUE(files::isDirectory(at(u"new one"_s)));
}

TEST_F(NewFolderTest, saysWhyAFolderIsNotMade)
{
    folder(u"taken"_s);
    chooseFolder({});
    view_->makeFolder(u"taken"_s);
    settle();
    EXPECT_EQ(view_->failureText(), u"The folder can’t be made: File exists"_s);
    EXPECT_EQ(view_->folder(), platform_.home);
    view_->select(row(u"taken"_s));
    EXPECT_EQ(view_->failureText(), QString());
}

TEST_F(NewFolderTest, makesNoFolderOutsideTheOneOnView)
{
    folder(u"start"_s);
    chooseFolder(u"start"_s);
    for (const QString &name :
         {u"."_s, u".."_s, u"../x"_s, u"/tmp/x"_s, u"a/b"_s, QString(u"a"_s + QChar(0) + u"b"_s)}) {
        view_->makeFolder(name);
        EXPECT_EQ(view_->failureText(), u"No folder can have the name “%1”"_s.arg(paths::inOneLine(name)));
    }
    view_->makeFolder({});
    EXPECT_EQ(platform_.workQueue.waiting(), 0U);
    EXPECT_EQ(view_->folder(), at(u"start"_s));
}

TEST_F(NewFolderTest, saysAfterAWhileThatTheDiskHasYetToMakeAFolder)
{
    chooseFolder({});
    view_->makeFolder(u"new"_s);
    platform_.mainQueue.advance(1);
    EXPECT_EQ(view_->resultText(), u"Waiting for the disk to answer…"_s);
    settle();
    EXPECT_EQ(view_->resultText(), u"~/new"_s);
}
