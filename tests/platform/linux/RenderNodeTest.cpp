#include "platform/linux/RenderNode.h"

#include "support/TempHome.h"

#include <gtest/gtest.h>

namespace {

struct RenderNodeTest : ::testing::Test
{
    TempHome temp;
    QString folder = temp.folder(QStringLiteral("dri"));
};

} // namespace

TEST_F(RenderNodeTest, isNotThereWithoutItsFolder)
{
    EXPECT_FALSE(rendernode::isThere(temp.at(QStringLiteral("missing"))));
}

TEST_F(RenderNodeTest, isNoneOfTheOtherEntries)
{
    temp.file(QStringLiteral("dri/card0"));
    temp.folder(QStringLiteral("dri/by-path"));
    EXPECT_FALSE(rendernode::isThere(folder));
}

TEST_F(RenderNodeTest, isFoundByItsName)
{
    temp.file(QStringLiteral("dri/card0"));
    temp.file(QStringLiteral("dri/renderD128"));
    EXPECT_TRUE(rendernode::isThere(folder));
}

TEST_F(RenderNodeTest, countsOnlyWhereItCanBeOpened)
{
    temp.link(QStringLiteral("dri/renderD128"),
              QStringLiteral("gone")); // refused to whoever the tests run as
    EXPECT_FALSE(rendernode::isThere(folder));
}
