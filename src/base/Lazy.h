#pragma once

#include <functional>
#include <mutex>
#include <optional>

/// A value that is made at its first use and kept. Used where making it reads the disk and the program must
/// first show its window. Safe from any thread.
template<typename Value>
class Lazy
{
public:
    explicit Lazy(std::function<Value()> make)
        : make_(std::move(make))
    {
    }
    Lazy(const Lazy &) = delete;
    Lazy &operator=(const Lazy &) = delete;

    const Value &operator*() const
    {
        std::call_once(once_, [this] { value_.emplace(make_()); });
        return *value_;
    }
    const Value *operator->() const { return &**this; }

private:
    std::function<Value()> make_;
    mutable std::once_flag once_;
    mutable std::optional<Value> value_;
};
