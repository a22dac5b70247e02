#include "duplicates/screen/SameFileMarks.h"

#include "support/TestPlatform.h"

#include <QSignalSpy>

#include <memory>

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
