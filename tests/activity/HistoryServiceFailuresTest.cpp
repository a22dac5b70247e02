#include "activity/HistoryFile.h"
#include "activity/HistoryFileEncoding.h"
#include "activity/HistoryServiceFixture.h"
#include "base/Paths.h"
#include "support/OrdinaryUser.h"

#include <cerrno>

using namespace Qt::StringLiterals;
using Kind = HistoryEntry::Kind;

TEST_F(HistoryServiceTest, startsEmptyAndSilentWithAFileThatCannotBeRead)
{
    put(historyfile::encode({samples::entry(u"a"_s)}));
    failOn(files::Operation::open, file(), EACCES);
    start();
    EXPECT_TRUE(service->entries().empty());
    EXPECT_TRUE(test.systemLog.lines.isEmpty());
}

TEST_F(HistoryServiceTest, startsEmptyAndSilentWithAFolderInThePlaceOfTheFile)
{
    test.temp.folder(inTemp);
    start();
    EXPECT_TRUE(test.systemLog.lines.isEmpty());
    record(u"a"_s);
    EXPECT_EQ(test.systemLog.lines, QStringList{u"error General: Failed to save history: Is a directory"_s});
}

TEST_F(HistoryServiceTest, aFileWithAnUnknownKindIsAnEmptyLogAndAnErrorLine)
{
    const QByteArray bytes =
        historyfile::encode({samples::entry(u"a"_s), samples::entry(u"b"_s)}).replace("cleanup", "explode");
    put(bytes);
    expectRefused(bytes);
    EXPECT_EQ(test.systemLog.lines[0],
              u"error General: Failed to load history.json: Entry 1: \"kind\" is unknown."_s);
}

TEST_F(HistoryServiceTest, refusesAnEmptyFile)
{
    put({});
    expectRefused({});
}

TEST_F(HistoryServiceTest, refusesATruncatedFileAndReplacesItAtTheNextRecord)
{
    QByteArray bytes = historyfile::encode({samples::entry(Kind::organize, u"a"_s, 100)});
    bytes.chop(bytes.size() / 3);
    put(bytes);
    expectRefused(bytes);
    record(u"b"_s);
    start();
    EXPECT_EQ(titles(), u"b"_s);
    EXPECT_EQ(test.systemLog.lines.size(), 1);
}

TEST_F(HistoryServiceTest, refusesAFileThatIsNotUtf8)
{
    const QByteArray bytes = historyfile::encode({samples::entry(u"abc"_s)}).replace("abc", "\xE9\xE8");
    put(bytes);
    expectRefused(bytes);
}

TEST_F(HistoryServiceTest, refusesAFileWithANestedObjectWhereATextBelongs)
{
    const QByteArray bytes =
        historyfile::encode({samples::entry(u"abc"_s)}).replace("\"abc\"", "{\"a\": {}}");
    put(bytes);
    expectRefused(bytes);
}

TEST_F(HistoryServiceTest, refusesAFileOfDatesWithFractionsOrOffsets)
{
    const QByteArray good = historyfile::encode({samples::entry(u"a"_s)});
    for (const char *seconds : {"00.123Z", "00+01:00"}) {
        const QByteArray bytes = QByteArray(good).replace("00Z", seconds);
        put(bytes);
        test.systemLog.lines.clear();
        expectRefused(bytes);
    }
}

TEST_F(HistoryServiceTest, refusesAFileOf200MegabytesWithoutReadingIt)
{
    constexpr qint64 size = 200'000'000;
    test.temp.sparseFile(inTemp, size);
    start();
    EXPECT_TRUE(service->entries().empty());
    EXPECT_EQ(test.systemLog.lines,
              QStringList{u"error General: Failed to load history.json: File too large"_s});
    EXPECT_EQ(files::attributes(file())->size, size);
    record(u"a"_s);
    start();
    EXPECT_EQ(titles(), u"a"_s);
}

namespace {

/// Two entries that together fill a file to its last byte.
std::vector<HistoryEntry> entriesWithoutRoomForMore()
{
    std::vector<HistoryEntry> largest = {samples::entry(u"b"_s), samples::entry(u"a"_s)};
    for (HistoryEntry &entry : largest)
        entry.detail = u""_s;
    const qint64 room = historyfile::mostBytes - historyfile::encode(largest).size();
    largest[0].detail = QString(room / 2, u'x');
    largest[1].detail = QString(room - room / 2, u'x');
    return largest;
}

} // namespace

