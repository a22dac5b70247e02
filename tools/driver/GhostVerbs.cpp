// Verbs of what gone applications have left behind.

#include "apps/ghosts/GhostScan.h"
#include "Arguments.h"
#include "AssociatedFileJson.h"
#include "base/Error.h"
#include "base/Files.h"
#include "base/Paths.h"
#include "DriverPlatform.h"
#include "Json.h"
#include "UsageError.h"
#include "Verbs.h"

#include <QSet>

namespace {

const QString knownOption = QStringLiteral("known");
constexpr qint64 largestKnown = 16 << 20; // bytes

/// The identifiers that the system is to know, one a line; none without the option.
QSet<QString> knownIdentifiers(const Arguments &arguments)
{
    if (!arguments.has(knownOption))
        return {};
    QSet<QString> known;
    try {
        const QByteArray lines =
            files::readAll(Arguments::absolutePath(arguments.value(knownOption)), largestKnown);
        for (const QByteArray &line : lines.split('\n'))
            known.insert(paths::fromBytes(line));
    } catch (const Error &error) {
        throw UsageError{error.description};
    }
    known.remove({});
    return known;
}

QJsonObject ghostObject(const GhostApp &ghost)
{
    return {
        {QStringLiteral("id"), json::id(ghost.id)},
        {QStringLiteral("inferredName"), json::text(ghost.inferredName)},
        {QStringLiteral("bundleID"), json::text(ghost.bundleID)},
        {QStringLiteral("files"), json::associatedFiles(ghost.files)},
        {QStringLiteral("selected"), ghost.selected},
        {QStringLiteral("looksInstalled"), ghost.looksInstalled},
    };
}

void ghosts(const Arguments &arguments)
{
    DriverPlatform driver(arguments);
    const QSet<QString> known = knownIdentifiers(arguments);
    const QStringList somewhere{QStringLiteral("/")};
    const ghostscan::Hooks hooks{[] { return false; },
                                 [&known, &somewhere](const QString &identifier) {
                                     return known.contains(identifier) ? somewhere : QStringList();
                                 }};
    json::ArrayPrinter printer;
    for (const GhostApp &ghost :
         ghostscan::run({{}, *driver.platform().locations}, driver.sizeProbes(), hooks))
        printer.add(ghostObject(ghost));
}

} // namespace

std::vector<Verb> verbs::ofGhosts()
{
    std::vector<Option> options = DriverPlatform::homeOptions();
    options.push_back({knownOption, true});
    return {
        {QStringLiteral("ghosts"),
         QStringLiteral("HOME [--known FILE] [--applications DIR | --layout linux]"),
         QStringLiteral(
             "what applications that are gone have left in a home folder, as JSON, the largest first; the "
             "file has the identifiers that the system knows besides, one a line"),
         1, 1, options, ghosts},
    };
}
