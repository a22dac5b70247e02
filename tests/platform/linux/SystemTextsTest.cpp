#include "platform/linux/SystemTexts.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QByteArray rootLine =
    "27 1 254:2 / / rw,relatime shared:1 master:3 - ext4 /dev/vda2 rw,errors=remount-ro\n";

std::tuple<int, int, int> version(QByteArrayView release)
{
    const SystemInfo::Version version = systemtexts::kernelVersion(release);
    return {version.major, version.minor, version.patch};
}

} // namespace

TEST(SystemTexts, findsTheRootMountAmongOthers)
{
    const auto mount = systemtexts::rootMount("22 27 0:21 / /proc rw - proc proc rw\n" + rootLine
                                              + "30 27 254:9 / /home rw - ext4 /dev/vda9 rw\n");
    ASSERT_TRUE(mount);
    EXPECT_EQ(mount->source, "/dev/vda2");
    EXPECT_EQ(mount->device, "254:2");
}

TEST(SystemTexts, readsRootMountWithoutOptionalFields)
{
    const auto mount = systemtexts::rootMount("27 1 8:1 / / rw - btrfs /dev/sda1 rw");
    ASSERT_TRUE(mount);
    EXPECT_EQ(mount->source, "/dev/sda1");
}

TEST(SystemTexts, takesTheMountThatLiesOverAnEarlierOne)
{
    const auto mount = systemtexts::rootMount("1 0 0:2 / / rw - rootfs rootfs rw\n" + rootLine);
    ASSERT_TRUE(mount);
    EXPECT_EQ(mount->source, "/dev/vda2");
}

TEST(SystemTexts, decodesEscapesInTheSource)
{
    const auto mount = systemtexts::rootMount(R"(1 0 0:2 / / rw - ext4 /dev/my\040disk\134x\04 rw)");
    ASSERT_TRUE(mount);
    EXPECT_EQ(mount->source, R"(/dev/my disk\x\04)");
}

TEST(SystemTexts, findsNoRootMountInGarbage)
{
    for (const QByteArray &garbage :
         {QByteArray(), QByteArray("\n\n\n"), QByteArray("-"), QByteArray("1 2 3 / /"),
          QByteArray("1 2 3 / / rw -"), QByteArray("1 2 3 / / rw - ext4"), QByteArray("- - - - - - - -"),
          QByteArray("\0\0\0 / / \xFF", 10), QByteArray("1 0 254:2 / /home rw - ext4 /dev/vda2 rw"),
          QByteArray(100'000, ' '), QByteArray(100'000, '/')})
        EXPECT_FALSE(systemtexts::rootMount(garbage)) << garbage.left(40).toStdString();
}

TEST(SystemTexts, decodesLabels)
{
    EXPECT_EQ(systemtexts::decodedLabel(u"Data"_s), u"Data"_s);
    EXPECT_EQ(systemtexts::decodedLabel(u"My\\x20Disk"_s), u"My Disk"_s);
    EXPECT_EQ(systemtexts::decodedLabel(u"a\\x2fb"_s), u"a/b"_s);
    EXPECT_EQ(systemtexts::decodedLabel(u"K\\xc3\\xbcste"_s), u"Küste"_s);
    EXPECT_EQ(systemtexts::decodedLabel(u"Küste 🗄"_s), u"Küste 🗄"_s);
}

TEST(SystemTexts, keepsBrokenLabelEscapesAsTheyStand)
{
    for (const QString &broken :
         {u"\\"_s, u"\\x"_s, u"\\x2"_s, u"\\xzz"_s, u"\\x-1"_s, u"\\x00"_s, u"a\\x 20"_s})
        EXPECT_EQ(systemtexts::decodedLabel(broken), broken);
    EXPECT_EQ(systemtexts::decodedLabel(u"\\xff"_s), QString(QChar(QChar::ReplacementCharacter)));
    EXPECT_EQ(systemtexts::decodedLabel({}), QString());
}

TEST(SystemTexts, readsKernelVersions)
{
    EXPECT_EQ(version("6.1.0-18-amd64"), std::tuple(6, 1, 0));
    EXPECT_EQ(version("6.18.44-rc1"), std::tuple(6, 18, 44));
    EXPECT_EQ(version("5.15"), std::tuple(5, 15, 0));
    EXPECT_EQ(version("6"), std::tuple(6, 0, 0));
    EXPECT_EQ(version("6.1-rc2"), std::tuple(6, 1, 0));
}

TEST(SystemTexts, readsNonsenseVersionsAsZero)
{
    for (const QByteArrayView nonsense : {"", "abc", "-1.2.3", "99999999999999999999.1.2", ".1.2", " 6.1.0"})
        EXPECT_EQ(version(nonsense), std::tuple(0, 0, 0)) << nonsense.data();
    EXPECT_EQ(version("6.-1.3"), std::tuple(6, 0, 0));
    EXPECT_EQ(version("6..3"), std::tuple(6, 0, 0));
}
