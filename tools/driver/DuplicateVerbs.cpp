// Verbs of files of equal content.

#include "activity/HistoryService.h"
#include "Arguments.h"
#include "common/SettingsKeys.h"
#include "DriverPlatform.h"
#include "duplicates/DuplicateService.h"
#include "Json.h"
#include "UsageError.h"
#include "Verbs.h"

#include <QCoreApplication>

#include <array>
#include <optional>

namespace {

const QString homeOption = QStringLiteral("home");
const QString minOption = QStringLiteral("min");

QJsonObject groupObject(const DuplicateFileGroup &group)
{
    QJsonArray paths;
    for (const DuplicateFileEntry &file : group.files)
        paths.append(json::text(file.path));
    return {
        {QStringLiteral("hash"), group.hash},
        {QStringLiteral("size"), group.size},
        {QStringLiteral("paths"), paths},
    };
}

/// Runs the scan of the program to its end, with all that it posts on its way.
void scan(DuplicateService &service)
{
    QObject::connect(&service, &DuplicateService::isScanningChanged, &service, [&service] {
        if (!service.isScanning())
            QCoreApplication::quit();
    });
    service.scan();
    QCoreApplication::exec();
}

void duplicates(const Arguments &arguments)
{
    for (const QString &option : {homeOption, minOption}) {
        if (!arguments.has(option))
            throw UsageError{QStringLiteral("--%1 is needed").arg(option)};
    }
    int argumentCount = 1;
    std::array<char *, 2> words = {const_cast<char *>("quillmere-driver"), nullptr};
    const QCoreApplication application(argumentCount, words.data()); // for its event loop
    DriverPlatform platform(arguments, arguments.value(homeOption));
    std::optional<HistoryService> history; // a scan records nothing, so no log is made in the home folder
    DuplicateService service(platform.platform(), platform.fileSystem(), platform.access(),
                             [&platform, &history]() -> HistoryService & {
                                 return history ? *history : history.emplace(platform.platform());
                             });
    service.setMinFileSize(arguments.integer(minOption));
    if (!arguments.operands().isEmpty())
        service.removeScanPath(platform.platform().home);
    for (qsizetype i = 0; i < arguments.operands().size(); ++i)
        service.addScanPath(arguments.path(i));
    scan(service);
    json::ArrayPrinter printer;
    for (const DuplicateFileGroup &group : service.groups())
        printer.add(groupObject(group));
}

} // namespace

std::vector<Verb> verbs::ofDuplicates()
{
    std::vector<Option> options = DriverPlatform::homeOptions();
    options.insert(options.end(), {{homeOption, true}, {minOption, true}});
    return {
        {QStringLiteral("dup"),
         QStringLiteral("--min BYTES --home HOME [--applications DIR | --layout linux] [ROOT...]"),
         QStringLiteral(
             "the groups of equal files below the roots, else the home, as JSON, the most waste first"),
         0, anyNumber, options, duplicates},
    };
}
