#include "platform/linux/JournalText.h"

#include "base/Paths.h"

#include <QDateTime>
#include <QMap>
#include <QtEndian>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// The fields of an entry in the journal's native protocol, where each has the form for any bytes.
QMap<QByteArray, QByteArray> fieldsOf(QByteArray entry)
{
    QMap<QByteArray, QByteArray> fields;
    while (!entry.isEmpty()) {
        const qsizetype nameEnd = entry.indexOf('\n');
        if (nameEnd < 0 || entry.size() < nameEnd + 9)
            return {};
        const auto length =
            static_cast<qsizetype>(qFromLittleEndian<quint64>(entry.constData() + nameEnd + 1));
        if (entry.size() < nameEnd + 9 + length + 1 || entry[nameEnd + 9 + length] != '\n')
            return {};
        fields.insert(entry.first(nameEnd), entry.sliced(nameEnd + 9, length));
        entry.remove(0, nameEnd + 9 + length + 1);
    }
    return fields;
}

} // namespace

TEST(JournalText, handsOverAllFields)
{
    const auto fields = fieldsOf(journaltext::datagram(LogLevel::error, u"Cleanup"_s, u"Can't remove"_s));
    EXPECT_EQ(fields.size(), 5);
    EXPECT_EQ(fields["MESSAGE"], "Can't remove");
    EXPECT_EQ(fields["PRIORITY"], "3");
    EXPECT_EQ(fields["SYSLOG_IDENTIFIER"], "com.quillmere.app");
    EXPECT_EQ(fields["QUILLMERE_SUBSYSTEM"], "com.quillmere.app");
    EXPECT_EQ(fields["QUILLMERE_CATEGORY"], "Cleanup");
}

TEST(JournalText, keepsLinesAndForgedFieldsInTheMessage)
{
    const auto fields =
        fieldsOf(journaltext::datagram(LogLevel::info, u"General"_s, u"a\nPRIORITY=0\n\n\0b\n"_s));
    EXPECT_EQ(fields["MESSAGE"], QByteArray("a\nPRIORITY=0\n\n\0b\n", 17));
    EXPECT_EQ(fields["PRIORITY"], "6");
}

TEST(JournalText, replacesBytesThatAreNotUtf8)
{
    const QString path = paths::fromBytes("/home/ada/\xFF\xFE.txt");
    const auto fields = fieldsOf(journaltext::datagram(LogLevel::debug, u"General"_s, path));
    EXPECT_EQ(fields["MESSAGE"], QByteArray("/home/ada/\uFFFD\uFFFD.txt"));
    EXPECT_EQ(fields["PRIORITY"], "7");
}

TEST(JournalText, cutsLongMessagesBetweenCharacters)
{
    const QString message = u'x' + QString(40'000, u'ü');
    const QByteArray cut = fieldsOf(journaltext::datagram(LogLevel::info, u"General"_s, message))["MESSAGE"];
    EXPECT_TRUE(cut.isValidUtf8());
    EXPECT_TRUE(cut.endsWith("ü…"));
    EXPECT_LT(cut.size(), 33 * 1024);
    EXPECT_GT(cut.size(), 32 * 1024 - 4);
}

TEST(JournalText, showsAnEntryAsOneLine)
{
    const QDateTime time(QDate(2026, 3, 1), QTime(9, 30, 0, 125));
    EXPECT_EQ(
        journaltext::line(time.toMSecsSinceEpoch() * 1000 + 999, "3", "General", "first\nsecond\r\nüber"),
        u"2026-03-01 09:30:00.125 error [General] first\\nsecond\\r\\nüber"_s);
}

TEST(JournalText, namesLevelsByPriority)
{
    const auto levelOf = [](const QByteArray &priority) {
        return journaltext::line(0, priority, "C", "m").split(u' ').value(2);
    };
    EXPECT_EQ(levelOf("7"), u"debug"_s);
    EXPECT_EQ(levelOf("6"), u"info"_s);
    EXPECT_EQ(levelOf("3"), u"error"_s);
    EXPECT_EQ(levelOf("0"), u"error"_s);
    EXPECT_EQ(levelOf(""), u"info"_s);
    EXPECT_EQ(levelOf("x"), u"info"_s);
}

TEST(JournalText, showsHostileBytesWithoutBreakingTheLine)
{
    const QString line = journaltext::line(0, "6", "a\nb", QByteArray("x\0y\xFFz\xE2\x80\xA8", 8));
    EXPECT_TRUE(line.endsWith(u" info [a\\nb] x\uFFFDy\uFFFDz\\n"_s)) << line.toStdString();
}
