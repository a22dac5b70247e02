#include "base/EventLoop.h"

#include "base/WorkQueue.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QScopeGuard>
#include <QThread>
#include <QTimer>

#include <chrono>
#include <cmath>
#include <memory>
#include <semaphore>
#include <utility>

namespace eventloop {
namespace {

constexpr double turnLength = 0.05; // seconds between two looks whether the work has ended

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

void runAside(WorkQueue &queue, const std::function<void()> &work)
{
    // Shared with the worker, which may still be at its release when the wait is over.
    const auto hasEnded = std::make_shared<std::binary_semaphore>(0);
    queue.post(WorkPriority::userInitiated, [hasEnded, &work] {
        work();
        hasEnded->release();
        endTurn();
    });
    while (!hasEnded->try_acquire())
        turn(turnLength);
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
