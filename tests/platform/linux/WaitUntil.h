#pragma once

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QThread>

#include <functional>

/// Turns the event loop until `isTrue`, which something outside this process brings about. False when that does
/// not happen within the time that even a machine under load needs.
inline bool waitUntil(const std::function<bool()> &isTrue)
{
    constexpr int most = 20'000; // milliseconds
    QElapsedTimer timer;
    timer.start();
    while (!isTrue()) {
        if (timer.elapsed() > most)
            return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        QThread::msleep(1);
    }
    return true;
}
