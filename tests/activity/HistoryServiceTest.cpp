#include "activity/HistoryService.h"

#include "activity/HistoryFile.h"
#include "activity/HistorySamples.h"
#include "base/Files.h"
#include "base/Paths.h"
#include "support/TestPlatform.h"

#include <QSignalSpy>

#include <cerrno>
#include <csignal>
#include <random>
#include <thread>

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using Kind = HistoryEntry::Kind;

namespace {

class HistoryServiceTest : public ::testing::Test
{
protected:
    void TearDown() override { files::injectFaults({}); }

    /// Starts the service anew, as another start of the program does.
    void start() { service = std::make_unique<HistoryService>(test.platform); }
    void record(const HistoryEntry &entry)
    {
        service->record(entry);
        test.mainQueue.run();
    }
    void record(const QString &title) { record(samples::entry(title)); }
    QString file() const { return test.temp.at(inTemp); }
    QByteArray content() const { return files::readPrefix(file(), qint64(1) << 30).value_or("no file"); }
    void put(const QByteArray &bytes) const { test.temp.file(inTemp, bytes); }

    QString titles() const
    {
        QStringList all;
        for (const HistoryEntry &entry : service->entries())
            all << entry.title;
        return all.join(u' ');
    }

    /// The log stands empty, the file as it was, and the diagnostic log says why.
    void expectRefused(const QByteArray &before)
    {
        start();
        EXPECT_TRUE(service->entries().empty());
        ASSERT_EQ(test.systemLog.lines.size(), 1);
        EXPECT_TRUE(test.systemLog.lines[0].startsWith(u"error General: Failed to load history.json: "_s));
        EXPECT_GT(test.systemLog.lines[0].size(), u"error General: Failed to load history.json: "_s.size());
        EXPECT_EQ(content(), before);
    }

    static void failOn(files::Operation operation, const QString &path, int code)
    {
        files::injectFaults([=](files::Operation asked, const QString &at) {
            return asked == operation && at == path ? code : 0;
        });
    }

    const QString inTemp = u"home/Library/Application Support/Quillmere/history.json"_s;
    TestPlatform test;
    std::unique_ptr<HistoryService> service;
};

} // namespace

TEST_F(HistoryServiceTest, keepsItsFileInTheApplicationSupportFolderWhichItMakes)
{
    start();
    EXPECT_EQ(service->fileURL(), file());
    EXPECT_TRUE(files::isDirectory(paths::parent(file())));
    EXPECT_FALSE(files::exists(file()));
}

TEST_F(HistoryServiceTest, startsEmptyAndSilentWithoutAFile)
{
    start();
    EXPECT_TRUE(service->entries().empty());
    EXPECT_TRUE(test.systemLog.lines.isEmpty());
}

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

TEST_F(HistoryServiceTest, recordsInALaterTurnOfTheMainLoop)
{
    start();
    const QSignalSpy changes(service.get(), &HistoryService::entriesChanged);
    service->record(samples::entry(u"a"_s));
    EXPECT_TRUE(service->entries().empty());
    EXPECT_FALSE(files::exists(file()));
    test.mainQueue.run();
    EXPECT_EQ(titles(), u"a"_s);
    EXPECT_EQ(changes.count(), 1);
    EXPECT_EQ(historyfile::decode(content()), service->entries());
}

TEST_F(HistoryServiceTest, isSavedBeforeItTellsOfAChange)
{
    start();
    QByteArray atSignal;
    QObject::connect(service.get(), &HistoryService::entriesChanged, [&] { atSignal = content(); });
    record(u"a"_s);
    EXPECT_EQ(atSignal, historyfile::encode(service->entries()));
}

TEST_F(HistoryServiceTest, keepsTheNewestFirstAcrossStarts)
{
    start();
    for (const QString &title : {u"a"_s, u"b"_s, u"c"_s})
        record(title);
    start();
    EXPECT_EQ(titles(), u"c b a"_s);
    record(u"d"_s);
    start();
    EXPECT_EQ(titles(), u"d c b a"_s);
}

