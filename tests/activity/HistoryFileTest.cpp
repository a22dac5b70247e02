#include "activity/HistoryFile.h"

#include "activity/HistoryFileEncoding.h"
#include "activity/HistorySamples.h"
#include "base/Error.h"
#include "base/Paths.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <limits>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Kind = HistoryEntry::Kind;

namespace {

/// One entry as the file holds it, with `changed` in the place of the part `old`.
QByteArray fileWith(const QByteArray &old = {}, const QByteArray &changed = {})
{
    QByteArray object = R"({"bytesAffected": 5, "detail": "d", "id": "6f1c2f0a-1b2c-4d5e-8f90-a1b2c3d4e5f6",)"
                        R"( "kind": "cleanup", "paths": ["/a"], "success": true,)"
                        R"( "timestamp": "2026-03-01T09:30:00Z", "title": "t"})";
    EXPECT_TRUE(old.isEmpty() || object.contains(old)) << old.constData();
    if (!old.isEmpty())
        object.replace(old, changed);
    return "[" + object + "]";
}

/// Why a file is refused; "taken" when it is not.
QString refusal(const QByteArray &json)
{
    try {
        historyfile::decode(json);
        return u"taken"_s;
    } catch (const Error &error) {
        EXPECT_EQ(error.domain, historyfile::errorDomain);
        return error.description;
    }
}

HistoryEntry only(const QByteArray &json)
{
    const std::vector<HistoryEntry> entries = historyfile::decode(json);
    EXPECT_EQ(entries.size(), 1U);
    return entries.at(0);
}

HistoryEntry again(const HistoryEntry &entry)
{
    return only(historyfile::encode({entry}));
}

/// What another reader of JSON makes of the one entry.
QJsonObject parsed(const HistoryEntry &entry)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(historyfile::encode({entry}), &error);
    EXPECT_EQ(error.error, QJsonParseError::NoError) << error.errorString().toStdString();
    return document.array().at(0).toObject();
}

} // namespace

TEST(HistoryFile, isAnArrayOfObjectsWithSortedKeys)
{
    HistoryEntry entry = samples::entry(Kind::organize, u"Organized 2 files"_s, 2);
    entry.id = QUuid(u"6F1C2F0A-1B2C-4D5E-8F90-A1B2C3D4E5F6"_s);
    entry.bytesAffected = -7;
    entry.success = false;
    entry.detail = u"why"_s;
    EXPECT_EQ(historyfile::encode({entry}).toStdString(), R"([
  {
    "bytesAffected": -7,
    "detail": "why",
    "id": "6f1c2f0a-1b2c-4d5e-8f90-a1b2c3d4e5f6",
    "kind": "organize",
    "paths": [
      "/some/folder/file 1",
      "/some/folder/file 2"
    ],
    "success": false,
    "timestamp": "2026-03-01T09:30:00Z",
    "title": "Organized 2 files"
  }
]
)");
}

TEST(HistoryFile, holdsAnEmptyArrayForAnEmptyLog)
{
    EXPECT_EQ(historyfile::encode({}), "[]\n");
    EXPECT_TRUE(historyfile::decode("[]").empty());
}

TEST(HistoryFile, keepsTheOrder)
{
    std::vector<HistoryEntry> entries;
    entries.reserve(20);
    for (int i = 0; i < 20; ++i)
        entries.push_back(samples::entry(Kind::undo, QString::number(i), i));
    EXPECT_EQ(historyfile::decode(historyfile::encode(entries)), entries);
}

TEST(HistoryFile, leavesOutAnAbsentDetailAndReadsItBackAsAbsent)
{
    const HistoryEntry entry = samples::entry(u"t"_s);
    EXPECT_EQ(parsed(entry).keys().join(u' '), u"bytesAffected id kind paths success timestamp title"_s);
    EXPECT_EQ(again(entry), entry);
    HistoryEntry empty = entry;
    empty.detail = QString();
    EXPECT_TRUE(parsed(empty).contains(u"detail"));
    EXPECT_EQ(again(empty).detail, QString());
}

