#pragma once

#include "activity/HistorySamples.h"
#include "activity/HistoryService.h"
#include "base/Files.h"
#include "support/TestPlatform.h"

#include <memory>

#include <gtest/gtest.h>

/// An activity log in a temporary home, which a test starts as often as it likes.
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
        const QString line = QStringLiteral("error General: Failed to load history.json: ");
        ASSERT_EQ(test.systemLog.lines.size(), 1);
        EXPECT_TRUE(test.systemLog.lines[0].startsWith(line));
        EXPECT_GT(test.systemLog.lines[0].size(), line.size());
        EXPECT_EQ(content(), before);
    }

    static void failOn(files::Operation operation, const QString &path, int code)
    {
        files::injectFaults([=](files::Operation asked, const QString &at) {
            return asked == operation && at == path ? code : 0;
        });
    }

    const QString inTemp = QStringLiteral("home/Library/Application Support/Quillmere/history.json");
    TestPlatform test;
    std::unique_ptr<HistoryService> service;
};
