#pragma once

#include "base/Date.h"

/// What time it is. The one source of "now", so that tests can set it. Safe from any thread.
class Clock
{
public:
    Clock() = default;
    Clock(const Clock &) = delete;
    Clock &operator=(const Clock &) = delete;
    virtual ~Clock() = default;

    virtual Date now() const = 0;
};

/// The system's clock.
class SystemClock final : public Clock
{
public:
    Date now() const override { return std::chrono::system_clock::now(); }
};
