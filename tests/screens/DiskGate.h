#pragma once

#include <QString>

#include <condition_variable>
#include <mutex>

/// A disk that can be slow at one place: while the gate is shut there, whoever lists that folder or reads that file waits.
/// Never to be shut where the main thread looks. One a process, and made before any work begins on the disk.
class DiskGate
{
public:
    /// The gate is open.
    DiskGate();
    ~DiskGate();
    DiskGate(const DiskGate &) = delete;
    DiskGate &operator=(const DiskGate &) = delete;

    void shut(const QString &path);
    void open();

    /// True while somebody waits.
    bool isHolding();

private:
    void pass(const QString &path);

    std::mutex mutex_; // guards all of it
    std::condition_variable opened_;
    QString path_; // empty while the gate is open
    int waiting_ = 0;
};
