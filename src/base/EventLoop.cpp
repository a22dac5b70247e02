#include "base/EventLoop.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QThread>
#include <QTimer>

#include <chrono>
#include <cmath>

namespace eventloop {

bool isMainThread()
{
    const QCoreApplication *application = QCoreApplication::instance();
    return application && QThread::currentThread() == application->thread();
}

void turn(double seconds)
{
    QEventLoop loop;
    QTimer::singleShot(std::chrono::milliseconds(std::llround(seconds * 1000)), Qt::PreciseTimer, &loop,
                       &QEventLoop::quit);
    loop.exec();
}

} // namespace eventloop
