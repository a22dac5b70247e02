#pragma once

#include <QByteArray>

#include <functional>

/// Keeps the program to one running process of each user: a second start brings the first one's window to the
/// front and ends. Main thread only.
class SingleInstance
{
public:
    SingleInstance() = default;
    SingleInstance(const SingleInstance &) = delete;
    SingleInstance &operator=(const SingleInstance &) = delete;
    virtual ~SingleInstance() = default;

    /// Makes this process the running one. False when another one is. True also where there is no way to tell:
    /// a second window is better than none. May ask the session's bus and waits for its answer.
    virtual bool acquire() = 0;

    /// Asks the running process for its window, for a process whose `acquire` gave false. `token` is the
    /// activation token that the desktop handed to this process; empty when there is none.
    virtual void activateRunning(const QByteArray &token) = 0;

    /// Lets go, so that a successor can be started. Does nothing when nothing is held.
    virtual void release() = 0;

    /// Runs in a later turn of the main loop when another start asks for the window, with that start's
    /// activation token; empty when it brought none.
    std::function<void(const QByteArray &activationToken)> onActivate;
};
