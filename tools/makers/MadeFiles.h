#pragma once

#include <QByteArray>
#include <QString>

/// Files that look as if people had used them, for tests and the demo. Throws std::system_error when the disk refuses.
namespace madefiles {

/// Makes a folder and those above it, as far as they are not there.
void makeFolder(const QString &path);

/// Makes a file of `size` bytes, and the folders above it. It begins with its content, and what lies behind is room that
/// is taken and not written, so that this is quick and `du` counts it. Last changed that many days ago.
void make(const QString &path, const QByteArray &content, qint64 size, int days = 0);

/// Sets when something was last changed.
void setAge(const QString &path, int days);

} // namespace madefiles
