#include "Commands.h"

#include "TemporaryFolder.h"

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <system_error>

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

extern char **environ; // NOLINT(readability-redundant-declaration): macOS declares it nowhere

namespace commands {
namespace {

pid_t start(Command command, const std::string &folder, const std::string &outputFile)
{
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, outputFile.c_str(), O_WRONLY | O_CREAT, 0600);
    posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addchdir_np(&actions, folder.c_str());
    std::vector<char *> arguments;
    arguments.reserve(command.size() + 1);
    for (std::string &word : command)
        arguments.push_back(word.data());
    arguments.push_back(nullptr);
    pid_t child = 0;
    const int failure = posix_spawnp(&child, arguments.front(), &actions, nullptr, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    if (failure != 0)
        throw std::system_error(failure, std::generic_category(), command.front());
    return child;
}

measurement::Cost runInto(const Command &command, const std::string &folder, const std::string &outputFile)
{
    const double begin = measurement::now();
    const pid_t child = start(command, folder, outputFile);
    int status = 0;
    rusage usage{};
    wait4(child, &status, 0, &usage);
    const double end = measurement::now();
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0)
        throw std::runtime_error(command.front() + " failed");
    return {measurement::seconds(usage.ru_utime) + measurement::seconds(usage.ru_stime), end - begin};
}

} // namespace

bool isInstalled(const std::string &name)
{
    const char *path = getenv("PATH"); // NOLINT(concurrency-mt-unsafe): nothing here sets variables
    std::istringstream folders(path ? path : "");
    for (std::string folder; std::getline(folders, folder, ':');) {
        if (access(folder.append("/").append(name).c_str(), X_OK) == 0)
            return true;
    }
    return false;
}

measurement::Cost run(const Command &command)
{
    const TemporaryFolder folder;
    return runInto(command, folder.path(), "/dev/null");
}

std::string output(const Command &command)
{
    const TemporaryFolder folder;
    const std::string file = folder.path() + "/output";
    runInto(command, folder.path(), file);
    std::ostringstream text;
    text << std::ifstream(file).rdbuf();
    return text.str();
}

} // namespace commands
