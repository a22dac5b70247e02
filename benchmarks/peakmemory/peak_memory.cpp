// quillmere-peak-memory COMMAND ARGUMENT...: runs a command, its output thrown away, and prints the most memory that it
// had resident at once, in bytes. A process of its own, because the system counts for a child what its parent had
// resident before the child became another program; this one is small. RESIDENT_UNIT is the bytes in which the system
// counts them, as the build knows.

#include <cstdio>
#include <cstdlib>

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

extern char **environ; // NOLINT(readability-redundant-declaration): macOS declares it nowhere

int main(int argc, char *argv[])
{
    if (argc < 2)
        return 2;
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    pid_t child = 0;
    const int failure = posix_spawnp(&child, argv[1], &actions, nullptr, argv + 1, environ);
    posix_spawn_file_actions_destroy(&actions);
    int status = 0;
    rusage usage{};
    if (failure != 0 || wait4(child, &status, 0, &usage) == -1 || !WIFEXITED(status)
        || WEXITSTATUS(status) != 0)
        return EXIT_FAILURE;
    printf("%ld\n", usage.ru_maxrss * RESIDENT_UNIT);
    return EXIT_SUCCESS;
}
