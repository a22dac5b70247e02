#include "program/IconFile.h"

#include <QBuffer>
#include <QtEndian>

#include <vector>

#include <gtest/gtest.h>

namespace {

QByteArray png(int width, int height, QColor color = Qt::red)
{
    QImage image(width, height, QImage::Format_ARGB32);
    image.fill(color);
    QByteArray content;
    QBuffer buffer(&content);
    image.save(&buffer, "png");
    return content;
}

QByteArray number(quint32 value)
{
    QByteArray bytes(4, '\0');
    qToBigEndian(value, bytes.data());
    return bytes;
}

QByteArray entry(const QByteArray &sign, const QByteArray &content)
{
    return sign + number(static_cast<quint32>(content.size()) + 8) + content;
}

/// A set of pictures as the Mac's applications have it.
QByteArray set(const std::vector<QByteArray> &entries)
{
    QByteArray all;
    for (const QByteArray &one : entries)
        all += one;
    return entry("icns", all);
}

QColor colorOf(const QImage &image)
{
    return image.isNull() ? QColor() : image.pixelColor(image.width() / 2, image.height() / 2);
}

} // namespace

TEST(IconFile, readsAPngNoLargerThanWanted)
{
    EXPECT_EQ(iconfile::picture(png(64, 64), {32, 32}).size(), QSize(32, 32));
    EXPECT_EQ(iconfile::picture(png(100, 50), {32, 32}).size(), QSize(32, 16));
    EXPECT_EQ(iconfile::picture(png(16, 16), {32, 32}).size(), QSize(16, 16));
}

TEST(IconFile, takesTheSmallestOfASetThatFillsWhatIsWanted)
{
    const QByteArray icons =
        set({entry("ic07", png(128, 128, Qt::green)), entry("icp4", png(16, 16, Qt::red)),
             entry("ic12", png(64, 64, Qt::blue)), entry("TOC ", "of the others")});
    EXPECT_EQ(colorOf(iconfile::picture(icons, {48, 48})), QColor(Qt::blue));
    EXPECT_EQ(colorOf(iconfile::picture(icons, {64, 64})), QColor(Qt::blue));
    EXPECT_EQ(colorOf(iconfile::picture(icons, {16, 16})), QColor(Qt::red));
    EXPECT_EQ(colorOf(iconfile::picture(icons, {65, 65})), QColor(Qt::green));
    EXPECT_EQ(iconfile::picture(icons, {512, 512}).size(), QSize(128, 128)); // the largest that there is
}

TEST(IconFile, findsNoneInWhatIsNoPicture)
{
    const QByteArray picture = png(32, 32);
    for (const QByteArray &content :
         {QByteArray(), QByteArray("text"), QByteArray("icns"), set({}),
          set({entry("ic07", "\x89PNG\r\n\x1a\n")}),
          set({entry("ic09", "a picture of another kind, with enough bytes for a head")}), picture.first(30),
          "icns" + number(40) + "ic07" + number(0) + picture,
          "icns" + number(40) + "ic07" + number(7) + picture,
          "icns" + number(40) + "ic07" + number(0xffffffff) + picture, QByteArray("GIF89a") + picture})
        EXPECT_TRUE(iconfile::picture(content, {32, 32}).isNull()) << content.toHex().toStdString();
}

TEST(IconFile, keepsWhatStandsAheadOfABadEntry)
{
    const QByteArray icons =
        "icns" + number(0) + entry("ic12", png(64, 64, Qt::blue)) + "ic07" + number(1 << 30) + "cut off";
    EXPECT_EQ(colorOf(iconfile::picture(icons, {64, 64})), QColor(Qt::blue));
}

TEST(IconFile, readsNothingLargerThanAnyIcon)
{
    QByteArray huge = png(32, 32);
    qToBigEndian(quint32(1'000'000), huge.data() + 16); // its width, as it tells it itself
    EXPECT_TRUE(iconfile::picture(huge, {32, 32}).isNull());
    EXPECT_TRUE(iconfile::picture(png(iconfile::largestSide + 1, 1), {32, 32}).isNull());
    EXPECT_FALSE(iconfile::picture(png(iconfile::largestSide, 1), {32, 32}).isNull());
}

TEST(IconFile, readsEverySetThatIsCutOffOrSpoiled)
{
    const QByteArray icons = set({entry("ic12", png(24, 24)), entry("icp4", png(8, 8))});
    for (qsizetype length = 0; length < icons.size(); ++length) {
        const QImage image = iconfile::picture(icons.first(length), {16, 16});
        EXPECT_LE(image.width(), 16);
    }
    for (qsizetype at = 0; at < icons.size(); ++at) {
        QByteArray spoiled = icons;
        spoiled[at] = static_cast<char>(~spoiled[at]);
        EXPECT_LE(iconfile::picture(spoiled, {16, 16}).width(), 16);
    }
}
