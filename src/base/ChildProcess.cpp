#include "base/ChildProcess.h"

#include "base/Error.h"
#include "base/Paths.h"
#include "base/SystemCalls.h"

#include <cerrno>
#include <csignal>
#include <thread>
#include <vector>

#include <fcntl.h>
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
    SpawnAttributes()
    {
        sigset_t all;
        sigset_t none;
        sigfillset(&all);
        sigemptyset(&none);
        posix_spawnattr_init(&attributes_);
        posix_spawnattr_setsigdefault(&attributes_, &all);
        posix_spawnattr_setsigmask(&attributes_, &none);
        posix_spawnattr_setflags(&attributes_, POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSIGMASK);
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

/// 0, or the system's error number.
int spawn(pid_t &child, const QString &executable, const QStringList &arguments, const SpawnActions &actions)
{
    const SpawnAttributes attributes;
    const Arguments argumentList(executable, arguments);
    return posix_spawn(&child, argumentList.data()[0], actions.get(), attributes.get(), argumentList.data(),
                       environ);
}

/// Waits for the end of `child` and leaves it to be reaped.
void awaitEnd(pid_t child)
{
    siginfo_t info;
    while (waitid(P_PID, static_cast<id_t>(child), &info, WEXITED | WNOWAIT) == -1 && errno == EINTR) { }
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
    if (output_ >= 0)
        close(output_);
}

void ChildProcess::launch()
{
    int ends[2];
    if (systemcalls::openPipe(ends) == -1)
        throw errors::fromErrno(errno);
    SpawnActions actions;
    actions.openNull(STDIN_FILENO, O_RDONLY);
    actions.duplicate(ends[1], STDOUT_FILENO);
    actions.openNull(STDERR_FILENO, O_WRONLY);

    int failure = 0;
    {
        const std::lock_guard lock(mutex_);
        pid_t child = 0;
        failure = spawn(child, executable_, arguments_, actions);
        if (failure == 0)
            child_ = child;
    }
    close(ends[1]);
    if (failure != 0) {
        close(ends[0]);
        throw errors::fromErrno(failure);
    }
    output_ = ends[0];
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
    char chunk[4096];
    while (output_ >= 0) {
        const ssize_t count = read(output_, chunk, sizeof chunk);
        if (count > 0)
            all.append(chunk, count);
        else if (count == 0 || errno != EINTR)
            break;
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
    if (spawn(child, executable, arguments, actions) != 0)
        return false;
    // Somebody has to collect the end of a child, whenever that is, or it stays in the process table.
    std::thread([child] { reap(child); }).detach();
    return true;
}
