#include "disk/DiskServices.h"

#include <gtest/gtest.h>

namespace {

struct DiskUsageTest : testing::Test
{
    DiskServices services;

    DiskUsage usageOf(std::optional<SystemInfo::Volume> volume)
    {
        services.test.systemInfo.volume = std::move(volume);
        return services.disk.getDiskUsage();
    }
};

} // namespace

TEST_F(DiskUsageTest, usedIsTotalLessAvailable)
{
    EXPECT_EQ(usageOf(SystemInfo::Volume{1000, 400, "Disk"}), (DiskUsage{1000, 600, 400, "Disk"}));
}

TEST_F(DiskUsageTest, volumeWithoutANameIsMacintoshHdWithRealSizes)
{
    EXPECT_EQ(usageOf(SystemInfo::Volume{1000, 400, std::nullopt}),
              (DiskUsage{1000, 600, 400, "Macintosh HD"}));
}

TEST_F(DiskUsageTest, isZerosAndUnknownWhenTheVolumeCannotBeAsked)
{
    EXPECT_EQ(usageOf(std::nullopt), (DiskUsage{0, 0, 0, "Unknown"}));
}
