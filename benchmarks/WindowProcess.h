#pragma once

#include "Measurement.h"
#include "TemporaryFolder.h"

#include <map>
#include <string>
#include <vector>

#include <sys/types.h>

/// A program with a window, run without a display, drawn in software, with a home folder of its own and no session
/// bus. Its standard output is read here.
class WindowProcess
{
public:
    struct Memory
    {
        double resident = 0; ///< MiB
        double own = 0;      ///< MiB shared with no other process
    };

    /// Where the program finds itself: the variables that differ from our own; an empty text takes one away.
    using Environment = std::map<std::string, std::string>;

    /// An environment around that home folder; `runtime` is for the session's sockets.
    static Environment environment(const std::string &home, const std::string &runtime);

    /// Starts the program. Throws std::system_error.
    WindowProcess(const std::vector<std::string> &command, const Environment &environment);

    /// Ends the process where it still runs.
    ~WindowProcess();
    WindowProcess(const WindowProcess &) = delete;
    WindowProcess &operator=(const WindowProcess &) = delete;

    /// Reads the output up to the line "ready". Throws std::runtime_error when it ends before or takes
    /// minutes.
    std::vector<std::string> awaitReady();

    /// What the process takes up now.
    Memory memory() const;

    /// Waits for the end of a process that ends by itself. Throws std::runtime_error when it failed.
    measurement::Cost finish();

private:
    std::string readLine();

    pid_t child_ = 0; // 0 after its end
    int output_ = -1;
    double start_ = 0;
    std::string buffer_;
};
