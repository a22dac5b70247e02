#pragma once

#include <QQuickImageProvider>

/// Reads the pictures of applications for the window (controls/Pictures.h tells of their addresses). The toolkit asks on a
/// thread of its own, one picture after the other, gives up what has left the view before its turn, and keeps what was
/// shown only up to a bound of its own; nothing is kept here. Its engine owns it.
class PictureProvider final : public QQuickImageProvider
{
public:
    PictureProvider();

    /// A single clear pixel for what is no picture: nothing at all would be an error, and told of as one.
    QImage requestImage(const QString &id, QSize *size, const QSize &requestedSize) override;
};
