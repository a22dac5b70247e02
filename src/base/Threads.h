#pragma once

#include <functional>

namespace threads {

/// Runs `block` on a thread of its own, which nobody waits for. Throws Error (the system's) when none can be started.
void runDetached(std::function<void()> block);

} // namespace threads
