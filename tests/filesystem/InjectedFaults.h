#pragma once

#include "base/Files.h"

#include <cerrno>
#include <utility>

/// Makes calls of base/Files fail while it lives. Tests may run as a user whom no permission stops, so this
/// is how they meet what can't be read.
class InjectedFaults
{
public:
    using Faults = std::function<int(files::Operation, const QString &path)>;

    explicit InjectedFaults(Faults faults) { files::injectFaults(std::move(faults)); }

    /// One operation on one path fails with EACCES.
    InjectedFaults(files::Operation operation, const QString &path)
        : InjectedFaults([operation, path](files::Operation asked, const QString &at) {
            return asked == operation && at == path ? EACCES : 0;
        })
    {
    }
    ~InjectedFaults() { files::injectFaults({}); }
    InjectedFaults(const InjectedFaults &) = delete;
    InjectedFaults &operator=(const InjectedFaults &) = delete;
};
