#include "BareLoops.h"

#include <array>
#include <cerrno>
#include <cstdlib>
#include <system_error>

#include <dirent.h>
#include <fcntl.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

extern char **environ; // NOLINT(readability-redundant-declaration): macOS declares it nowhere

namespace {

void requireZero(int code, const char *what)
{
    if (code != 0)
        throw std::system_error(code, std::generic_category(), what);
}

} // namespace

namespace bareloops {

std::int64_t probe(const std::string &path)
{
    std::array<int, 2> ends{};
    requireZero(pipe2(ends.data(), O_CLOEXEC) == 0 ? 0 : errno, "pipe");
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    std::string program = "/usr/bin/du";
    std::string option = "-sk";
    std::string argument = path;
    const std::array<char *, 4> arguments = {program.data(), option.data(), argument.data(), nullptr};
    pid_t child = 0;
    const int failure = posix_spawn(&child, program.c_str(), &actions, nullptr, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    close(ends[1]);
    requireZero(failure, "du");
    waitpid(child, nullptr, 0);
    std::array<char, 4096> output{};
    const ssize_t length = read(ends[0], output.data(), output.size() - 1);
    close(ends[0]);
    return length > 0 ? strtoll(output.data(), nullptr, 10) * 1024 : 0;
}

std::int64_t scan(const std::string &path, int depth, int deepest)
{
    if (depth >= deepest)
        return probe(path);
    DIR *directory = opendir(path.c_str());
    if (!directory)
        return 0;
    std::int64_t total = 0;
    while (const dirent *entry =
               readdir(directory)) { // NOLINT(concurrency-mt-unsafe): on a stream of its own
        struct stat status = {};
        if (entry->d_name[0] == '.'
            || fstatat(dirfd(directory), entry->d_name, &status, AT_SYMLINK_NOFOLLOW) != 0)
            continue;
        total +=
            S_ISDIR(status.st_mode) ? scan(path + "/" + entry->d_name, depth + 1, deepest) : status.st_size;
    }
    closedir(directory);
    return total;
}

} // namespace bareloops
