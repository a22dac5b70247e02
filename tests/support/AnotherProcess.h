#pragma once

#include <functional>

/// Runs `block` in a process of its own and waits for it. Gives its exit code, which is 1 where the block has failed the
/// test, and -1 where a signal ended it.
int inAnotherProcess(const std::function<void()> &block);
