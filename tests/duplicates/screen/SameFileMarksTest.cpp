#include "duplicates/screen/SameFileMarks.h"

#include "base/Paths.h"
#include "support/TestPlatform.h"

#include <QSignalSpy>

#include <filesystem>
#include <memory>
#include <vector>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using samefile::Kind;

namespace {

/// "real/x", "way/x" which is the same entry, and "copy/x".
struct SameFileMarksTest : public testing::Test
{
    TestPlatform test;
    std::unique_ptr<SameFileMarks> marks = std::make_unique<SameFileMarks>(test.platform);

    void SetUp() override
    {
        test.temp.file(u"real/x"_s);
        test.temp.file(u"copy/x"_s);
        test.temp.link(u"way"_s, test.temp.at(u"real"_s));
    }

    DuplicateFileGroup group(const QStringList &relative) const
    {
        DuplicateFileGroup made;
        made.id = QUuid::createUuid();
        for (const QString &path : relative)
            made.files.push_back({QUuid::createUuid(), u"x"_s, test.temp.at(path), {}, true});
        return made;
    }
    std::vector<Kind> kinds(const std::vector<DuplicateFileGroup> &groups) const
    {
        std::vector<Kind> found;
        for (const DuplicateFileGroup &one : groups)
            found.push_back(marks->kindOf(one.id));
        return found;
    }
    std::filesystem::path at(const QString &relative) const
    {
        return paths::toBytes(test.temp.at(relative)).toStdString();
    }
    void remove(const QString &relative) const { std::filesystem::remove(at(relative)); }
    void hardLink(const QString &file, const QString &name) const
    {
        std::filesystem::create_hard_link(at(file), at(name));
    }
    DuplicateFileGroup oneFile() const { return group({u"real/x"_s, u"way/x"_s}); }
    DuplicateFileGroup twoFiles() const { return group({u"real/x"_s, u"copy/x"_s}); }
};

} // namespace

TEST_F(SameFileMarksTest, areFoundOffTheMainThread)
{
    const std::vector<DuplicateFileGroup> groups = {twoFiles(), oneFile()};
    const QSignalSpy changes(marks.get(), &SameFileMarks::changed);
    marks->lookUp(groups);
    EXPECT_EQ(marks->kindOf(groups[1].id), Kind::none);
    test.workQueue.run();
    EXPECT_EQ(marks->kindOf(groups[1].id), Kind::none);
    test.mainQueue.run();
    EXPECT_EQ(marks->kindOf(groups[0].id), Kind::none);
    EXPECT_EQ(marks->kindOf(groups[1].id), Kind::oneEntry);
    EXPECT_EQ(changes.count(), 1);
}

TEST_F(SameFileMarksTest, tellNothingWhereThereIsNothingToTell)
{
    const QSignalSpy changes(marks.get(), &SameFileMarks::changed);
    marks->lookUp({twoFiles()});
    test.settle();
    marks->lookUp({});
    EXPECT_EQ(test.workQueue.waiting(), 0U);
    EXPECT_EQ(changes.count(), 0);
}

TEST_F(SameFileMarksTest, stayUntilTheNextAnswer)
{
    const DuplicateFileGroup one = oneFile();
    marks->lookUp({one});
    test.settle();
    marks->lookUp({one, twoFiles()});
    EXPECT_EQ(marks->kindOf(one.id), Kind::oneEntry);
    test.settle();
    EXPECT_EQ(marks->kindOf(one.id), Kind::oneEntry);
    marks->lookUp({});
    EXPECT_EQ(marks->kindOf(one.id), Kind::none);
}

TEST_F(SameFileMarksTest, areNotTakenFromAnAnswerToAnEarlierQuestion)
{
    const DuplicateFileGroup one = oneFile();
    marks->lookUp({one});
    test.workQueue.run(); // answered, but not taken yet
    marks->lookUp({twoFiles()});
    test.settle();
    EXPECT_EQ(marks->kindOf(one.id), Kind::none);
}

