#include "screens/ActivityUnderTest.h"

#include "screens/ToolHelpers.h"

#include <filesystem>

namespace {
const toolhelpers::Registration<ActivityUnderTest> activityHelper;
}

ActivityUnderTest::ActivityUnderTest(Composition &composition, Surroundings &surroundings)
    : composition_(composition)
    , surroundings_(surroundings)
{
}

void ActivityUnderTest::record(const QVariantMap &entry)
{
    const auto value = [&entry](const char *name) { return entry.value(QLatin1StringView(name)); };
    HistoryEntry record;
    record.id = QUuid::createUuid();
    record.timestamp = surroundings_.platform().clock.now();
    record.kind = history::kindNamed(value("kind").toString()).value();
    record.title = value("title").toString();
    record.paths = value("paths").toStringList();
    record.bytesAffected = value("bytes").toLongLong();
    record.success = !value("isFailed").toBool();
    if (value("detail").isValid())
        record.detail = value("detail").toString();
    composition_.history().record(record);
}

void ActivityUnderTest::setFullAccess(bool isFull) const
{
    const TempHome &temp = surroundings_.temp();
    temp.folder(Surroundings::protectedFolder);
    // A name that is no folder can't be listed, whoever the tests run as.
    if (!isFull)
        std::filesystem::remove(temp.at(Surroundings::protectedFolder).toStdString());
}
