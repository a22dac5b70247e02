// Verbs of the App Manager's exports.

#include "apps/catalogue/AppCatalogue.h"
#include "apps/ghosts/GhostScan.h"
#include "apps/screen/AppCsv.h"
#include "Arguments.h"
#include "base/AtomicWrite.h"
#include "base/Error.h"
#include "DriverPlatform.h"
#include "UsageError.h"
#include "Verbs.h"

namespace {

const QString installedOption = QStringLiteral("installed");
const QString ghostsOption = QStringLiteral("ghosts");

void write(const Arguments &arguments, const QString &option, const QByteArray &text)
{
    try {
        files::writeAtomically(Arguments::absolutePath(arguments.value(option)), text);
    } catch (const Error &error) {
        throw UsageError{error.description};
    }
}

void exportLists(const Arguments &arguments)
{
    for (const QString &option : {installedOption, ghostsOption}) {
        if (!arguments.has(option))
            throw UsageError{QStringLiteral("--%1 is needed").arg(option)};
    }
    DriverPlatform driver(arguments);
    const Platform &platform = driver.platform();
    const auto isStopped = [] { return false; };
    const std::vector<RealInstalledApp> apps =
        appcatalogue::build(*platform.locations, driver.sizeProbes(), isStopped);
    const auto knownPaths = [](const QString &) { return QStringList(); };
    const std::vector<GhostApp> ghosts =
        ghostscan::run({apps, *platform.locations}, driver.sizeProbes(), {isStopped, knownPaths});
    write(arguments, installedOption, appcsv::ofInstalled(apps, platform.clock.now()));
    write(arguments, ghostsOption, appcsv::ofGhosts(ghosts));
}

} // namespace

std::vector<Verb> verbs::ofExports()
{
    std::vector<Option> options = DriverPlatform::homeOptions();
    options.insert(options.end(), {{installedOption, true}, {ghostsOption, true}});
    return {
        {QStringLiteral("export"),
         QStringLiteral("HOME --installed FILE --ghosts FILE [--applications DIR | --layout linux]"),
         QStringLiteral(
             "writes the installed applications, and what gone ones have left in a home folder, as two "
             "files of comma-separated values"),
         1, 1, options, exportLists},
    };
}
