#pragma once

#include <QString>

namespace rendernode {

/// Whether this process may use a graphics card: a node "renderD…" in the kernel's folder of them that it can open. Without
/// one the desktop's graphics library draws every pixel by the processor. Any thread, also ahead of the application object.
bool isThere(const QString &folder = QStringLiteral("/dev/dri"));

} // namespace rendernode
