#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>

/// Pictures of applications: PNG files, and the Mac's files that hold one picture at several sizes, of which those count that
/// are PNGs. What is no such file, is cut off, or would be larger than any icon is no picture. Safe from any thread.
namespace iconfile {

/// Nothing larger is read, in pixels of a side.
constexpr int largestSide = 2048;

/// The picture that is best shown in that many pixels, no larger than those. Null for none.
QImage picture(const QByteArray &content, QSize wanted);

} // namespace iconfile
