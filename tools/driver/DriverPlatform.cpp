#include "DriverPlatform.h"

#include "Arguments.h"
#include "base/Files.h"
#include "base/Paths.h"
#include "common/SettingsKeys.h"
#include "platform/LinuxEnvironment.h"
#include "UsageError.h"

namespace {

constexpr qint64 largestUserDirectoriesFile = 1 << 20; // bytes

const QString layoutOption = QStringLiteral("layout");
const QString applicationsOption = QStringLiteral("applications");

/// A folder's path as the program itself writes it, without a slash at its end.
QString folderPath(const QString &path)
{
    QString folder = Arguments::absolutePath(path);
    while (folder.size() > 1 && folder.endsWith(u'/'))
        folder.chop(1);
    return folder;
}

Locations linuxPlaces(const QString &home)
{
    LinuxEnvironment environment; // the defaults below the home, whatever this process's own variables say
    const QString file = paths::join(home, QStringLiteral(".config/user-dirs.dirs"));
    if (const auto content = files::readPrefix(file, largestUserDirectoriesFile))
        environment.userDirectories = parseUserDirectories(*content, home);
    return linuxLocations(home, environment);
}

std::function<Locations()> chosenPlaces(const Arguments &arguments, const QString &home)
{
    const QString layout =
        arguments.has(layoutOption) ? arguments.value(layoutOption) : QStringLiteral("mac");
    const bool hasApplications = arguments.has(applicationsOption);
    if (layout == u"linux" && hasApplications)
        throw UsageError{QStringLiteral("--applications belongs to the layout mac")};
    if (layout == u"linux")
        return [home] { return linuxPlaces(home); };
    if (layout != u"mac")
        throw UsageError{QStringLiteral("the layouts are mac and linux")};
    if (!hasApplications)
        return [home] { return macLocations(home); };
    return [home, folder = folderPath(arguments.value(applicationsOption))] {
        return macLocations(home, folder);
    };
}

} // namespace

DriverPlatform::DriverPlatform()
    : DriverPlatform([] { return macLocations(QStringLiteral("/")); }, QStringLiteral("/"))
{
}

DriverPlatform::DriverPlatform(const Arguments &arguments)
    : DriverPlatform(arguments, arguments.operands().constFirst())
{
}

DriverPlatform::DriverPlatform(const Arguments &arguments, const QString &home)
    : DriverPlatform(chosenPlaces(arguments, folderPath(home)), folderPath(home))
{
}

DriverPlatform::DriverPlatform(const Arguments &arguments, std::unique_ptr<Recycler> recycler)
    : DriverPlatform(chosenPlaces(arguments, folderPath(arguments.operands().constFirst())),
                     folderPath(arguments.operands().constFirst()), std::move(recycler))
{
}

DriverPlatform::DriverPlatform(std::function<Locations()> locations, const QString &home,
                               std::unique_ptr<Recycler> recycler)
    : home_(home)
    , locations_(std::move(locations))
    , recycler_(std::move(recycler))
    , platform_{.home = home_,
                .locations = locations_,
                .defaults = defaults_,
                .clock = clock_,
                .programs = {},
                .keyStyle = KeyStyle::words,
                .mainQueue = mainQueue_,
                .workQueue = workQueue_,
                .notifications = notifications_,
                .workspace = workspace_,
                .recycler = *recycler_,
                .applications = applications_,
                .systemLog = systemLog_,
                .systemInfo = systemInfo_}
    , sizeProbes_(platform_)
    , fileSystem_(platform_, sizeProbes_)
    , access_(platform_, {})
    , disk_(
          platform_, sizeProbes_, [this]() -> FileSystemService & { return fileSystem_; },
          [this]() -> FDAService & { return access_; })
{
    defaults_.registerDefaults(settings::registeredDefaults());
}

std::vector<Option> DriverPlatform::homeOptions()
{
    return {{layoutOption, true}, {applicationsOption, true}};
}