TEST(HistoryFile, writesNoPathsAsAnEmptyArray)
{
    const HistoryEntry entry = samples::entry(u"t"_s);
    EXPECT_TRUE(parsed(entry).value(u"paths").isArray());
    EXPECT_TRUE(parsed(entry).value(u"paths").toArray().isEmpty());
    EXPECT_EQ(again(entry), entry);
}

TEST(HistoryFile, carriesAnyTextThatIsUnicode)
{
    HistoryEntry entry = samples::entry(u"quote \" back \\ slash / del \x7f \u2028 é ß 漢 😀 \U0010FFFF"_s);
    QString controls;
    for (char16_t unit = 0; unit < 0x20; ++unit)
        controls += QChar(unit);
    entry.detail = controls;
    entry.paths = {u""_s, QString(5000, u'漢'), QString(5000, u'"'), u"\uFEFFmark"_s, u"e\u0301"_s};
    EXPECT_EQ(again(entry), entry);
    EXPECT_EQ(parsed(entry).value(u"title").toString(), entry.title);
    EXPECT_EQ(parsed(entry).value(u"detail").toString(), controls);
    EXPECT_EQ(parsed(entry).value(u"paths").toArray().at(1).toString(), entry.paths[1]);
}

TEST(HistoryFile, writesReplacementCharactersForBytesThatAreNotUtf8)
{
    HistoryEntry entry = samples::entry(u"t"_s);
    entry.paths = {paths::fromBytes("/\xFF\xFEx"), QString(QChar(0xD83D)), QString(QChar(0xD83D)) + u"x"_s};
    const QByteArray json = historyfile::encode({entry});
    EXPECT_TRUE(json.isValidUtf8());
    EXPECT_EQ(only(json).paths, (QStringList{u"/\uFFFD\uFFFDx"_s, u"\uFFFD"_s, u"\uFFFDx"_s}));
}

TEST(HistoryFile, dropsFractionsOfASecond)
{
    HistoryEntry entry = samples::entry(u"t"_s);
    entry.timestamp += 999'999'999ns;
    EXPECT_EQ(again(entry).timestamp, samples::morning);
}

TEST(HistoryFile, keepsDatesAtTheEndsOfWhatADateCanBe)
{
    EXPECT_EQ(historyfile::dateText(Date(-1ns)), "1969-12-31T23:59:59Z");
    for (const Date date : {Date::min(), Date(-1ns), Date::max()}) {
        HistoryEntry entry = samples::entry(u"t"_s);
        entry.timestamp = date;
        const Date back = again(entry).timestamp;
        EXPECT_LE(back, date);
        EXPECT_LT(dates::secondsBetween(back, date), 1.5);
    }
}

TEST(HistoryFile, keepsTheWholeRangeOf64Bits)
{
    for (const qint64 bytes : {std::numeric_limits<qint64>::min(), qint64(-1), qint64(0), qint64(1),
                               (qint64(1) << 53) + 1, std::numeric_limits<qint64>::max()}) {
        HistoryEntry entry = samples::entry(u"t"_s);
        entry.bytesAffected = bytes;
        EXPECT_EQ(again(entry).bytesAffected, bytes);
    }
}

TEST(HistoryFile, takesEveryKind)
{
    for (const Kind kind : HistoryEntry::allKinds)
        EXPECT_EQ(again(samples::entry(kind, u"t"_s)).kind, kind);
}

