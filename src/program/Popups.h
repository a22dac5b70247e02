#pragma once

class QQuickWindow;

namespace popups {

/// Closes whatever stands over the window's content: questions, panels, menus. What can be taken back is. Main thread.
void closeAll(QQuickWindow &window);

} // namespace popups