TEST_F(HistoryServiceTest, with500EntriesAFurtherOneDropsTheOldest)
{
    std::vector<HistoryEntry> full;
    for (int i = 500; i > 0; --i)
        full.push_back(samples::entry(QString::number(i)));
    put(historyfile::encode(full));
    start();
    ASSERT_EQ(service->entries().size(), 500U);
    record(u"new"_s);
    ASSERT_EQ(service->entries().size(), 500U);
    EXPECT_EQ(service->entries().front().title, u"new"_s);
    EXPECT_EQ(service->entries()[1].title, u"500"_s);
    EXPECT_EQ(service->entries().back().title, u"2"_s);
    EXPECT_EQ(historyfile::decode(content()), service->entries());
}

TEST_F(HistoryServiceTest, keepsTheFirst500AfterTheFirstRecordOnALongerFile)
{
    std::vector<HistoryEntry> longer;
    for (int i = 620; i > 0; --i)
        longer.push_back(samples::entry(QString::number(i)));
    put(historyfile::encode(longer));
    start();
    EXPECT_EQ(service->entries().size(), 620U);
    record(u"new"_s);
    ASSERT_EQ(service->entries().size(), 500U);
    EXPECT_EQ(service->entries().back().title, u"122"_s);
}

TEST_F(HistoryServiceTest, storesMorePathsThanItsCallersGive)
{
    start();
    record(samples::entry(Kind::organize, u"a"_s, 201));
    start();
    EXPECT_EQ(service->entries().at(0).paths.size(), 201);
}

TEST_F(HistoryServiceTest, anEntryWithNoDetailHasNoDetailKeyAndReadsBackWithout)
{
    start();
    record(u"a"_s);
    EXPECT_FALSE(content().contains("detail"));
    start();
    EXPECT_EQ(service->entries().at(0).detail, std::nullopt);
}

TEST_F(HistoryServiceTest, anEntryWithNoPathsIsWrittenWithAnEmptyArrayAndReadsBackUnchanged)
{
    start();
    const HistoryEntry entry = samples::entry(u"a"_s);
    record(entry);
    EXPECT_TRUE(content().contains("\"paths\": []"));
    start();
    EXPECT_EQ(service->entries(), std::vector{entry});
}

TEST_F(HistoryServiceTest, afterClearTheFileExistsAndASecondStartIsEmptyWithoutAnErrorLine)
{
    start();
    record(u"a"_s);
    service->clear();
    EXPECT_EQ(titles(), u"a"_s);
    test.mainQueue.run();
    EXPECT_TRUE(service->entries().empty());
    EXPECT_EQ(content(), "[]\n");
    start();
    EXPECT_TRUE(service->entries().empty());
    EXPECT_TRUE(test.systemLog.lines.isEmpty());
}

