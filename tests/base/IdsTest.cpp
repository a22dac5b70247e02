#include "base/Ids.h"

#include <set>

#include <gtest/gtest.h>

TEST(Ids, areRandomOnesInTheUsualLayout)
{
    const QUuid id = ids::fresh();
    EXPECT_EQ(id.version(), QUuid::Random);
    EXPECT_EQ(id.variant(), QUuid::DCE);
}

TEST(Ids, differFromEachOther)
{
    constexpr int count = 10000;
    std::set<QUuid> seen;
    for (int i = 0; i < count; ++i)
        seen.insert(ids::fresh());
    EXPECT_EQ(seen.size(), static_cast<size_t>(count));
}
