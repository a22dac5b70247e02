#include "platform/linux/QuitSignals.h"

#include "base/SystemCalls.h"

#include <QSocketNotifier>

#include <csignal>

#include <unistd.h>

namespace {

int pipeEnds[2] = {-1, -1}; // a handler can reach nothing but what is static

void handleSignal(int)
{
    const char anything = 0;
    [[maybe_unused]] const ssize_t written = write(pipeEnds[1], &anything, 1); // all that a handler may do
}

} // namespace

QuitSignals::QuitSignals(std::function<void()> quit)
    : quit_(std::move(quit))
{
    if (systemcalls::openPipe(pipeEnds) == -1)
        return; // the signals then keep their default, which ends the process as well
    auto *notifier = new QSocketNotifier(pipeEnds[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this] { quit_(); });
    struct sigaction action = {};
    action.sa_handler = handleSignal;
    action.sa_flags = SA_RESTART;
    sigaction(SIGTERM, &action, nullptr);
    sigaction(SIGINT, &action, nullptr);
}
