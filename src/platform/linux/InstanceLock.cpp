#include "platform/linux/InstanceLock.h"

#include <atomic>
#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>

// glibc 2.36 declares these without C linkage.
extern "C" {
#include <sys/syscall.h>
}

namespace {

/// The end of the pipe that the signal's handler writes to. The process's, like the signal, and all that the
/// handler may touch. Never closed, since the handler may be at work on another thread.
std::atomic<int> handlerPipe = -1;
static_assert(std::atomic<int>::is_always_lock_free);

extern "C" void takeSignal(int)
{
    const int before = errno;
    const char byte = 0;
    // A full pipe holds a wake-up already, so what doesn't fit is not missed.
    [[maybe_unused]] const ssize_t written = write(handlerPipe.load(), &byte, 1);
    errno = before;
}

/// The end to read from of that pipe, with the handler installed; -1 when there is no pipe to be had.
int signalPipe()
{
    static int readEnd = -1;
    int ends[2];
    if (readEnd != -1 || pipe2(ends, O_CLOEXEC | O_NONBLOCK) == -1)
        return readEnd;
    readEnd = ends[0];
    handlerPipe = ends[1];
    struct sigaction action = {};
    action.sa_handler = takeSignal;
    action.sa_flags = SA_RESTART;
    sigaction(SIGUSR1, &action, nullptr);
    return readEnd;
}

void drain(int pipe)
{
    char bytes[64];
    while (read(pipe, bytes, sizeof bytes) > 0) {}
}

struct flock wholeFile()
{
    struct flock lock = {};
    lock.l_type = F_WRLCK;
    lock.l_whence = SEEK_SET;
    return lock;
}

/// The process that holds a lock on the file; 0 when none does or when it can't be seen from here.
pid_t holderOf(int file)
{
    struct flock lock = wholeFile();
    if (fcntl(file, F_GETLK, &lock) == -1 || lock.l_type == F_UNLCK)
        return 0;
    return lock.l_pid > 0 ? lock.l_pid : 0;
}

// glibc 2.36 declares these two without C linkage, so that C++ can't link them.
int openProcess(pid_t process)
{
    return static_cast<int>(syscall(SYS_pidfd_open, process, 0));
}

bool sendSignal(int process)
{
    return syscall(SYS_pidfd_send_signal, process, SIGUSR1, nullptr, 0) == 0;
}

} // namespace

InstanceLock::InstanceLock(QByteArray path)
    : path_(std::move(path))
{
}

InstanceLock::~InstanceLock()
{
    release();
}

InstanceLock::Result InstanceLock::acquire()
{
    if (!openFile())
        return Result::unavailable;
    // The handler comes first: from the moment that we hold the lock we may be signalled, and the default of this
    // signal is to end the process.
    const bool listens = listen();
    struct flock lock = wholeFile();
    if (listens && fcntl(file_, F_SETLK, &lock) == 0)
        return Result::acquired;
    const bool isTaken = listens && (errno == EAGAIN || errno == EACCES);
    release();
    return isTaken ? Result::heldByOther : Result::unavailable;
}

void InstanceLock::release()
{
    if (file_ != -1)
        close(file_);
    file_ = -1;
    // The signal's handler stays: somebody may have found us through the lock just before we let go.
    notifier_.reset();
}

bool InstanceLock::signalHolder() const
{
    const int file = open(path_.constData(), O_RDWR | O_CLOEXEC | O_NOFOLLOW);
    if (file == -1)
        return false;
    const pid_t holder = holderOf(file);
    // Numbers of processes are used again. A process that is held by a descriptor and has the lock still is the
    // right one; without such descriptors (an old kernel, a sandbox) the number has to do.
    const int process = holder == 0 ? -1 : openProcess(holder);
    bool isSent = false;
    if (process != -1)
        isSent = holderOf(file) == holder && sendSignal(process);
    else if (holder != 0)
        isSent = kill(holder, SIGUSR1) == 0;
    if (process != -1)
        close(process);
    close(file);
    return isSent;
}

bool InstanceLock::openFile()
{
    if (file_ == -1 && !path_.isEmpty())
        file_ = open(path_.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
    return file_ != -1;
}

bool InstanceLock::listen()
{
    const int pipe = signalPipe();
    if (pipe == -1 || notifier_)
        return pipe != -1;
    drain(pipe); // what came while nobody held the lock was not meant for this time
    notifier_ = std::make_unique<QSocketNotifier>(pipe, QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(), [this, pipe] {
        drain(pipe);
        if (onSignal)
            onSignal();
    });
    return true;
}
