#include "program/FrameWatch.h"

#include <QQuickWindow>

FrameWatch::FrameWatch(QQuickWindow &window, std::function<void()> shown)
    : window_(window)
    , shown_(std::move(shown))
{
    connect(&window_, &QQuickWindow::afterSynchronizing, this, &FrameWatch::takeOver, Qt::DirectConnection);
    connect(&window_, &QQuickWindow::frameSwapped, this, &FrameWatch::swap, Qt::DirectConnection);
}

void FrameWatch::expect()
{
    ++expected_;
    window_.update(); // also where the change alters no pixel
}

/// The main thread waits meanwhile, so the frame holds what was expected by now.
void FrameWatch::takeOver()
{
    drawn_ = expected_;
}

void FrameWatch::swap()
{
    if (std::exchange(told_, drawn_) == drawn_)
        return;
    const auto tell = [this, shown = drawn_] {
        if (shown == expected_)
            shown_();
    };
    QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
}
