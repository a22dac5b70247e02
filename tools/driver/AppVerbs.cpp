// Verbs of installed applications.

#include "apps/catalogue/AppCatalogue.h"
#include "Arguments.h"
#include "AssociatedFileJson.h"
#include "DriverPlatform.h"
#include "Json.h"
#include "Verbs.h"

namespace {

QJsonObject appObject(const RealInstalledApp &app)
{
    return {
        {QStringLiteral("id"), json::id(app.id)},
        {QStringLiteral("name"), json::text(app.name)},
        {QStringLiteral("version"), json::text(app.version)},
        {QStringLiteral("size"), app.size},
        {QStringLiteral("bundleID"), json::text(app.bundleID)},
        {QStringLiteral("path"), json::text(app.path)},
        {QStringLiteral("lastUsed"), json::date(app.lastUsed.value_or(dates::distantPast))},
        {QStringLiteral("cacheSize"), app.cacheSize},
        {QStringLiteral("preferencesSize"), app.preferencesSize},
        {QStringLiteral("supportSize"), app.supportSize},
        {QStringLiteral("containerSize"), app.containerSize},
        {QStringLiteral("associatedFiles"), json::associatedFiles(app.associatedFiles)},
        {QStringLiteral("selected"), app.selected},
    };
}

void apps(const Arguments &arguments)
{
    DriverPlatform driver(arguments);
    json::ArrayPrinter printer;
    for (const RealInstalledApp &app :
         appcatalogue::build(*driver.platform().locations, driver.sizeProbes(), [] { return false; }))
        printer.add(appObject(app));
}

} // namespace

std::vector<Verb> verbs::ofApps()
{
    return {
        {QStringLiteral("apps"), QStringLiteral("HOME [--applications DIR | --layout linux]"),
         QStringLiteral("the installed applications with the files in a home folder that belong to them, as "
                        "JSON, the largest first"),
         1, 1, DriverPlatform::homeOptions(), apps},
    };
}
