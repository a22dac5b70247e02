#include "base/EventLoop.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QScopeGuard>
#include <QThread>
#include <QTimer>

#include <chrono>
#include <cmath>
#include <utility>

namespace eventloop {
namespace {

QEventLoop *innermost = nullptr; // the turn under way; main thread only

} // namespace

bool isMainThread()
{
    const QCoreApplication *application = QCoreApplication::instance();
    return application && QThread::currentThread() == application->thread();
}

void turn(double seconds)
{
    QEventLoop loop;
    const QScopeGuard restore([outer = std::exchange(innermost, &loop)] { innermost = outer; });
    QTimer::singleShot(std::chrono::milliseconds(std::llround(seconds * 1000)), Qt::PreciseTimer, &loop,
                       &QEventLoop::quit);
    loop.exec();
}

void endTurn()
{
    const auto quitInnermost = [] {
        if (innermost)
            innermost->quit();
    };
    if (QCoreApplication *application = QCoreApplication::instance())
        QMetaObject::invokeMethod(application, quitInnermost, Qt::QueuedConnection);
}

} // namespace eventloop
