#include "activity/HistoryFile.h"

#include "activity/HistoryFileEncoding.h"
#include "activity/HistorySamples.h"
#include "base/Paths.h"

#include <limits>
#include <random>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// A text of any bytes that a path or a description of a fault can have, whole characters and broken ones.
QString anyText(std::mt19937 &random, int mostUnits)
{
    const std::vector<std::pair<int, int>> ranges = {{0x20, 0x7E},     {0, 0x1F},        {0x80, 0x7FF},
                                                     {0xD800, 0xDFFF}, {0xFFF0, 0xFFFF}, {0x2028, 0x2029}};
    QString text;
    for (int left = std::uniform_int_distribution(0, mostUnits)(random); left > 0; --left) {
        const auto [first, last] =
            ranges[std::uniform_int_distribution<size_t>(0, ranges.size() - 1)(random)];
        text += QChar(std::uniform_int_distribution(first, last)(random));
    }
    return text;
}

HistoryEntry anyEntry(std::mt19937 &random)
{
    const auto upTo = [&random](int most) { return std::uniform_int_distribution(0, most)(random); };
    HistoryEntry entry = samples::entry(HistoryEntry::allKinds[static_cast<size_t>(upTo(5))], {});
    entry.timestamp = Date(Date::duration(std::uniform_int_distribution<qint64>(
        std::numeric_limits<qint64>::min(), std::numeric_limits<qint64>::max())(random)));
    entry.title = anyText(random, 40);
    for (int i = upTo(6); i > 0; --i)
        entry.paths << anyText(random, 120);
    entry.bytesAffected = std::uniform_int_distribution<qint64>(std::numeric_limits<qint64>::min(),
                                                                std::numeric_limits<qint64>::max())(random);
    entry.success = upTo(1) == 1;
    if (upTo(1) == 1)
        entry.detail = anyText(random, 400);
    return entry;
}

/// The entry as the file can keep it.
HistoryEntry asKept(HistoryEntry entry)
{
    entry.timestamp =
        historyfile::dateOfText(QString::fromLatin1(historyfile::dateText(entry.timestamp))).value();
    entry.title = paths::display(entry.title);
    for (QString &path : entry.paths)
        path = paths::display(path);
    if (entry.detail)
        entry.detail = paths::display(*entry.detail);
    return entry;
}

} // namespace

TEST(HistoryFile, readsBackWhatWasWrittenOrTheNewestOfItWhereThereIsNoRoom)
{
    std::mt19937 random(20260301);
    size_t cut = 0;
    size_t whole = 0;
    for (int round = 0; round < 400; ++round) {
        std::vector<HistoryEntry> entries;
        for (int i = std::uniform_int_distribution(0, 8)(random); i > 0; --i)
            entries.push_back(anyEntry(random));
        const qint64 room = std::uniform_int_distribution(3, 8000)(random);
        const auto [json, count] = historyfile::encodeWithin(room, entries);
        ASSERT_LE(json.size(), room);
        ASSERT_LE(count, entries.size());
        const std::vector<HistoryEntry> back = historyfile::decode(json);
        ASSERT_EQ(back.size(), count);
        for (size_t i = 0; i < count; ++i)
            ASSERT_EQ(back[i], asKept(entries[i])) << "round " << round << ", entry " << i;
        if (count < entries.size()) {
            const auto next = entries.begin() + static_cast<std::ptrdiff_t>(count) + 1;
            ASSERT_GT(historyfile::encode({entries.begin(), next}).size(), room) << "one more has room";
        }
        ++(count < entries.size() ? cut : whole);
    }
    EXPECT_GT(cut, 50U);
    EXPECT_GT(whole, 50U);
}

TEST(HistoryFile, takesItsRoomToTheLastByte)
{
    const std::vector<HistoryEntry> entries = {samples::entry(u"b"_s), samples::entry(u"a"_s)};
    const qint64 size = historyfile::encode(entries).size();
    EXPECT_EQ(historyfile::encodeWithin(size, entries).entryCount, 2U);
    EXPECT_EQ(historyfile::encodeWithin(size, entries).json, historyfile::encode(entries));
    EXPECT_EQ(historyfile::encodeWithin(size - 1, entries).json, historyfile::encode({entries[0]}));
    EXPECT_EQ(historyfile::encodeWithin(3, entries).json, "[]\n");
}
