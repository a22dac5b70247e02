#include "base/ChildProcess.h"

#include "base/Error.h"
#include "base/Paths.h"
#include "base/SystemCalls.h"
#include "base/Threads.h"

#include <cerrno>
#include <csignal>
#include <iterator>
#include <utility>
#include <vector>

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

extern char **environ; // NOLINT(readability-redundant-declaration): macOS declares it nowhere

namespace {

/// The argument list as the system wants it, with the program's own path first.
class Arguments
{
public:
    Arguments(const QString &executable, const QStringList &arguments)
    {
        bytes_.reserve(static_cast<size_t>(arguments.size()) + 1);
        bytes_.push_back(paths::toBytes(executable));
        for (const QString &argument : arguments)
            bytes_.push_back(paths::toBytes(argument));
        for (QByteArray &argument : bytes_)
            pointers_.push_back(argument.data());
        pointers_.push_back(nullptr);
    }
    char *const *data() const { return pointers_.data(); }

private:
    std::vector<QByteArray> bytes_;
    std::vector<char *> pointers_;
};

/// Attributes of a new process: every signal at its default and none blocked, else `find` outlives `head`.
class SpawnAttributes
{
public:
    /// With `hasOwnSession` the process survives the hang-up of our terminal.
    explicit SpawnAttributes(bool hasOwnSession)
    {
        sigset_t all;
        sigset_t none;
        sigfillset(&all);
        sigemptyset(&none);
        posix_spawnattr_init(&attributes_);
        posix_spawnattr_setsigdefault(&attributes_, &all);
        posix_spawnattr_setsigmask(&attributes_, &none);
        const int session = hasOwnSession ? POSIX_SPAWN_SETSID : 0;
        posix_spawnattr_setflags(
            &attributes_, static_cast<short>(POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSIGMASK | session));
    }
    ~SpawnAttributes() { posix_spawnattr_destroy(&attributes_); }
    SpawnAttributes(const SpawnAttributes &) = delete;
    SpawnAttributes &operator=(const SpawnAttributes &) = delete;
    const posix_spawnattr_t *get() const { return &attributes_; }

private:
    posix_spawnattr_t attributes_{};
};

class SpawnActions
{
public:
    SpawnActions() { posix_spawn_file_actions_init(&actions_); }
    ~SpawnActions() { posix_spawn_file_actions_destroy(&actions_); }
    SpawnActions(const SpawnActions &) = delete;
    SpawnActions &operator=(const SpawnActions &) = delete;
    void openNull(int descriptor, int mode)
    {
        posix_spawn_file_actions_addopen(&actions_, descriptor, "/dev/null", mode, 0);
    }
    void duplicate(int from, int to) { posix_spawn_file_actions_adddup2(&actions_, from, to); }
    void changeFolder(const QString &folder)
    {
        posix_spawn_file_actions_addchdir_np(&actions_, paths::toBytes(folder).constData());
    }
    const posix_spawn_file_actions_t *get() const { return &actions_; }

private:
    posix_spawn_file_actions_t actions_{};
};

/// A pipe from a child to us, closed at both ends unless its reader is taken out.
class Pipe
{
public:
    /// Throws Error (the system's) when there is none to be had.
    Pipe()
    {
        if (systemcalls::openPipe(ends_) == -1)
            throw errors::fromErrno(errno);
    }
    ~Pipe()
    {
        if (ends_[0] >= 0)
            close(ends_[0]);
        close(ends_[1]);
    }
    Pipe(const Pipe &) = delete;
    Pipe &operator=(const Pipe &) = delete;

