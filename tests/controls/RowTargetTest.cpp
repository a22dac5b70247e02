#include "controls/RowTarget.h"

#include <QSignalSpy>
#include <QStringListModel>

#include <memory>

#include <gtest/gtest.h>

namespace {

struct RowTargetTest : ::testing::Test
{
    std::unique_ptr<QStringListModel> model =
        std::make_unique<QStringListModel>(QStringList{QStringLiteral("a"), QStringLiteral("b")});
    RowTarget target;
    QSignalSpy lost{&target, &RowTarget::lost};
};

} // namespace

TEST_F(RowTargetTest, hasNoRowBeforeOneIsTaken)
{
    EXPECT_EQ(target.row(), -1);
}

TEST_F(RowTargetTest, followsItsRowWhenOthersComeAndGoAboveIt)
{
    target.take(model.get(), 1);
    EXPECT_EQ(target.row(), 1);
    model->insertRow(0);
    EXPECT_EQ(target.row(), 2);
    model->removeRows(0, 2);
    EXPECT_EQ(target.row(), 0);
    EXPECT_EQ(lost.count(), 0);
}

TEST_F(RowTargetTest, isLostWhenItsRowGoes)
{
    target.take(model.get(), 1);
    model->removeRow(1);
    EXPECT_EQ(target.row(), -1);
    EXPECT_EQ(lost.count(), 1);
    model->removeRow(0);
    EXPECT_EQ(lost.count(), 1);
}

TEST_F(RowTargetTest, isLostWhenTheListIsReplaced)
{
    target.take(model.get(), 0);
    model->setStringList({QStringLiteral("a"), QStringLiteral("b")});
    EXPECT_EQ(target.row(), -1);
    EXPECT_EQ(lost.count(), 1);
}

TEST_F(RowTargetTest, isLostWithItsList)
{
    target.take(model.get(), 0);
    model.reset();
    EXPECT_EQ(target.row(), -1);
    EXPECT_EQ(lost.count(), 1);
}

TEST_F(RowTargetTest, takesNoRowThatIsNotThere)
{
    target.take(model.get(), 0);
    target.take(model.get(), 2);
    EXPECT_EQ(target.row(), -1);
    target.take(model.get(), -1);
    EXPECT_EQ(target.row(), -1);
    target.take(nullptr, 0);
    EXPECT_EQ(target.row(), -1);
}

TEST_F(RowTargetTest, letsGoOfARowWithoutCallingItLost)
{
    target.take(model.get(), 1);
    target.release();
    EXPECT_EQ(target.row(), -1);
    model->removeRow(1);
    EXPECT_EQ(lost.count(), 0);
}
