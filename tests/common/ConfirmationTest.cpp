#include "common/Confirmation.h"

#include <gtest/gtest.h>

namespace {

struct ConfirmationTest : ::testing::Test
{
    int runs = 0;
    Confirmation confirmation{[this] { ++runs; }};
};

} // namespace

TEST_F(ConfirmationTest, asksBeforeItRunsAnything)
{
    EXPECT_FALSE(confirmation.isUp());
    confirmation.ask(QStringLiteral("Sure?"));
    EXPECT_TRUE(confirmation.isUp());
    EXPECT_EQ(confirmation.text(), QStringLiteral("Sure?"));
    EXPECT_EQ(runs, 0);
}

TEST_F(ConfirmationTest, runsOnceHoweverOftenItIsClicked)
{
    confirmation.ask(QStringLiteral("Sure?"));
    confirmation.confirm();
    confirmation.confirm();
    EXPECT_FALSE(confirmation.isUp());
    EXPECT_EQ(runs, 1);
}

TEST_F(ConfirmationTest, runsNothingWithoutAQuestion)
{
    confirmation.confirm();
    EXPECT_EQ(runs, 0);
}

TEST_F(ConfirmationTest, runsNothingWhenItIsTakenBack)
{
    confirmation.ask(QStringLiteral("Sure?"));
    confirmation.cancel();
    confirmation.confirm();
    EXPECT_FALSE(confirmation.isUp());
    EXPECT_EQ(runs, 0);
}

TEST_F(ConfirmationTest, takesANoteWhileItIsUpAndDropsItWithTheNextQuestion)
{
    confirmation.setNote(QStringLiteral("too early"));
    EXPECT_EQ(confirmation.note(), QString());
    confirmation.ask(QStringLiteral("Sure?"));
    confirmation.setNote(QStringLiteral("More."));
    EXPECT_EQ(confirmation.note(), QStringLiteral("More."));
    confirmation.cancel();
    confirmation.setNote(QStringLiteral("too late"));
    EXPECT_EQ(confirmation.note(), QStringLiteral("More."));
    confirmation.ask(QStringLiteral("Again?"));
    EXPECT_EQ(confirmation.note(), QString());
}
