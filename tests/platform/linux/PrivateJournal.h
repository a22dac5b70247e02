#pragma once

#include <functional>
#include <string>

/// A system journal of a test's own, beside the one that may run on this machine: its folders lie in a mount
/// namespace that only one thread of the test and the journal are in.
namespace privatejournal {

/// Runs `test` on a thread with the journal running. Gives why that can't be done here, or an empty text.
std::string run(const std::function<void()> &test);

} // namespace privatejournal
