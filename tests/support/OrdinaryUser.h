#pragma once

#include <functional>

/// Runs `checks` in a child process of a user whom permissions bind, since they do not bind the administrator that tests
/// often run as; who is an ordinary user stays who they are. True when none of its expectations failed; what did fail is told
/// as usual. `checks` begins with a home of its own, which no other user can enter. From a test's only thread.
bool holdsForOrdinaryUser(const std::function<void()> &checks);