TEST_F(HistoryServiceTest, makesTheFileByAClearOfAnEmptyLog)
{
    start();
    service->clear();
    test.mainQueue.run();
    EXPECT_EQ(content(), "[]\n");
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

TEST_F(HistoryServiceTest, aFileWithTheKindsThatNothingWritesLoads)
{
    put(historyfile::encode({samples::entry(Kind::ghostClean, u"a"_s), samples::entry(Kind::undo, u"b"_s)}));
    start();
    EXPECT_EQ(titles(), u"a b"_s);
    EXPECT_TRUE(test.systemLog.lines.isEmpty());
}

TEST_F(HistoryServiceTest, aTimestampWithFractionsComesBackWithWholeSeconds)
{
    start();
    HistoryEntry entry = samples::entry(u"a"_s);
    entry.timestamp += std::chrono::milliseconds(750);
    record(entry);
    EXPECT_EQ(service->entries().at(0).timestamp, entry.timestamp);
    start();
    EXPECT_EQ(service->entries().at(0).timestamp, samples::morning);
}

TEST_F(HistoryServiceTest, keepsRecordsOfDifferentThreadsInTheOrderInWhichTheyWereQueued)
{
    start();
    std::thread([this] { service->record(samples::entry(u"first"_s)); }).join();
    std::thread([this] { service->record(samples::entry(u"second"_s)); }).join();
    test.mainQueue.run();
    EXPECT_EQ(titles(), u"second first"_s);
}

TEST_F(HistoryServiceTest, keepsTheRecordsOfManyThreadsAtOnce)
{
    start();
    std::vector<std::thread> threads;
    threads.reserve(8);
    for (int i = 0; i < 8; ++i) {
        threads.emplace_back([this] {
            for (int j = 0; j < 5; ++j)
                service->record(samples::entry(u"x"_s));
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    test.mainQueue.run();
    EXPECT_EQ(service->entries().size(), 40U);
    EXPECT_EQ(historyfile::decode(content()), service->entries());
}

TEST_F(HistoryServiceTest, loadsInALaterTurnWhenItsFirstUseIsOffTheMainThread)
{
    put(historyfile::encode({samples::entry(u"a"_s)}));
    std::thread([this] {
        start();
        service->record(samples::entry(u"b"_s));
    }).join();
    EXPECT_TRUE(service->entries().empty());
    const QSignalSpy changes(service.get(), &HistoryService::entriesChanged);
    test.mainQueue.run();
    EXPECT_EQ(titles(), u"b a"_s);
    EXPECT_EQ(changes.count(), 2);
}

TEST_F(HistoryServiceTest, forgetsWhatItsEndOvertakes)
{
    start();
    service->record(samples::entry(u"a"_s));
    service.reset();
    EXPECT_EQ(test.mainQueue.run(), 1);
    EXPECT_FALSE(files::exists(file()));
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

TEST_F(HistoryServiceTest, takesAFileInWhichIdsRepeat)
{
    const HistoryEntry entry = samples::entry(u"a"_s);
    put(historyfile::encode({entry, entry}));
    start();
    EXPECT_EQ(titles(), u"a a"_s);
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

TEST_F(HistoryServiceTest, aLogThatWouldBeTooLargeToReadIsShortenedInItsFileAlone)
{
    std::vector<HistoryEntry> largest = {samples::entry(u"b"_s), samples::entry(u"a"_s)};
    for (HistoryEntry &entry : largest)
        entry.detail = u""_s;
    const qint64 room = historyfile::mostBytes - historyfile::encode(largest).size();
    largest[0].detail = QString(room / 2, u'x');
    largest[1].detail = QString(room - room / 2, u'x');
    put(historyfile::encode(largest));
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

namespace {

/// The child's part: a hundred records, each step of their saving told by a byte in the pipe. Never returns.
[[noreturn]] void recordUntilKilled(TestPlatform &test, int pipeEnd)
{
    files::injectFaults([pipeEnd](files::Operation operation, const QString &) {
        if (operation != files::Operation::attributes && write(pipeEnd, "x", 1) != 1)
            _exit(1);
        return 0;
    });
    HistoryService service(test.platform);
    const size_t before = service.entries().size();
    for (size_t i = 1; i <= 100; ++i) {
        service.record(samples::entry(Kind::organize, QString::number(before + i), 60));
        test.mainQueue.run();
    }
    close(pipeEnd);
    for (;;)
        pause();
}

/// Waits for that many bytes from the pipe, or for its end.
void await(int pipeEnd, int count)
{
    char byte = 0;
    while (count > 0 && read(pipeEnd, &byte, 1) == 1)
        --count;
}

} // namespace

TEST_F(HistoryServiceTest, isWholeOnDiskWheneverTheProcessIsKilledWhileItWrites)
{
    std::mt19937 random(20260301);
    size_t last = 0;
    int roundsThatSaved = 0;
    for (int round = 0; round < 20; ++round) {
        int ends[2] = {-1, -1};
        ASSERT_EQ(pipe(ends), 0);
        const pid_t child = fork();
        ASSERT_NE(child, -1);
        if (child == 0)
            recordUntilKilled(test, ends[1]);
        close(ends[1]);
        await(ends[0], std::uniform_int_distribution(10, 500)(random));
        kill(child, SIGKILL);
        int status = 0;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        close(ends[0]);
        ASSERT_TRUE(WIFSIGNALED(status)) << status;

        start();
        ASSERT_TRUE(test.systemLog.lines.isEmpty()) << test.systemLog.lines[0].toStdString();
        const auto &entries = service->entries();
        ASSERT_GE(entries.size(), last);
        for (size_t i = 0; i < entries.size(); ++i)
            ASSERT_EQ(entries[i].title, QString::number(entries.size() - i));
        roundsThatSaved += entries.size() > last ? 1 : 0;
        last = entries.size() < 300 ? entries.size() : 0;
        if (last == 0)
            put("[]"); // before the log is full
    }
    EXPECT_GT(roundsThatSaved, 15);
}
