#include "program/PictureProvider.h"

#include "base/Paths.h"
#include "controls/Pictures.h"
#include "support/TempHome.h"

#include <QBuffer>

#include <gtest/gtest.h>

namespace {

QByteArray png()
{
    QImage image(64, 64, QImage::Format_RGB32);
    image.fill(Qt::red);
    QByteArray content;
    QBuffer buffer(&content);
    image.save(&buffer, "png");
    return content;
}

QImage asked(const QString &path, QSize wanted = {32, 32})
{
    PictureProvider provider;
    QSize told;
    const QString id = Pictures::address(path).section(u'/', 3);
    const QImage image = provider.requestImage(id, &told, wanted);
    EXPECT_EQ(told, image.size());
    return image;
}

bool isNone(const QImage &image)
{
    return image.size() == QSize(1, 1) && image.pixelColor(0, 0).alpha() == 0;
}

} // namespace

TEST(PictureProvider, readsThePictureOfAKey)
{
    const TempHome temp;
    EXPECT_EQ(asked(temp.file(QStringLiteral("Icon.png"), png())).size(), QSize(32, 32));
    EXPECT_EQ(asked(temp.file(paths::fromBytes("caf\xe9 %2f#.png"), png())).size(), QSize(32, 32));
    EXPECT_EQ(asked(temp.file(QStringLiteral("any.png"), png()), {}).size(), QSize(64, 64));
}

TEST(PictureProvider, givesAClearPixelForNone)
{
    const TempHome temp;
    EXPECT_TRUE(isNone(asked(temp.at(QStringLiteral("nowhere.icns")))));
    EXPECT_TRUE(isNone(asked(temp.folder(QStringLiteral("folder.icns")))));
    EXPECT_TRUE(isNone(asked(temp.file(QStringLiteral("bad.icns"), "icns"))));
    EXPECT_TRUE(isNone(asked(QStringLiteral("/dev/zero")))); // reading it would never end
    EXPECT_TRUE(isNone(asked(temp.sparseFile(QStringLiteral("huge.icns"), qint64(1) << 40))));
}

TEST(PictureProvider, isAskedOffTheMainThread)
{
    EXPECT_TRUE(PictureProvider().flags() & QQmlImageProviderBase::ForceAsynchronousImageLoading);
}
