#include "program/PictureProvider.h"

#include "base/Error.h"
#include "base/Files.h"
#include "controls/Pictures.h"
#include "program/IconFile.h"

namespace {

constexpr qint64 mostBytes = qint64{8} * 1024 * 1024; // several times what a set of all sizes takes
constexpr QSize usualSize(64, 64);

QByteArray contentOf(const QString &path)
{
    try {
        return files::readAll(path, mostBytes);
    } catch (const Error &) {
        return {};
    }
}

} // namespace

PictureProvider::PictureProvider()
    : QQuickImageProvider(QQuickImageProvider::Image, QQuickImageProvider::ForceAsynchronousImageLoading)
{
}

QImage PictureProvider::requestImage(const QString &id, QSize *size, const QSize &requestedSize)
{
    QImage image = iconfile::picture(contentOf(Pictures::keyOf(id)),
                                     requestedSize.isValid() ? requestedSize : usualSize);
    if (image.isNull()) {
        image = QImage(1, 1, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
    }
    if (size)
        *size = image.size();
    return image;
}
