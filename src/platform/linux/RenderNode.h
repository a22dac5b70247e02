#pragma once

#include <QString>

namespace rendernode {

/// Whether this process may use a graphics card, as far as can be told ahead of trying: a node "renderD…" in the kernel's
/// folder of them that it can open. That there is none is a sign of no graphics card, not a proof: a driver may go without
/// such nodes. So whoever draws lets the user's own choice (QT_QUICK_BACKEND, QSG_RHI_BACKEND and the like) overrule it.
/// Where it is right, the desktop's graphics library draws every pixel by the processor. Any thread, also ahead of the
/// application object.
bool isThere(const QString &folder = QStringLiteral("/dev/dri"));

} // namespace rendernode
