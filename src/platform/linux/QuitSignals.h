#pragma once

#include <QObject>

#include <functional>

/// Turns SIGTERM and SIGINT, the system's requests to quit, into a call on the main thread, which is to end the process.
/// Where it has not within a second, as when the main thread waits for a disk or a bus, the process ends all the same.
/// One a process.
class QuitSignals final : public QObject
{
public:
    explicit QuitSignals(std::function<void()> quit);

private:
    const std::function<void()> quit_;
};