TEST_F(SameFileMarksTest, areLookedForNoLongerThanSomebodyAsks)
{
    marks->lookUp({oneFile()});
    marks.reset();
    EXPECT_EQ(test.workQueue.run(), 1);
    EXPECT_EQ(test.mainQueue.run(), 0); // it has stopped without an answer
}

TEST_F(SameFileMarksTest, areAskedForAgainOnGroupsAloneThatHadOneAndLostAFile)
{
    test.temp.link(u"other way"_s, test.temp.at(u"real"_s));
    test.temp.file(u"third/x"_s);
    const DuplicateFileGroup whole = group({u"real/x"_s, u"other way/x"_s});
    DuplicateFileGroup unmarked = group({u"real/x"_s, u"copy/x"_s, u"third/x"_s});
    DuplicateFileGroup freed = group({u"real/x"_s, u"way/x"_s, u"third/x"_s});
    DuplicateFileGroup stillOne = group({u"real/x"_s, u"way/x"_s, u"third/x"_s});
    marks->lookUp({whole, unmarked, freed, stillOne});
    test.settle();
    ASSERT_EQ(kinds({whole, unmarked, freed, stillOne}),
              std::vector({Kind::oneEntry, Kind::none, Kind::oneEntry, Kind::oneEntry}));

    unmarked.files.pop_back();
    freed.files.erase(freed.files.begin() + 1);
    stillOne.files.pop_back();
    // What the two that are not asked about would tell now.
    remove(u"other way"_s);
    remove(u"copy/x"_s);
    hardLink(u"real/x"_s, u"copy/x"_s);
    marks->lookUpShrunk({whole, unmarked, freed, stillOne});
    EXPECT_EQ(kinds({whole, unmarked, freed, stillOne}),
              std::vector({Kind::oneEntry, Kind::none, Kind::none, Kind::none}));
    test.settle();
    EXPECT_EQ(kinds({whole, unmarked, freed, stillOne}),
              std::vector({Kind::oneEntry, Kind::none, Kind::none, Kind::oneEntry}));
}

TEST_F(SameFileMarksTest, ofGroupsThatWentAreForgottenWithoutAskingTheDisk)
{
    const DuplicateFileGroup gone = oneFile();
    const DuplicateFileGroup left = oneFile();
    marks->lookUp({gone, left});
    test.settle();
    marks->lookUpShrunk({left});
    EXPECT_EQ(test.workQueue.waiting(), 0U);
    EXPECT_EQ(kinds({gone, left}), std::vector({Kind::none, Kind::oneEntry}));
}

TEST_F(SameFileMarksTest, areAskedForOnceMoreWhereAFileIsLostBeforeTheAnswer)
{
    test.temp.link(u"other way"_s, test.temp.at(u"real"_s));
    DuplicateFileGroup shrinking = group({u"real/x"_s, u"way/x"_s, u"other way/x"_s});
    marks->lookUp({shrinking});
    test.workQueue.run(); // answered, but not taken yet
    shrinking.files.pop_back();
    marks->lookUpShrunk({shrinking});
    test.mainQueue.run();
    EXPECT_EQ(kinds({shrinking}), std::vector({Kind::none}));
    test.settle();
    EXPECT_EQ(kinds({shrinking}), std::vector({Kind::oneEntry}));
}

TEST_F(SameFileMarksTest, areNotLostWhereTheGroupsShrinkTwiceBeforeTheAnswer)
{
    DuplicateFileGroup first = group({u"real/x"_s, u"way/x"_s, u"copy/x"_s});
    const DuplicateFileGroup second = oneFile();
    marks->lookUp({first, second});
    test.settle();
    first.files.pop_back();
    marks->lookUpShrunk({first, second});
    marks->lookUpShrunk({first});
    EXPECT_EQ(kinds({first, second}), std::vector({Kind::none, Kind::none}));
    test.settle();
    EXPECT_EQ(kinds({first, second}), std::vector({Kind::oneEntry, Kind::none}));
}