TEST(HistoryFile, takesWhatAnotherWriterMayWriteDifferently)
{
    EXPECT_EQ(refusal(fileWith()), u"taken"_s);
    EXPECT_EQ(
        refusal(fileWith("6f1c2f0a-1b2c-4d5e-8f90-a1b2c3d4e5f6", "6F1C2F0A-1B2C-4D5E-8F90-A1B2C3D4E5F6")),
        u"taken"_s);
    EXPECT_EQ(only(fileWith("\"d\"", "null")).detail, std::nullopt);
    EXPECT_EQ(only(fileWith("\"detail\"", "\"later\"")).detail, std::nullopt);
    EXPECT_EQ(only(fileWith("\"/a\"", "\"\\/a\\u00e9\"")).paths, QStringList{u"/aé"_s});
    EXPECT_EQ(only(fileWith(": 5", ": 12.0")).bytesAffected, 12);
    EXPECT_EQ(only(fileWith(": 5", ": 1e3")).bytesAffected, 1000);
    EXPECT_EQ(
        only(fileWith("6f1c2f0a-1b2c-4d5e-8f90-a1b2c3d4e5f6", "00000000-0000-0000-0000-000000000000")).id,
        QUuid());
}

TEST(HistoryFile, takesIdsThatRepeat)
{
    const QByteArray one = fileWith().sliced(1).chopped(1);
    EXPECT_EQ(historyfile::decode("[" + one + "," + one + "]").size(), 2U);
}

TEST(HistoryFile, isRefusedWhenItIsNoListInJson)
{
    const QByteArray whole = fileWith();
    for (const QByteArray &json : {QByteArray(), QByteArray(" \n"), QByteArray("nonsense"), whole.chopped(1),
                                   whole.first(whole.size() / 2), whole + "x", QByteArray("[,]"),
                                   QByteArray(2000, '['), QByteArray(100, '\0')})
        EXPECT_TRUE(refusal(json).startsWith(u"The file is not JSON: ")) << json.constData();
    for (const QByteArray &json : {QByteArray("{}"), "{\"entries\": " + whole + "}"})
        EXPECT_EQ(refusal(json), u"The file holds no list."_s);
}

TEST(HistoryFile, isRefusedWhenItIsNotUtf8)
{
    EXPECT_EQ(refusal(fileWith("\"t\"", "\"\xFF\"")), u"The file is not UTF-8."_s);
    EXPECT_EQ(refusal(fileWith("\"t\"", "\"\xED\xA0\x80\"")), u"The file is not UTF-8."_s);
}

TEST(HistoryFile, isRefusedForAKeyThatIsMissing)
{
    for (const QByteArray key : {"bytesAffected", "id", "kind", "paths", "success", "timestamp", "title"}) {
        EXPECT_EQ(refusal(fileWith("\"" + key + "\"", "\"other\"")),
                  u"Entry 1: \"%1\" is missing."_s.arg(QString::fromLatin1(key)));
    }
}

TEST(HistoryFile, isRefusedForAValueOfAnotherType)
{
    const std::vector<std::pair<QByteArray, QByteArray>> values = {
        {"bytesAffected", ": 5"},
        {"detail", ": \"d\""},
        {"id", ": \"6f1c2f0a-1b2c-4d5e-8f90-a1b2c3d4e5f6\""},
        {"kind", ": \"cleanup\""},
        {"paths", ": [\"/a\"]"},
        {"success", ": true"},
        {"timestamp", ": \"2026-03-01T09:30:00Z\""},
        {"title", ": \"t\""},
    };
    for (const auto &[key, value] : values) {
        for (const QByteArray other :
             {": {\"nested\": [1]}", ": [[]]", ": null", ": 7.5", ": false", ": \"x\""}) {
            const bool isFree = (key == "detail" && other == ": null")
                                || (key == "success" && other == ": false")
                                || ((key == "title" || key == "detail") && other == ": \"x\"");
            const QString text = refusal(fileWith(value, other));
            EXPECT_EQ(text == u"taken", isFree) << key.constData() << other.constData();
            EXPECT_EQ(text.startsWith(u"Entry 1: \"%1\" "_s.arg(QString::fromLatin1(key))), !isFree)
                << text.toStdString();
        }
    }
}

TEST(HistoryFile, isRefusedForAPathThatIsNoText)
{
    for (const QByteArray path : {"1", "null", "{}", "[\"/a\"]", "true"})
        EXPECT_EQ(refusal(fileWith("\"/a\"", path)),
                  u"Entry 1: \"paths\" holds something that is no text."_s);
}

