#include "platform/linux/QuitSignals.h"

#include "base/Error.h"
#include "base/SystemCalls.h"
#include "base/Threads.h"

#include <QSocketNotifier>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <thread>

#include <poll.h>
#include <unistd.h>

namespace {

constexpr std::chrono::seconds timeToQuit(1);

int pipeEnds[2] = {-1, -1}; // a handler can reach nothing but what is static

void handleSignal(int)
{
    const char anything = 0;
    [[maybe_unused]] const ssize_t written = write(pipeEnds[1], &anything, 1); // all that a handler may do
}

/// Ends the process where the main thread does not, as it would itself: it waits for no work either. The streams are not
/// written out, since the main thread may be stuck in one.
void endInItsPlace()
{
    pollfd request = {pipeEnds[0], POLLIN, 0};
    while (poll(&request, 1, -1) != 1)
        ; // a signal came to this thread
    std::this_thread::sleep_for(timeToQuit);
    _exit(EXIT_SUCCESS);
}

/// On a thread of its own, since every worker may wait for the same disk that holds the main thread.
void standIn()
{
    try {
        threads::runDetached(&endInItsPlace);
    } catch (const Error &) {
        return; // it ends as long as the main loop turns
    }
}

} // namespace

QuitSignals::QuitSignals(std::function<void()> quit)
    : quit_(std::move(quit))
{
    if (systemcalls::openPipe(pipeEnds) == -1)
        return; // the signals then keep their default, which ends the process as well
    auto *notifier = new QSocketNotifier(pipeEnds[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this] { quit_(); });
    standIn();
    struct sigaction action = {};
    action.sa_handler = handleSignal;
    action.sa_flags = SA_RESTART;
    sigaction(SIGTERM, &action, nullptr);
    sigaction(SIGINT, &action, nullptr);
}
