#pragma once

class QQuickWindow;

namespace popups {

/// Closes what stands over the window's content: questions, which take that for a no, and menus. The program's own panels
/// give up by themselves (FallbackPanel::giveUp), ahead of this. Main thread.
void closeAll(QQuickWindow &window);

} // namespace popups