TEST(HistoryFile, isRefusedForAnIdInAnotherForm)
{
    for (const QByteArray id :
         {"", "1", "{6f1c2f0a-1b2c-4d5e-8f90-a1b2c3d4e5f6}", "6f1c2f0a1b2c4d5e8f90a1b2c3d4e5f6",
          "6f1c2f0a-1b2c-4d5e-8f90-a1b2c3d4e5f", "6f1c2f0a-1b2c-4d5e-8f90-a1b2c3d4e5f6 ",
          "gf1c2f0a-1b2c-4d5e-8f90-a1b2c3d4e5f6"})
        EXPECT_EQ(refusal(fileWith("6f1c2f0a-1b2c-4d5e-8f90-a1b2c3d4e5f6", id)),
                  u"Entry 1: \"id\" is no UUID."_s);
}

TEST(HistoryFile, isRefusedForANumberThatIsNotWholeOrTooLarge)
{
    for (const QByteArray number :
         {": 0.5", ": -1.25", ": 9223372036854775808", ": -9223372036854780000", ": 1e30"})
        EXPECT_EQ(refusal(fileWith(": 5", number)),
                  u"Entry 1: \"bytesAffected\" is no whole number of 64 bits."_s)
            << number.constData();
}

TEST(HistoryFile, isRefusedForAnyDateThatIsNotInWholeSecondsOfUtc)
{
    for (const QByteArray date : {"",
                                  "2026-03-01",
                                  "2026-03-01T09:30:00",
                                  "2026-03-01T09:30:00.000Z",
                                  "2026-03-01T09:30:00.5Z",
                                  "2026-03-01T09:30:00+00:00",
                                  "2026-03-01T11:30:00+02:00",
                                  "2026-03-01T09:30:00z",
                                  "2026-03-01 09:30:00Z",
                                  "2026-03-01T09:30Z",
                                  "20260301T093000Z",
                                  "2026-02-29T09:30:00Z",
                                  "2026-13-01T09:30:00Z",
                                  "2026-00-01T09:30:00Z",
                                  "2026-03-00T09:30:00Z",
                                  "2026-03-01T24:00:00Z",
                                  "2026-03-01T09:60:00Z",
                                  "2026-03-01T09:30:60Z",
                                  "+026-03-01T09:30:00Z",
                                  "2026-03-01T09:30:00Z ",
                                  "1772357400"})
        EXPECT_EQ(refusal(fileWith("2026-03-01T09:30:00Z", date)),
                  u"Entry 1: \"timestamp\" is no date in UTC with whole seconds."_s)
            << date.constData();
}

TEST(HistoryFile, takesTheDatesThatTheCalendarHas)
{
    EXPECT_EQ(historyfile::dateOfText(u"2024-02-29T00:00:00Z"), Date(1'709'164'800s));
    EXPECT_EQ(historyfile::dateOfText(u"1970-01-01T00:00:00Z"), Date());
    EXPECT_EQ(historyfile::dateOfText(u"1969-12-31T23:59:59Z"), Date(-1s));
    // Beyond what a date can hold, its end stands for it.
    EXPECT_EQ(historyfile::dateOfText(u"9999-12-31T23:59:59Z"), Date::max());
    EXPECT_EQ(historyfile::dateOfText(u"0000-01-01T00:00:00Z"), Date::min());
}

TEST(HistoryFile, isRefusedWholeForOneBadEntryAmongGoodOnes)
{
    const QByteArray good = fileWith().sliced(1).chopped(1);
    const QByteArray bad = fileWith("cleanup", "explode").sliced(1).chopped(1);
    EXPECT_EQ(refusal("[" + good + "," + bad + "," + good + "]"), u"Entry 2: \"kind\" is unknown."_s);
    EXPECT_EQ(refusal("[" + good + ", 7]"), u"Entry 2: it is no object."_s);
}
