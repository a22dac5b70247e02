#pragma once

#include <functional>

class WorkQueue;

/// The main thread's event loop, for the few runs on it that have to wait for another thread.
namespace eventloop {

/// True on the thread that runs the program's event loop.
bool isMainThread();

/// Lets the event loop run for `seconds`, or until `endTurn`, so that timers and posted blocks go on meanwhile. Whoever
/// calls it must expect to be entered again from there. Main thread only.
void turn(double seconds);

/// Runs `work` on a thread of the queue and returns once it has ended. The event loop turns meanwhile, with the same to be
/// expected. Main thread only.
void runAside(WorkQueue &queue, const std::function<void()> &work);

/// Ends the turn that is under way, the innermost of several, early; nothing happens while there is none. Any thread.
void endTurn();

} // namespace eventloop
