// Verbs of what can be cleaned.

#include "Arguments.h"
#include "cleanup/CleaningRun.h"
#include "cleanup/CleanupCatalogue.h"
#include "cleanup/PreviewList.h"
#include "DriverPlatform.h"
#include "Json.h"
#include "platform/SystemTrash.h"
#include "UsageError.h"
#include "Verbs.h"

#include <algorithm>

namespace {

const QString layoutUsage = QStringLiteral("[--applications DIR | --layout linux]");

QJsonObject categoryObject(const CleanupCategory &category)
{
    QJsonArray paths;
    for (const QString &path : category.paths)
        paths.append(json::text(path));
    return {
        {QStringLiteral("id"), category.id},
        {QStringLiteral("name"), category.name},
        {QStringLiteral("description"), category.description},
        {QStringLiteral("icon"), category.icon},
        {QStringLiteral("paths"), paths},
        {QStringLiteral("size"), category.size},
        {QStringLiteral("fileCount"), category.fileCount},
        {QStringLiteral("safe"), category.safe},
        {QStringLiteral("checked"), category.checked},
    };
}

/// The category that is the second operand. Throws UsageError when it isn't among them.
CleanupCategory chosen(const Arguments &arguments, const std::vector<CleanupCategory> &categories)
{
    const QString &id = arguments.operands()[1];
    const auto found = std::find_if(categories.begin(), categories.end(),
                                    [&id](const CleanupCategory &category) { return category.id == id; });
    if (found == categories.end())
        throw UsageError{QStringLiteral("there is no category %1 to clean").arg(id)};
    return *found;
}

void cleanup(const Arguments &arguments)
{
    DriverPlatform driver(arguments);
    const Platform &platform = driver.platform();
    QJsonArray array;
    for (const CleanupCategory &category :
         cleanupcatalogue::build(*platform.locations, platform.programs, driver.sizeProbes()))
        array.append(categoryObject(category));
    json::print(array);
}

void preview(const Arguments &arguments)
{
    const DriverPlatform driver(arguments);
    const Platform &platform = driver.platform();
    const CleanupCategory category = chosen(arguments, cleanupcatalogue::categories(*platform.locations));
    json::ArrayPrinter printer;
    for (const PreviewFile &file : previewlist::load(category, platform.clock.now())) {
        printer.add({
            {QStringLiteral("name"), json::text(file.name)},
            {QStringLiteral("size"), file.size},
            {QStringLiteral("path"), json::text(file.path)},
        });
    }
}

/// The files that are the operands from the third on, picked of the category.
CleanupSelection picks(const Arguments &arguments, const CleanupCategory &category, Date now)
{
    CleanupSelection selection;
    for (qsizetype i = 2; i < arguments.operands().size(); ++i)
        selection.selectedFilePaths[category.id].insert(arguments.path(i));
    if (!selection.selectedFilePaths.isEmpty())
        selection.previewFiles[category.id] = previewlist::load(category, now); // tells their sizes
    return selection;
}

void clean(const Arguments &arguments)
{
    NoSystemLog log;
    DriverPlatform driver(arguments, systemtrash::ofHome(arguments.path(0), log));
    const Platform &platform = driver.platform();
    CleanupCategory category = chosen(
        arguments, cleanupcatalogue::build(*platform.locations, platform.programs, driver.sizeProbes()));
    category.checked = true;
    const CleaningRun run({category}, picks(arguments, category, platform.clock.now()));
    run.run(driver.fileSystem(), platform.recycler);
    const HistoryEntry record = run.record(platform.clock.now());
    json::print(QJsonObject{
        {QStringLiteral("title"), record.title},
        {QStringLiteral("detail"), record.detail.value_or(QString())},
        {QStringLiteral("bytesAffected"), record.bytesAffected},
    });
}

} // namespace

std::vector<Verb> verbs::ofCleanup()
{
    return {
        {QStringLiteral("cleanup"), QStringLiteral("HOME ") + layoutUsage,
         QStringLiteral("what can be cleaned in a home folder, as JSON, the largest first"), 1, 1,
         DriverPlatform::homeOptions(), cleanup},
        {QStringLiteral("cleanup-preview"), QStringLiteral("HOME ID ") + layoutUsage,
         QStringLiteral("the single files of one category, as JSON, the largest first"), 2, 2,
         DriverPlatform::homeOptions(), preview},
        {QStringLiteral("clean"), QStringLiteral("HOME ID [PATH...] ") + layoutUsage,
         QStringLiteral(
             "cleans one category, or these files of it, with the Trash of the home folder; what the "
             "activity log would get, as JSON"),
         2, anyNumber, DriverPlatform::homeOptions(), clean},
    };
}
