#include "WindowProcess.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <system_error>

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

extern char **environ; // NOLINT(readability-redundant-declaration): macOS declares it nowhere

namespace {

constexpr int longestWait = 120000; // milliseconds

/// Our own variables with those of `changes` in their place.
std::vector<std::string> merged(const WindowProcess::Environment &changes)
{
    std::vector<std::string> variables;
    for (char **entry = environ; *entry; ++entry) {
        const std::string variable = *entry;
        if (!changes.contains(variable.substr(0, variable.find('='))))
            variables.push_back(variable);
    }
    for (const auto &[name, value] : changes) {
        if (!value.empty())
            variables.push_back(std::string(name).append("=").append(value));
    }
    return variables;
}

std::vector<char *> pointers(std::vector<std::string> &texts)
{
    std::vector<char *> result;
    result.reserve(texts.size() + 1);
    for (std::string &text : texts)
        result.push_back(text.data());
    result.push_back(nullptr);
    return result;
}

/// The sum of the lines "Name:  123 kB" with one of the names, in MiB.
double mebibytes(const std::string &file, const std::vector<std::string> &names)
{
    std::ifstream stream(file);
    double sum = 0;
    for (std::string line; std::getline(stream, line);) {
        std::istringstream words(line);
        std::string name;
        double kibibytes = 0;
        words >> name >> kibibytes;
        for (const std::string &wanted : names)
            sum += name == wanted + ":" ? kibibytes / 1024 : 0;
    }
    return sum;
}

} // namespace

WindowProcess::Environment WindowProcess::environment(const std::string &home, const std::string &runtime)
{
    return {
        {"HOME", home},
        {"XDG_RUNTIME_DIR", runtime},
        {"XDG_CONFIG_HOME", ""},
        {"XDG_CACHE_HOME", ""},
        {"XDG_DATA_HOME", ""},
        {"XDG_STATE_HOME", ""},
        {"DISPLAY", ""},
        {"WAYLAND_DISPLAY", ""},
        {"DBUS_SESSION_BUS_ADDRESS", "disabled:"},
        {"LC_ALL", "C.UTF-8"},
        {"QT_QPA_PLATFORM", "offscreen"},
        {"QT_QUICK_BACKEND", "software"},
        {"QT_PLUGIN_PATH", FIRST_FRAME_PLUGINS},
    };
}

WindowProcess::WindowProcess(const std::vector<std::string> &command, const Environment &environment)
{
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0)
        throw std::system_error(errno, std::generic_category(), "pipe");
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    std::vector<std::string> arguments = command;
    std::vector<std::string> variables = merged(environment);
    start_ = measurement::now();
    const int failure = posix_spawn(&child_, command.front().c_str(), &actions, nullptr,
                                    pointers(arguments).data(), pointers(variables).data());
    posix_spawn_file_actions_destroy(&actions);
    close(ends[1]);
    output_ = ends[0];
    if (failure != 0) {
        close(output_);
        throw std::system_error(failure, std::generic_category(), command.front());
    }
}

WindowProcess::~WindowProcess()
{
    if (child_ != 0) {
        kill(child_, SIGKILL);
        waitpid(child_, nullptr, 0);
    }
    close(output_);
}

std::string WindowProcess::readLine()
{
    size_t end = 0;
    while ((end = buffer_.find('\n')) == std::string::npos) {
        std::array<char, 4096> chunk{};
        pollfd waiting = {output_, POLLIN, 0};
        if (poll(&waiting, 1, longestWait) == 0)
            throw std::runtime_error("the window is not ready yet, and was waited for long enough");
        const ssize_t count = read(output_, chunk.data(), chunk.size());
        if (count <= 0)
            throw std::runtime_error("the window ended before it was ready");
        buffer_.append(chunk.data(), static_cast<size_t>(count));
    }
    std::string line = buffer_.substr(0, end);
    buffer_.erase(0, end + 1);
    return line;
}

std::vector<std::string> WindowProcess::awaitReady()
{
    std::vector<std::string> lines;
    for (std::string line = readLine(); line != "ready"; line = readLine())
        lines.push_back(line);
    return lines;
}

WindowProcess::Memory WindowProcess::memory() const
{
    const std::string folder = "/proc/" + std::to_string(child_);
    return {mebibytes(folder + "/status", {"VmRSS"}),
            mebibytes(folder + "/smaps_rollup", {"Private_Clean", "Private_Dirty"})};
}

measurement::Cost WindowProcess::finish()
{
    int status = 0;
    rusage usage{};
    wait4(child_, &status, 0, &usage);
    const double end = measurement::now();
    child_ = 0;
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0)
        throw std::runtime_error("the window failed");
    return {measurement::seconds(usage.ru_utime) + measurement::seconds(usage.ru_stime), end - start_};
}
