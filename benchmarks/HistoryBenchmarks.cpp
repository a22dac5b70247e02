#include "activity/HistoryFile.h"
#include "activity/HistoryService.h"
#include "Arguments.h"
#include "Benchmarks.h"
#include "DriverPlatform.h"
#include "Measurement.h"
#include "TemporaryFolder.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include <stdexcept>

namespace {

constexpr double mostOfLibrary = 1.5;
constexpr int pathsOfEntry = 200;

HistoryEntry entry(int number)
{
    HistoryEntry result;
    result.id = QUuid::createUuid();
    result.timestamp = SystemClock().now();
    result.kind = HistoryEntry::Kind::duplicateDelete;
    result.title = QStringLiteral("Removed %1 duplicate files").arg(pathsOfEntry);
    for (int i = 0; i < pathsOfEntry; ++i)
        result.paths << QStringLiteral("/Users/robin/Pictures/Trip %1/Über/IMG_%2.heic").arg(number).arg(i);
    result.bytesAffected = 1 << 20;
    result.success = true;
    return result;
}

/// Lets the main queue run until the service has stored and saved what was recorded last.
void await(const HistoryService &service, const QUuid &id)
{
    while (service.entries().empty() || service.entries().front().id != id)
        QCoreApplication::processEvents();
}

/// One record on a full log against the library's own encoding and writing of the same JSON.
void recordOnFullLog()
{
    int count = 0;
    QCoreApplication application(count, nullptr);
    const TemporaryFolder folder;
    const DriverPlatform driver(Arguments({"history", QByteArray::fromStdString(folder.path())}, {}));
    HistoryService service(driver.platform());
    for (size_t i = 0; i < HistoryService::maxEntries; ++i)
        service.record(entry(static_cast<int>(i)));
    const HistoryEntry last = entry(0);
    service.record(last);
    await(service, last.id);

    QFile file(service.fileURL());
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("the log was not written");
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll());
    if (document.array().size() != static_cast<qsizetype>(HistoryService::maxEntries))
        throw std::runtime_error("the log is not full");

    const auto record = [&service] {
        const HistoryEntry next = entry(1);
        service.record(next);
        await(service, next.id);
    };
    const auto library = [&document, &folder] {
        QFile copy(QString::fromStdString(folder.path()) + QStringLiteral("/copy.json"));
        if (!copy.open(QIODevice::WriteOnly | QIODevice::Truncate))
            throw std::runtime_error("no room for the library's copy");
        copy.write(document.toJson(QJsonDocument::Indented));
    };
    const auto comparison = measurement::compare([&] { return measurement::threadTime(record); },
                                                 [&] { return measurement::threadTime(library); });
    measurement::printRatio("history", comparison, mostOfLibrary, "ms",
                            "the same JSON encoded and written by the library");
}

} // namespace

std::vector<Benchmark> benchmarks::ofHistory()
{
    return {{"history", "one record on a full activity log against the library's encoding and writing",
             recordOnFullLog}};
}
