#include "base/LatestQuestion.h"

#include "support/SteppedQueues.h"

#include <QObject>

#include <memory>

#include <gtest/gtest.h>

namespace {

struct Asker : QObject
{
    LatestQuestion question;
    int answer = 0;
};

struct LatestQuestionTest : public testing::Test
{
    SteppedMainQueue main;
    std::unique_ptr<Asker> asker = std::make_unique<Asker>();

    void answer(const LatestQuestion::Token &token, int value)
    {
        token.answer(main, QPointer(asker.get()), [value](Asker &owner) { owner.answer = value; });
    }
};

} // namespace

TEST_F(LatestQuestionTest, takesItsAnswerOnTheMainQueue)
{
    const auto token = asker->question.ask();
    EXPECT_FALSE(token.isUnwanted());
    answer(token, 1);
    EXPECT_EQ(asker->answer, 0);
    main.run();
    EXPECT_EQ(asker->answer, 1);
}

TEST_F(LatestQuestionTest, takesTheAnswerToTheLastOneAloneInWhicheverOrderTheyCome)
{
    const auto first = asker->question.ask();
    const auto second = asker->question.ask();
    EXPECT_TRUE(first.isUnwanted());
    EXPECT_FALSE(second.isUnwanted());
    answer(second, 2);
    answer(first, 1);
    main.run();
    EXPECT_EQ(asker->answer, 2);
}

TEST_F(LatestQuestionTest, takesNoAnswerThatWasUnderWayWhenTheNextWasAsked)
{
    answer(asker->question.ask(), 1);
    const auto second = asker->question.ask();
    main.run();
    EXPECT_EQ(asker->answer, 0);
    EXPECT_FALSE(second.isUnwanted());
}

TEST_F(LatestQuestionTest, takesNoAnswerOnceItIsDropped)
{
    const auto token = asker->question.ask();
    answer(token, 1);
    asker->question.drop();
    EXPECT_TRUE(token.isUnwanted());
    main.run();
    EXPECT_EQ(asker->answer, 0);
}

TEST_F(LatestQuestionTest, goesWithWhoAsked)
{
    const auto token = asker->question.ask();
    answer(token, 1);
    asker.reset();
    EXPECT_TRUE(token.isUnwanted());
    EXPECT_EQ(main.run(), 1);
}
