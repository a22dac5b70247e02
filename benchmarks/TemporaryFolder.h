#pragma once

#include <string>

/// An empty folder below the system's folder for such, removed with all that is in it at the end.
class TemporaryFolder
{
public:
    /// Throws std::system_error.
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder &) = delete;
    TemporaryFolder &operator=(const TemporaryFolder &) = delete;

    /// Absolute, links resolved.
    const std::string &path() const { return path_; }

    /// Makes a folder inside and gives its path. Throws std::system_error.
    std::string folder(const std::string &name) const;

private:
    std::string path_;
};
