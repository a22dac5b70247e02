#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <mutex>
#include <optional>

#include <sys/types.h>

/// One run of another program: launch, wait, read, or terminate. Standard input and standard error are the null
/// device; standard output is a pipe that this object reads. No shell is involved, so nothing needs quoting.
///
/// `launch`, `waitUntilExit` and `readToEnd` belong to the one thread that runs the operation; `isRunning` and
/// `terminate` may be called from any thread at any moment.
class ChildProcess
{
public:
    /// `executable` is an absolute path. Nothing runs before `launch`.
    ChildProcess(QString executable, QStringList arguments);

    /// Ends a child that nobody waited for.
    ~ChildProcess();
    ChildProcess(const ChildProcess &) = delete;
    ChildProcess &operator=(const ChildProcess &) = delete;

    /// Starts the program with the signals that we ignore or block set back to their defaults. Throws Error
    /// (the system's) when it can't be started.
    void launch();

    /// Blocks until the program has ended. Returns at once when it was never launched.
    void waitUntilExit();

    /// What is left to read of standard output, up to its end. Empty when there is none. After `waitUntilExit`
    /// this gives what the pipe holds, so it suits programs that print less than a pipe's buffer.
    QByteArray readToEnd();

    bool isRunning() const;

    /// Asks a running program to end; does nothing to one that isn't running.
    void terminate();

    /// The program's own exit code; none while it runs, when it was not launched and when a signal ended it.
    std::optional<int> exitCode() const;

    /// Starts a program that lives on without us, in `workingDirectory` where one is given. False when it
    /// can't be started. Its output goes where ours goes.
    static bool launchDetached(const QString &executable, const QStringList &arguments,
                               const QString &workingDirectory = {});

private:
    const QString executable_;
    const QStringList arguments_;
    mutable std::mutex mutex_; // the child's number must not be signalled once it may belong to another
    pid_t child_ = 0;          // 0 before the launch and after the end
    std::optional<int> status_;
    int output_ = -1;
};
