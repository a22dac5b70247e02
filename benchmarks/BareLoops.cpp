#include "BareLoops.h"

#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <system_error>
#include <vector>

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

/// Runs a program and gives the number that its output begins with; 0 for none.
std::int64_t numberOf(const std::vector<std::string> &command)
{
    std::array<int, 2> ends{};
    requireZero(pipe2(ends.data(), O_CLOEXEC) == 0 ? 0 : errno, "pipe");
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    std::vector<std::string> words = command;
    std::vector<char *> arguments;
    arguments.reserve(words.size() + 1);
    for (std::string &word : words)
        arguments.push_back(word.data());
    arguments.push_back(nullptr);
    pid_t child = 0;
    const int failure = posix_spawn(&child, arguments.front(), &actions, nullptr, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    close(ends[1]);
    requireZero(failure, command.front().c_str());
    waitpid(child, nullptr, 0);
    std::array<char, 4096> output{};
    const ssize_t length = read(ends[0], output.data(), output.size() - 1);
    close(ends[0]);
    return length > 0 ? strtoll(output.data(), nullptr, 10) : 0;
}

bool isDots(const dirent *entry)
{
    return strcmp(entry->d_name, ".") == 0 || strcmp(entry->d_name, "..") == 0;
}

} // namespace

namespace bareloops {

std::int64_t probe(const std::string &path)
{
    return numberOf({"/usr/bin/du", "-sk", path}) * 1024;
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

std::int64_t emptyFolders(const std::string &path)
{
    DIR *directory = opendir(path.c_str());
    if (!directory)
        return 0;
    std::int64_t empty = 0;
    bool hasEntries = false;
    std::vector<std::string> inner;
    while (const dirent *entry =
               readdir(directory)) { // NOLINT(concurrency-mt-unsafe): on a stream of its own
        if (isDots(entry))
            continue;
        hasEntries = true;
        if (entry->d_type == DT_DIR)
            inner.push_back(path + "/" + entry->d_name);
    }
    closedir(directory);
    for (const std::string &folder : inner)
        empty += emptyFolders(folder);
    return hasEntries ? empty : 1;
}

std::int64_t fileCount(const std::string &path)
{
    return numberOf(
        {"/bin/sh", "-c", "find '" + path + "' -maxdepth 3 -type f 2>/dev/null | head -10000 | wc -l"});
}

Files firstFiles(const std::string &path, std::int64_t most)
{
    Files files;
    DIR *directory = opendir(path.c_str());
    const dirent *entry = nullptr;
    while (directory && files.count < most
           && (entry = readdir(directory))) { // NOLINT(concurrency-mt-unsafe): on a stream of its own
        struct stat status = {};
        if (entry->d_type == DT_DIR && !isDots(entry)) {
            const Files inner = firstFiles(path + "/" + entry->d_name, most - files.count);
            files = {files.count + inner.count, files.bytes + inner.bytes};
        } else if (entry->d_type == DT_REG
                   && fstatat(dirfd(directory), entry->d_name, &status, AT_SYMLINK_NOFOLLOW) == 0) {
            files = {files.count + 1, files.bytes + status.st_size};
        }
    }
    if (directory)
        closedir(directory);
    return files;
}

} // namespace bareloops
