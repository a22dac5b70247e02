#pragma once

#include "base/Date.h"

/// What time it is, and how much of it passes. The one source of both, so that tests can set them. Safe from any thread.
class Clock
{
public:
    Clock() = default;
    Clock(const Clock &) = delete;
    Clock &operator=(const Clock &) = delete;
    virtual ~Clock() = default;

    virtual Date now() const = 0;

    /// Seconds since a moment of the past that stays the same: for durations, which must not change when the user or the
    /// network sets the time.
    virtual double steadySeconds() const = 0;
};

/// The system's clock.
class SystemClock final : public Clock
{
public:
    Date now() const override { return std::chrono::system_clock::now(); }
    double steadySeconds() const override
    {
        return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
    }
};
