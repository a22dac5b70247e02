#include "platform/linux/LinuxPlatform.h"

#include "base/Files.h"
#include "base/Paths.h"

#include <pwd.h>
#include <unistd.h>

namespace {

constexpr qint64 largestUserDirectoriesFile = 1 << 20; // bytes; the real one has some hundred

QString variable(const char *name)
{
    return paths::fromBytes(qgetenv(name));
}

/// $HOME, else what the system's user table says.
QString homeFolder()
{
    QString home = variable("HOME");
    if (!home.startsWith(u'/')) {
        const passwd *user = getpwuid(getuid()); // NOLINT(concurrency-mt-unsafe): before any other thread
        home = user ? paths::fromBytes(user->pw_dir) : QStringLiteral("/");
    }
    while (home.size() > 1 && home.endsWith(u'/'))
        home.chop(1);
    return home;
}

/// A folder of the base directory rules: the variable where it holds an absolute path, else its default.
QString baseFolder(const char *name, const QString &home, const char *fallback)
{
    const QString folder = variable(name);
    return folder.startsWith(u'/') ? folder : paths::join(home, QString::fromLatin1(fallback));
}

LinuxEnvironment environment(const QString &home)
{
    LinuxEnvironment result;
    result.configHome = baseFolder("XDG_CONFIG_HOME", home, ".config");
    result.dataHome = variable("XDG_DATA_HOME");
    result.dataDirs = variable("XDG_DATA_DIRS");
    result.cacheHome = variable("XDG_CACHE_HOME");
    result.stateHome = variable("XDG_STATE_HOME");
    result.userId = getuid();
    const QString file = paths::join(result.configHome, QStringLiteral("user-dirs.dirs"));
    if (const auto content = files::readPrefix(file, largestUserDirectoriesFile))
        result.userDirectories = parseUserDirectories(*content, home);
    return result;
}

QString defaultsFile(const QString &home)
{
    return paths::join(baseFolder("XDG_CONFIG_HOME", home, ".config"),
                       QStringLiteral("quillmere/settings.json"));
}

} // namespace

LinuxPlatform::LinuxPlatform(LinuxDesktop desktop)
    : home_(homeFolder())
    , defaults_(defaultsFile(home_))
    , locations_([home = home_] { return linuxLocations(home, environment(home)); })
    , applications_(locations_, desktop.searchPath)
    , workspace_(std::move(desktop), workQueue_)
    , systemLog_(clock_)
    , recycler_(ChildPrograms().pkexec, ChildPrograms().mv, systemLog_)
    , platform_{.home = home_,
                .locations = locations_,
                .defaults = defaults_,
                .clock = clock_,
                .programs = ChildPrograms(),
                .keyStyle = KeyStyle::words,
                .mainQueue = mainQueue_,
                .workQueue = workQueue_,
                .notifications = notifications_,
                .workspace = workspace_,
                .recycler = recycler_,
                .applications = applications_,
                .systemLog = systemLog_,
                .systemInfo = systemInfo_}
{
}

QString LinuxPlatform::runtimeFolder()
{
    return baseFolder("XDG_RUNTIME_DIR", homeFolder(), ".cache");
}
