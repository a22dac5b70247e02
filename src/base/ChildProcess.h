#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <mutex>
#include <optional>

#include <sys/types.h>

/// One run of another program: launch, wait, read, or terminate. Standard input is the null device, and so is
/// standard error unless it is asked for; standard output is a pipe that this object reads. No shell is
/// involved, so nothing needs quoting.
///
/// `launch`, `waitUntilExit` and `readToEnd` belong to the one thread that runs the operation; `isRunning`
/// and `terminate` may be called from any thread at any moment.
class ChildProcess
{
public:
    /// What is kept of standard error, in bytes from its start.
    static constexpr qsizetype mostErrorOutput = 65536;

    /// `executable` is an absolute path. Nothing runs before `launch`.
    ChildProcess(QString executable, QStringList arguments);

    /// Ends a child that nobody waited for.
    ~ChildProcess();
    ChildProcess(const ChildProcess &) = delete;
    ChildProcess &operator=(const ChildProcess &) = delete;

    /// Collects standard error as well. To be called before `launch`; after it the run must be read first and
    /// waited for then, else a program that complains at length fills the pipe and waits for its reader for
    /// ever.
    void captureErrorOutput() { capturesErrors_ = true; }

    /// Starts the program with the signals that we ignore or block set back to their defaults. Throws Error
    /// (the system's) when it can't be started.
    void launch();

    /// Blocks until the program has ended. Returns at once when it was never launched.
    void waitUntilExit();

    /// What is left to read of standard output, up to its end (and to that of standard error where it is
    /// captured). Empty when there is none. After `waitUntilExit` this gives what the pipe holds, so it suits
    /// programs that print less than a pipe's buffer.
    QByteArray readToEnd();

    /// The start of what `readToEnd` found on standard error. Empty when it is not captured.
    const QByteArray &errorOutput() const { return errorOutput_; }

    bool isRunning() const;

    /// Asks a running program to end; does nothing to one that isn't running.
    void terminate();

    /// The program's own exit code; none while it runs, when it was not launched and when a signal ended it.
    std::optional<int> exitCode() const;

    /// Starts a program that lives on without us, in a session of its own, so that the end of our terminal is
    /// not its end, and in `workingDirectory` where one is given. False when it can't be started. Its output
    /// goes where ours goes.
    static bool launchDetached(const QString &executable, const QStringList &arguments,
                               const QString &workingDirectory = {});

private:
    const QString executable_;
    const QStringList arguments_;
    mutable std::mutex mutex_; // the child's number must not be signalled once it may belong to another
    pid_t child_ = 0;          // 0 before the launch and after the end
    std::optional<int> status_;
    bool capturesErrors_ = false;
    int output_ = -1;
    int errors_ = -1; // the end to read standard error from; -1 when it is not captured
    QByteArray errorOutput_;
};
