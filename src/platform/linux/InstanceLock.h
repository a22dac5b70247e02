#pragma once

#include <QByteArray>
#include <QSocketNotifier>

#include <functional>
#include <memory>

/// A record lock on a file that one process holds for as long as it lives; the kernel lets go of it when the
/// process ends, however it ends. Another process finds the holder through the lock and signals it (SIGUSR1).
/// One such object a process: record locks and signals belong to the process. Main thread only.
class InstanceLock
{
public:
    enum class Result {
        acquired,
        heldByOther,
        unavailable, ///< there is no such folder, or it takes no locks
    };

    /// `path` is absolute; empty for none, which is never available.
    explicit InstanceLock(QByteArray path);
    ~InstanceLock();
    InstanceLock(const InstanceLock &) = delete;
    InstanceLock &operator=(const InstanceLock &) = delete;

    Result acquire();
    void release();

    /// Signals the process that holds the lock. False when there is none.
    bool signalHolder() const;

    /// Runs in a turn of the main loop after each signal; several signals at a time may count as one.
    std::function<void()> onSignal;

private:
    bool openFile();
    bool listen();

    const QByteArray path_;
    int file_ = -1; // closing any descriptor of the file gives the lock up, so there is this one only
    std::unique_ptr<QSocketNotifier> notifier_;
};