    int writer() const { return ends_[1]; }
    int takeReader() { return std::exchange(ends_[0], -1); }

private:
    int ends_[2] = {-1, -1};
};

/// 0, or the system's error number.
int spawn(pid_t &child, const QString &executable, const QStringList &arguments, const SpawnActions &actions,
          bool hasOwnSession)
{
    const SpawnAttributes attributes(hasOwnSession);
    const Arguments argumentList(executable, arguments);
    return posix_spawn(&child, argumentList.data()[0], actions.get(), attributes.get(), argumentList.data(),
                       environ);
}

/// Waits for the end of `child` and leaves it to be reaped.
void awaitEnd(pid_t child)
{
    siginfo_t info;
    while (waitid(P_PID, static_cast<id_t>(child), &info, WEXITED | WNOWAIT) == -1 && errno == EINTR) {}
}

std::optional<int> reap(pid_t child)
{
    int status = 0;
    while (waitpid(child, &status, 0) == -1) {
        if (errno != EINTR)
            return std::nullopt;
    }
    return WIFEXITED(status) ? std::optional<int>(WEXITSTATUS(status)) : std::nullopt;
}

/// Adds what there is to read to `all`. False at the end and at an error.
bool readSome(int descriptor, QByteArray &all)
{
    char chunk[4096];
    const ssize_t count = read(descriptor, chunk, sizeof chunk);
    if (count > 0)
        all.append(chunk, count);
    return count > 0 || (count == -1 && errno == EINTR);
}

} // namespace

ChildProcess::ChildProcess(QString executable, QStringList arguments)
    : executable_(std::move(executable))
    , arguments_(std::move(arguments))
{
}

ChildProcess::~ChildProcess()
{
    terminate();
    waitUntilExit();
    for (const int descriptor : {output_, errors_}) {
        if (descriptor >= 0)
            close(descriptor);
    }
}

void ChildProcess::launch()
{
    Pipe output;
    std::optional<Pipe> errorOutput;
    SpawnActions actions;
    actions.openNull(STDIN_FILENO, O_RDONLY);
    actions.duplicate(output.writer(), STDOUT_FILENO);
    if (capturesErrors_)
        actions.duplicate(errorOutput.emplace().writer(), STDERR_FILENO);
    else
        actions.openNull(STDERR_FILENO, O_WRONLY);

    {
        const std::lock_guard lock(mutex_);
        pid_t child = 0;
        const int failure = spawn(child, executable_, arguments_, actions, false);
        if (failure != 0)
            throw errors::fromErrno(failure);
        child_ = child;
    }
    output_ = output.takeReader();
    if (errorOutput)
        errors_ = errorOutput->takeReader();
}

void ChildProcess::waitUntilExit()
{
    pid_t child = 0;
    {
        const std::lock_guard lock(mutex_);
        child = child_;
    }
    if (child == 0)
        return;
    awaitEnd(child); // without the lock, so that `terminate` gets through
    const std::lock_guard lock(mutex_);
    status_ = reap(child);
    child_ = 0;
}

QByteArray ChildProcess::readToEnd()
{
    QByteArray all;
    // Both at once: a program that waits for room in one pipe never comes to the end of the other. A negative
    // number is passed over by `poll`.
    pollfd open[] = {{output_, POLLIN, 0}, {errors_, POLLIN, 0}};
    while (open[0].fd >= 0 || open[1].fd >= 0) {
        if (poll(open, std::size(open), -1) == -1) {
            if (errno == EINTR)
                continue;
            break;
        }
        if (open[0].revents != 0 && !readSome(open[0].fd, all))
            open[0].fd = -1;
        if (open[1].revents != 0 && !readSome(open[1].fd, errorOutput_))
            open[1].fd = -1;
        errorOutput_.truncate(mostErrorOutput);
    }
    return all;
}

bool ChildProcess::isRunning() const
{
    const std::lock_guard lock(mutex_);
    return child_ != 0;
}

void ChildProcess::terminate()
{
    const std::lock_guard lock(mutex_);
    if (child_ != 0)
        kill(child_, SIGTERM);
}

std::optional<int> ChildProcess::exitCode() const
{
    const std::lock_guard lock(mutex_);
    return status_;
}

bool ChildProcess::launchDetached(const QString &executable, const QStringList &arguments,
                                  const QString &workingDirectory)
{
    SpawnActions actions;
    actions.openNull(STDIN_FILENO, O_RDONLY);
    if (!workingDirectory.isEmpty())
        actions.changeFolder(workingDirectory);
    pid_t child = 0;
    if (spawn(child, executable, arguments, actions, true) != 0)
        return false;
    try {
        // Somebody has to collect the end of a child, whenever that is, or it stays in the process table.
        threads::runDetached([child] { reap(child); });
    } catch (const Error &) {
        // It has been started all the same, and its entry stays until we end.
    }
    return true;
}
