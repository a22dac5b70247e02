#pragma once

#include <QEventLoop>
#include <QTimer>

/// The real event loop, turned until something that a test waits for has come.
class EventLoopRun
{
public:
    /// Ends the wait, also one that has not begun yet. Any thread.
    void finish()
    {
        QMetaObject::invokeMethod(
            &loop_,
            [this] {
                finished_ = true;
                loop_.quit();
            },
            Qt::QueuedConnection);
    }

    /// Turns the loop until `finish` is called. False when half a minute goes by without it.
    bool wait()
    {
        QTimer::singleShot(30000, &loop_, &QEventLoop::quit);
        if (!finished_)
            loop_.exec();
        return finished_;
    }

private:
    QEventLoop loop_;
    bool finished_ = false;
};
