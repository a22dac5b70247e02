// Verbs of folders and trees.

#include "Arguments.h"
#include "base/Files.h"
#include "base/Paths.h"
#include "base/Sums.h"
#include "DriverPlatform.h"
#include "Json.h"
#include "UsageError.h"
#include "Verbs.h"

#include <algorithm>
#include <cstdio>
#include <limits>

namespace {

const QString hiddenOption = QStringLiteral("hidden");
const QString countOption = QStringLiteral("count");

QJsonObject treeObject(const FileEntry &entry)
{
    QJsonValue children = QJsonValue::Null;
    if (entry.children) {
        QJsonArray array;
        for (const FileEntry &child : *entry.children)
            array.append(treeObject(child));
        children = array;
    }
    return {
        {QStringLiteral("name"), json::text(entry.name)},
        {QStringLiteral("path"), json::text(entry.path)},
        {QStringLiteral("size"), entry.size},
        {QStringLiteral("isDirectory"), entry.isDirectory},
        {QStringLiteral("children"), children},
    };
}

int depth(const Arguments &arguments, qsizetype index)
{
    const qint64 value = arguments.integer(index);
    if (value < std::numeric_limits<int>::min() || value > std::numeric_limits<int>::max())
        throw UsageError{QStringLiteral("%1 is beyond any depth").arg(value)};
    return static_cast<int>(value);
}

void scanTree(const Arguments &arguments)
{
    DriverPlatform platform;
    const int start = depth(arguments, 1);
    json::print(treeObject(platform.fileSystem().scanTree(arguments.path(0), start, depth(arguments, 2))));
}

/// The folders directly inside, hidden ones included, by name. Links to folders are none.
std::vector<QString> foldersIn(const QString &path)
{
    std::vector<QString> folders;
    files::DirectoryReader reader(path);
    while (reader.isOpen() && reader.next()) {
        const auto attributes = reader.attributes();
        if (attributes && attributes->isDirectory())
            folders.push_back(paths::join(path, paths::fromBytes(reader.name())));
    }
    std::sort(folders.begin(), folders.end());
    return folders;
}

void probe(const Arguments &arguments)
{
    const std::vector<QString> folders = foldersIn(arguments.path(0));
    const qint64 probes = arguments.integer(1);
    if (probes < 0)
        throw UsageError{QStringLiteral("a number of probes is 0 or more")};
    if (folders.empty() && probes > 0)
        throw UsageError{QStringLiteral("there is no folder in %1 to probe").arg(arguments.path(0))};
    DriverPlatform platform;
    qint64 bytes = 0;
    for (qint64 i = 0; i < probes; ++i)
        bytes = sums::saturated(
            bytes, platform.sizeProbes().probeSize(folders[static_cast<size_t>(i) % folders.size()],
                                                   ProbeContext::generic));
    json::print(QJsonObject{
        {QStringLiteral("folders"), static_cast<qint64>(folders.size())},
        {QStringLiteral("probes"), probes},
        {QStringLiteral("bytes"), bytes},
    });
}

QJsonObject itemObject(const FileItem &item)
{
    return {
        {QStringLiteral("name"), json::text(item.name)},
        {QStringLiteral("path"), json::text(item.path)},
        {QStringLiteral("size"), item.size},
        {QStringLiteral("isDirectory"), item.isDirectory},
        {QStringLiteral("modified"), json::date(item.modified)},
        {QStringLiteral("created"), json::date(item.created)},
        {QStringLiteral("ext"), json::text(item.ext)},
        {QStringLiteral("isHidden"), item.isHidden},
        {QStringLiteral("iconName"), iconName(item)},
        {QStringLiteral("colorHex"), colorHex(item)},
    };
}

void list(const Arguments &arguments)
{
    DriverPlatform platform;
    const auto items = platform.fileSystem().listDirectory(arguments.path(0), arguments.has(hiddenOption));
    if (arguments.has(countOption)) {
        printf("%zu\n", items.size());
        return;
    }
    QJsonArray array;
    for (const FileItem &item : items)
        array.append(itemObject(item));
    json::print(array);
}

} // namespace

std::vector<Verb> verbs::ofFiles()
{
    return {
        {QStringLiteral("scantree"),
         QStringLiteral("PATH DEPTH MAXDEPTH"),
         QStringLiteral("the measured tree of the folder, itself at DEPTH, as JSON"),
         3,
         3,
         {},
         scanTree},
        {QStringLiteral("probe"),
         QStringLiteral("DIR N"),
         QStringLiteral("measures the folders directly inside DIR in turn, N probes in all; the sum as JSON"),
         2,
         2,
         {},
         probe},
        {QStringLiteral("list"),
         QStringLiteral("DIR [--hidden] [--count]"),
         QStringLiteral("the entries of a folder in the file system's order, as JSON; or only their number"),
         1,
         1,
         {{hiddenOption}, {countOption}},
         list},
    };
}
