#include "activity/HistoryFile.h"
#include "activity/HistoryFileEncoding.h"
#include "activity/HistoryServiceFixture.h"
#include "base/Paths.h"

#include <QSignalSpy>

#include <csignal>
#include <random>
#include <thread>

#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using Kind = HistoryEntry::Kind;

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

TEST_F(HistoryServiceTest, takesAFileInWhichIdsRepeat)
{
    const HistoryEntry entry = samples::entry(u"a"_s);
    put(historyfile::encode({entry, entry}));
    start();
    EXPECT_EQ(titles(), u"a a"_s);
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
