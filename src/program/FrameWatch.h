#pragma once

#include <QObject>

#include <atomic>
#include <functional>

class QQuickWindow;

/// Tells when what a window holds has been seen. A frame is drawn on a thread of its own where the machine allows it, so the
/// next one to end may have begun before a change: only one that has taken the change over counts. Main thread.
class FrameWatch final : public QObject
{
    Q_OBJECT

public:
    /// `shown` is called once the window's first frame is on view. `window` outlives this object.
    FrameWatch(QQuickWindow &window, std::function<void()> shown);

    /// What the window holds has changed: `shown` is called again once that is on view.
    void expect();

private:
    void takeOver();
    void swap();

    QQuickWindow &window_;
    const std::function<void()> shown_;
    std::atomic<int> expected_ = 1; // counts the changes
    int drawn_ = 0;                 // the change that the frame at work has taken over; drawing thread
    int told_ = 0;                  // the one that was told last; drawing thread
};
