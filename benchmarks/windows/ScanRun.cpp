#include "ScanRun.h"

#include "disk/DiskAnalyzerView.h"

#include <QQuickWindow>

#include <cerrno>
#include <cstdio>

#include <sys/wait.h>
#include <unistd.h>

namespace {

using namespace std::chrono_literals;

constexpr auto timeBeforeCancel = 100ms; // for a scan to be well under way
constexpr auto timeBetweenLooks = 2ms;
constexpr auto quietTime = 500ms; // without a child process, after which none will come

/// False while there is a child process, ended or not.
bool isChildless()
{
    siginfo_t info;
    return waitid(P_ALL, 0, &info, WEXITED | WNOHANG | WNOWAIT) == -1 && errno == ECHILD;
}

} // namespace

ScanRun::ScanRun(Composition &composition, TimedMainQueue &queue, bool scansOnly)
    : composition_(composition)
    , queue_(queue)
    , scansOnly_(scansOnly)
{
    connect(composition.window(), &QQuickWindow::frameSwapped, this, &ScanRun::framePainted);
    connect(&composition.disk(), &DiskService::isScanningAnalyzerChanged, this, &ScanRun::scanningChanged);
    connect(&look_, &QTimer::timeout, this, &ScanRun::lookForChildren);
    QTimer::singleShot(500ms, this, &ScanRun::begin); // the window is up and at rest
}

void ScanRun::begin()
{
    composition_.content().setSelectedItem(SidebarItem::diskAnalyzer);
    queue_.reset(); // the screen is made; what counts is the scan
}

void ScanRun::scanningChanged()
{
    const bool isScanning = composition_.disk().isScanningAnalyzer();
    if (isScanning && stage_ == Stage::waiting) {
        stage_ = Stage::scanning;
    } else if (!isScanning && stage_ == Stage::scanning) {
        stage_ = Stage::scanned;
        composition_.window()->update();
    } else if (isScanning && stage_ == Stage::scanningAgain) {
        QTimer::singleShot(timeBeforeCancel, this, &ScanRun::cancel);
    } else if (!isScanning && stage_ == Stage::scanningAgain) {
        stage_ = Stage::cancelled;
        composition_.window()->update();
    }
}

void ScanRun::framePainted()
{
    if (stage_ == Stage::scanned) {
        print("turn", queue_.longestTurn());
        if (scansOnly_) {
            finish();
            stage_ = Stage::unwinding;
            return;
        }
        stage_ = Stage::scanningAgain;
        QTimer::singleShot(0, this, [this] {
            if (auto *view = qobject_cast<DiskAnalyzerView *>(composition_.main().screen()))
                view->rescan();
        });
    } else if (stage_ == Stage::cancelled) {
        print("cancel", static_cast<double>(sinceCancel_.nsecsElapsed()) * 1e-9);
        stage_ = Stage::unwinding;
    }
}

void ScanRun::cancel()
{
    if (!composition_.disk().isScanningAnalyzer()) {
        fputs("The scan was over before it could be cancelled.\n", stderr);
        _exit(EXIT_FAILURE);
    }
    if (isChildless()) // between two probes: the cancel is to find one alive
        return QTimer::singleShot(0, this, &ScanRun::cancel);
    sinceCancel_.start();
    composition_.disk().cancelAnalyzerScan();
    lookForChildren();
    look_.start(timeBetweenLooks);
}

void ScanRun::lookForChildren()
{
    const qint64 now = sinceCancel_.nsecsElapsed();
    if (!isChildless()) {
        lastSeenChild_ = now;
    } else if (stage_ == Stage::unwinding
               && now - lastSeenChild_ > std::chrono::nanoseconds(quietTime).count()) {
        look_.stop();
        print("childless", static_cast<double>(lastSeenChild_) * 1e-9);
        finish();
    }
}

void ScanRun::print(const char *name, double seconds)
{
    printf("%s %.6f\n", name, seconds);
}

void ScanRun::finish()
{
    puts("ready");
    fflush(stdout);
}
