#include "platform/linux/LinuxSystemInfo.h"

#include "base/Paths.h"
#include "support/TempHome.h"

#include <gtest/gtest.h>
#include <sys/statvfs.h>
#include <unicode/locid.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// A kernel's folders in a temporary one: "vda2" is a device there, with the number 254:2.
class LinuxSystemInfoFilesTest : public testing::Test
{
protected:
    LinuxSystemInfoFilesTest()
    {
        temp_.folder(u"dev"_s);
        temp_.folder(u"by-label"_s);
        temp_.folder(u"block"_s);
        temp_.folder(u"sys"_s);
        temp_.folder(u"sys/vda2"_s);
        temp_.file(u"dev/vda2"_s, {});
        temp_.file(u"dev/vda9"_s, {});
        link("../sys/vda2", u"block/254:2"_s);
    }

    void link(const char *target, const QString &name)
    {
        ASSERT_EQ(symlink(target, paths::toBytes(temp_.at(name)).constData()), 0);
    }

    void mountRootFrom(const QByteArray &source, const QByteArray &device = "254:2")
    {
        temp_.file(u"mountinfo"_s, "27 1 " + device + " / / rw - ext4 " + source + " rw\n");
    }

    QByteArray device(const char *name) const { return paths::toBytes(temp_.at(u"dev/"_s)) + name; }

    LinuxSystemInfo info() const
    {
        return LinuxSystemInfo({temp_.at(u"mountinfo"_s), temp_.at(u"by-label"_s), temp_.at(u"dev"_s),
                                temp_.at(u"block"_s), temp_.at(u"product_name"_s)});
    }

    TempHome temp_;
};

} // namespace

TEST_F(LinuxSystemInfoFilesTest, namesTheRootVolumeByItsLabel)
{
    mountRootFrom(device("vda2"));
    link("../dev/vda9", u"by-label/Other"_s);
    link("../dev/vda2", u"by-label/My\\x20Disk"_s);
    EXPECT_EQ(info().rootVolumeName(), u"My Disk"_s);
}

TEST_F(LinuxSystemInfoFilesTest, findsTheLabelThroughADeviceMappersLink)
{
    temp_.folder(u"dev/mapper"_s);
    link("../vda2", u"dev/mapper/group-root"_s);
    mountRootFrom(device("mapper/group-root"), "0:27");
    EXPECT_EQ(info().rootVolumeName(), u"group-root"_s);
    link("../dev/vda2", u"by-label/System"_s);
    EXPECT_EQ(info().rootVolumeName(), u"System"_s);
}

TEST_F(LinuxSystemInfoFilesTest, namesTheRootVolumeByItsDeviceWithoutALabel)
{
    mountRootFrom(device("vda2"));
    link("../dev/vda9", u"by-label/Other"_s);
    link("../dev/missing", u"by-label/Broken"_s);
    EXPECT_EQ(info().rootVolumeName(), u"vda2"_s);
}

TEST_F(LinuxSystemInfoFilesTest, findsTheDeviceOfAnEarlyBootByItsNumber)
{
    mountRootFrom(device("root"));
    EXPECT_EQ(info().rootVolumeName(), u"vda2"_s);
    link("../dev/vda2", u"by-label/System"_s);
    EXPECT_EQ(info().rootVolumeName(), u"System"_s);
}

TEST_F(LinuxSystemInfoFilesTest, namesWhatIsNoDeviceByTheSourceOfItsMount)
{
    for (const QByteArray &source :
         {QByteArray("overlay"), QByteArray("server:/export"), QByteArray("tank/ROOT"),
          device("../mountinfo"), device("missing") + "/x", QByteArray("/etc/passwd")}) {
        mountRootFrom(source, "0:42");
        EXPECT_EQ(info().rootVolumeName(), QString::fromLatin1(source));
    }
    mountRootFrom("odd\\040\xFF", "0:42");
    EXPECT_EQ(info().rootVolumeName(), u"odd \uFFFD"_s);
}

TEST_F(LinuxSystemInfoFilesTest, namesAVolumeWithoutAnySourceByItsPlace)
{
    for (const QByteArray &source : {QByteArray("none"), QByteArray("\\040"), QByteArray()}) {
        mountRootFrom(source, "0:42");
        EXPECT_EQ(info().rootVolumeName(), u"/"_s) << source.toStdString();
    }
}

TEST_F(LinuxSystemInfoFilesTest, namesTheVolumeByItsPlaceWithoutAMountTable)
{
    EXPECT_EQ(info().rootVolumeName(), u"/"_s);
    temp_.file(u"mountinfo"_s, QByteArray(100'000, '\xFF'));
    EXPECT_EQ(info().rootVolumeName(), u"/"_s);
}

TEST_F(LinuxSystemInfoFilesTest, readsTheHardwareModelTrimmed)
{
    temp_.file(u"product_name"_s, "  Notebook 14 Pro \n");
    EXPECT_EQ(info().hardwareModel(), u"Notebook 14 Pro"_s);
}

TEST_F(LinuxSystemInfoFilesTest, hasNoHardwareModelWhenItIsMissingOrEmpty)
{
    EXPECT_EQ(info().hardwareModel(), std::nullopt);
    temp_.file(u"product_name"_s, " \n");
    EXPECT_EQ(info().hardwareModel(), std::nullopt);
}

TEST_F(LinuxSystemInfoFilesTest, boundsAndRepairsTheHardwareModel)
{
    temp_.file(u"product_name"_s, "A\xFF" + QByteArray(1'000'000, 'x'));
    const auto model = info().hardwareModel();
    ASSERT_TRUE(model);
    EXPECT_TRUE(model->startsWith(u"A\uFFFDx"_s));
    EXPECT_LE(model->size(), 4096);
}

TEST(LinuxSystemInfo, measuresTheRootVolume)
{
    const auto volume = LinuxSystemInfo().rootVolume();
    ASSERT_TRUE(volume);
    struct statvfs status = {};
    ASSERT_EQ(statvfs("/", &status), 0);
    EXPECT_EQ(static_cast<quint64>(volume->total), status.f_blocks * status.f_frsize);
    EXPECT_GE(volume->available, 0);
    EXPECT_LE(volume->available, volume->total);
    EXPECT_TRUE(volume->name.has_value()); // the other system's name is never shown in its place
}

TEST(LinuxSystemInfo, givesTheLocaleWithoutKeywords)
{
    const icu::Locale before = icu::Locale::getDefault();
    UErrorCode status = U_ZERO_ERROR;
    icu::Locale::setDefault(icu::Locale("de", "AT", nullptr, "currency=EUR"), status);
    EXPECT_EQ(LinuxSystemInfo().localeIdentifier(), u"de_AT"_s);
    icu::Locale::setDefault(before, status);
    EXPECT_TRUE(U_SUCCESS(status));
}

TEST(LinuxSystemInfo, tellsTheRunningKernelsVersion)
{
    EXPECT_GE(LinuxSystemInfo().systemVersion().major, 4);
}
