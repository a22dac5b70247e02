#pragma once

#include <QObject>

#include <functional>

/// Turns SIGTERM and SIGINT, the system's requests to quit, into a call on the main thread. One a process.
class QuitSignals final : public QObject
{
public:
    explicit QuitSignals(std::function<void()> quit);

private:
    const std::function<void()> quit_;
};
