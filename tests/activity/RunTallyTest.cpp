#include "activity/RunTally.h"

#include <limits>

#include <gtest/gtest.h>

namespace {

Error error(const QString &words)
{
    return {QStringLiteral("Test"), 1, words};
}

} // namespace

TEST(RunTally, countsWhatWentWellWithItsBytes)
{
    RunTally tally;
    tally.succeeded(QStringLiteral("/a"), 10);
    tally.succeeded(QStringLiteral("/b"), 5);
    EXPECT_EQ(tally.done, QStringList({QStringLiteral("/a"), QStringLiteral("/b")}));
    EXPECT_EQ(tally.bytes, 15);
    EXPECT_FALSE(tally.hasFailures());
}

TEST(RunTally, staysAtTheLargestCountOfBytes)
{
    RunTally tally;
    tally.succeeded(QStringLiteral("/a"), std::numeric_limits<qint64>::max());
    tally.succeeded(QStringLiteral("/b"), 1);
    EXPECT_EQ(tally.bytes, std::numeric_limits<qint64>::max());
}

TEST(RunTally, recordsTheFirstTwoHundredPaths)
{
    RunTally tally;
    for (int i = 0; i < 200; ++i)
        tally.succeeded(QString::number(i), 1);
    EXPECT_EQ(tally.recordedPaths().size(), 200);
    tally.succeeded(QStringLiteral("one more"), 1);
    EXPECT_EQ(tally.recordedPaths(), tally.done.first(200));
}

TEST(RunTally, tellsTheFirstFiveFailures)
{
    RunTally tally;
    for (int i = 1; i <= 6; ++i)
        tally.failed(QString::number(i), error(QStringLiteral("no")));
    EXPECT_TRUE(tally.hasFailures());
    EXPECT_EQ(tally.failures.size(), 6);
    EXPECT_EQ(tally.firstFailures(), QStringLiteral("1: no\n2: no\n3: no\n4: no\n5: no"));
}