TEST_F(HistoryServiceTest, aLogThatWouldBeTooLargeToReadIsShortenedInItsFileAlone)
{
    put(historyfile::encode(entriesWithoutRoomForMore()));
    ASSERT_EQ(files::attributes(file())->size, historyfile::mostBytes);
    start();
    EXPECT_EQ(titles(), u"b a"_s);
    EXPECT_TRUE(test.systemLog.lines.isEmpty());

    record(u"c"_s);
    EXPECT_EQ(titles(), u"c b a"_s);
    EXPECT_EQ(test.systemLog.lines,
              QStringList{u"error General: history.json has no room for the oldest 1 of 3 entries"_s});
    test.systemLog.lines.clear();
    start();
    EXPECT_EQ(titles(), u"c b"_s);
    EXPECT_TRUE(test.systemLog.lines.isEmpty());
}

TEST_F(HistoryServiceTest, saysOnceThatItsFileHasNoRoomUntilThereWasRoomAgain)
{
    const auto lineFor = [](int entries) {
        return u"error General: history.json has no room for the oldest 1 of %1 entries"_s.arg(entries);
    };
    const std::vector<HistoryEntry> largest = entriesWithoutRoomForMore();
    put(historyfile::encode(largest));
    start();
    record(u"c"_s);
    record(u"d"_s);
    EXPECT_EQ(test.systemLog.lines, QStringList{lineFor(3)});

    service->clear();
    record(largest[1]);
    record(largest[0]);
    EXPECT_EQ(test.systemLog.lines.size(), 1);
    record(u"c"_s);
    EXPECT_EQ(test.systemLog.lines, QStringList({lineFor(3), lineFor(3)}));
}

TEST_F(HistoryServiceTest, replacesAFileThatCouldNotBeReadWithALineAboutIt)
{
    put(historyfile::encode({samples::entry(u"old"_s)}));
    failOn(files::Operation::open, file(), EACCES);
    start();
    record(u"a"_s);
    EXPECT_EQ(test.systemLog.lines,
              QStringList{u"error General: Failed to save history: Permission denied"_s});
    files::injectFaults({});
    record(u"b"_s);
    record(u"c"_s);
    EXPECT_EQ(
        test.systemLog.lines.sliced(1),
        QStringList{u"error General: Replaced a history.json that could not be read: Permission denied"_s});
    start();
    EXPECT_EQ(titles(), u"c b a"_s);
}

TEST_F(HistoryServiceTest, saysAtEachSaveThatItsFolderIsReadOnly)
{
    start();
    failOn(files::Operation::open, file(), EROFS);
    record(u"a"_s);
    record(u"b"_s);
    EXPECT_EQ(titles(), u"b a"_s);
    EXPECT_EQ(test.systemLog.lines,
              QStringList(2, u"error General: Failed to save history: Read-only file system"_s));
    files::injectFaults({});
    record(u"c"_s);
    start();
    EXPECT_EQ(titles(), u"c b a"_s);
}

TEST_F(HistoryServiceTest, keepsTheOldFileOnAFullDisk)
{
    start();
    record(u"a"_s);
    const QByteArray before = content();
    failOn(files::Operation::write, file(), ENOSPC);
    record(u"b"_s);
    EXPECT_EQ(test.systemLog.lines,
              QStringList{u"error General: Failed to save history: No space left on device"_s});
    EXPECT_EQ(content(), before);
    EXPECT_EQ(files::list(paths::parent(file()))->size(), 1U);
    EXPECT_EQ(titles(), u"b a"_s);
}

TEST_F(HistoryServiceTest, saysThatItCannotSaveWhereItsFolderCannotBeMade)
{
    test.temp.file(u"home/Library/Application Support"_s, "a file in the way");
    start();
    EXPECT_TRUE(test.systemLog.lines.isEmpty());
    record(u"a"_s);
    EXPECT_EQ(test.systemLog.lines, QStringList{u"error General: Failed to save history: Not a directory"_s});
    EXPECT_EQ(titles(), u"a"_s);
}

TEST_F(HistoryServiceTest, aFileThatItsOwnUserMayNotReadIsAnEmptyLogOnceOnly)
{
    const auto checks = [this] {
        TestPlatform own;
        const auto started = [&own] { return std::make_unique<HistoryService>(own.platform); };
        own.temp.file(inTemp, historyfile::encode({samples::entry(u"old"_s)}));
        own.temp.setMode(inTemp, 0);
        auto history = started();
        EXPECT_TRUE(history->entries().empty());
        EXPECT_TRUE(own.systemLog.lines.isEmpty());
        history->record(samples::entry(u"new"_s));
        own.mainQueue.run();
        history = started();
        ASSERT_EQ(history->entries().size(), 1U);
        EXPECT_EQ(history->entries()[0].title, u"new"_s);
        EXPECT_EQ(own.systemLog.lines,
                  QStringList{u"error General: Replaced a history.json that could not be "
                              "read: Permission denied"_s});
    };
    EXPECT_TRUE(holdsForOrdinaryUser(checks));
}
